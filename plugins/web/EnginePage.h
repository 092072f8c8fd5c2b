#pragma once

#include "RequestGate.h"
#include "web/WebPlugin.h"

#include <QObject>
#include <QQuickItem>
#include <QQuickWebEngineProfile>
#include <QtQmlIntegration>

namespace kiv::web {

/// A page on Qt WebEngine: a profile of its own that is never written to the disk, and the rules
/// of what may be opened in it.
class EnginePage : public QObject, public Page {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the plugin")
    Q_PROPERTY(QQuickWebEngineProfile *profile READ profile CONSTANT)
public:
    EnginePage(QQmlEngine &engine, const PageWish &wish, PageWatcher &watcher);
    ~EnginePage() override;

    QQuickWebEngineProfile *profile() { return &m_profile; }

    QQuickItem *view() override { return m_view.get(); }
    PageStatus status() const override { return m_status; }
    void open(const QUrl &url, const QList<QNetworkCookie> &session) override;
    void back() override;
    void reload() override;

    // What the view reports.
    Q_INVOKABLE bool admits(const QUrl &url, bool isMainFrame);
    Q_INVOKABLE void follow(const QUrl &url);
    Q_INVOKABLE void handOver(const QUrl &url);
    Q_INVOKABLE void noteLoad(int status, const QUrl &url, int domain, int code,
                              const QString &text);
    Q_INVOKABLE void noteEnd();
    Q_INVOKABLE void notePlace(const QUrl &url, int progress, bool canGoBack);

protected:
    bool eventFilter(QObject *item, QEvent *event) override;

private:
    void noteCookie(const QNetworkCookie &cookie);
    void load(const QUrl &url);
    void setState(PageState state, const QString &failure = {});

    QUrl m_home;
    PageWatcher &m_watcher;
    PageStatus m_status;
    QUrl m_wanted;           ///< what is loaded once the cookies are in
    QByteArray m_lastCookie; ///< the one whose arrival says so
    bool m_mayLeave = false; ///< for the browser: the person has done something since it last did
    bool m_leftForBrowser = false;
    bool m_hasContent = false;
    RequestGate m_gate;
    QQuickWebEngineProfile m_profile;
    std::unique_ptr<QQuickItem> m_view; ///< last: it goes before its profile
};

} // namespace kiv::web
