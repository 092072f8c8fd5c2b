#pragma once

#include "store/AppStore.h"
#include "web/WebPlugin.h"

#include <QQuickItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Shows a page of the platform. What shows pages is brought into the process by the first one;
/// the page, its cookies and what it had opened go with the item.
class PageHost : public QQuickItem, private web::PageWatcher {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::AppStore *store MEMBER m_store REQUIRED)
    /// The page of the platform to be shown.
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged REQUIRED)
    Q_PROPERTY(bool dark MEMBER m_dark REQUIRED)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    /// Why there is no page to see, in a line for the person.
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    /// The page that shows, which the person may have come to by a link.
    Q_PROPERTY(QUrl address READ address NOTIFY placeChanged)
    Q_PROPERTY(qreal progress READ progress NOTIFY placeChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY placeChanged)
public:
    enum State {
        Loading,
        Shown,
        Failed,  ///< trying again may help
        Refused, ///< no page can be shown in this process
    };
    Q_ENUM(State)

    explicit PageHost(QQuickItem *parent = nullptr);
    ~PageHost() override;

    QUrl url() const { return m_url; }
    void setUrl(const QUrl &url);
    State state() const { return m_state; }
    QString failure() const { return m_failure; }
    QUrl address() const { return m_place.url.isEmpty() ? m_url : m_place.url; }
    qreal progress() const { return m_place.progress / 100.0; }
    bool canGoBack() const { return m_place.canGoBack; }

    Q_INVOKABLE void back();
    Q_INVOKABLE void reload();
    /// Loads what failed once more, signed in as the person is now.
    Q_INVOKABLE void retry();

Q_SIGNALS:
    void urlChanged();
    void stateChanged();
    void placeChanged();
    /// A web address that belongs in the person's browser.
    void browserRequested(const QUrl &url);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    void pageChanged() override;
    void pageLeft(const QUrl &url) override;

    void openSoon();
    void open(const QUrl &url);
    bool makePage();
    void setState(State state, const QString &failure = {});

    store::AppStore *m_store = nullptr;
    QUrl m_url;
    bool m_dark = false;
    bool m_isDue = false;
    State m_state = Loading;
    QString m_failure;
    web::PageStatus m_place;
    std::unique_ptr<web::Page> m_page;
};

} // namespace kiv::ui
