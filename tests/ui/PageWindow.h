#pragma once

#include "ui/Gallery.h"
#include "ui/Workspace.h"
#include "web/WebHost.h"

namespace kiv::ui {

/// What the tests of pages of the platform begin with: a real engine, in a window off screen, on a
/// server that answers from a script.
class PageWindow : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void openInBrowser(const QUrl &url) { m_browser.append(url.toString()); }

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    enum { Loading, Shown, Failed, Refused };

    /// A page of rows that fill its width, one below the other, and that tells the server what it
    /// shows.
    static QByteArray pageOf(const QByteArray &rows);
    void open(const QByteArray &rows);
    void clickRow(int row);
    /// Also while a message stands in its place.
    QQuickItem *page() const {
        return m_gallery->window().findChild<QQuickItem *>(QStringLiteral("page"));
    }
    int state() const { return page()->property("state").toInt(); }
    QString failure() const { return page()->property("failure").toString(); }
    QString address() const { return page()->property("address").toUrl().toString(); }
    QString at(const QString &path) const { return m_workspace->backend.url().toString() + path; }

    static inline const QString workPage = QStringLiteral("GET project/ferry");
    static inline const QColor ground{0x0b7d60};

    web::WebHost m_host{QStringLiteral(KIV_WEB_PLUGIN_FILE)};
    QStringList m_browser;
    std::unique_ptr<test::ScriptedBackend> m_elsewhere;
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

/// Runs the tests in a process that the engine can be loaded into.
int runPageTest(QObject &test, int argc, char **argv);

} // namespace kiv::ui
