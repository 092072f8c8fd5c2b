#include "PageHost.h"

#include "web/WebHost.h"

#include <QQmlEngine>

namespace kiv::ui {

PageHost::PageHost(QQuickItem *parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
}

PageHost::~PageHost() = default;

void PageHost::setUrl(const QUrl &url) {
    if (url == m_url || url.isEmpty())
        return;
    m_url = url;
    m_place = {};
    Q_EMIT urlChanged();
    Q_EMIT placeChanged();
    if (isComponentComplete())
        openSoon();
}

void PageHost::componentComplete() {
    QQuickItem::componentComplete();
    openSoon();
}

/// The first page takes a moment to begin: what says so is on the screen before.
void PageHost::openSoon() {
    setState(Loading);
    if (std::exchange(m_isDue, true))
        return;
    const auto openNow = [this] {
        m_isDue = false;
        open(m_url);
    };
    QMetaObject::invokeMethod(this, openNow, Qt::QueuedConnection);
}

void PageHost::open(const QUrl &url) {
    if (!m_page && !makePage())
        return;
    const net::APIClient &client = m_store->net();
    m_page->open(url, m_store->net().cookies().cookiesForUrl(client.baseUrl()));
}

bool PageHost::makePage() {
    web::WebHost *host = m_store->webHost();
    web::WebPlugin *plugin = host ? host->plugin() : nullptr;
    if (!plugin) {
        setState(Refused, tr("The part of KIV that shows pages is not installed."));
        return false;
    }
    const QString refusal = plugin->refusal();
    if (!refusal.isEmpty()) {
        setState(Refused, refusal);
        return false;
    }
    m_page = plugin->makePage(*qmlEngine(this), {m_store->net().baseUrl(), m_dark}, *this);
    QQuickItem *view = m_page->view();
    view->setParentItem(this);
    view->setSize(size());
    view->setFocus(true);
    return true;
}

void PageHost::back() {
    if (m_page)
        m_page->back();
}

void PageHost::reload() {
    if (m_page && m_state == Shown)
        m_page->reload();
    else
        retry();
}

void PageHost::retry() {
    setState(Loading);
    open(address());
}

void PageHost::pageChanged() {
    m_place = m_page->status();
    switch (m_place.state) {
    case web::PageState::Loading:
        setState(Loading);
        break;
    case web::PageState::Shown:
        setState(Shown);
        break;
    case web::PageState::Failed:
        setState(Failed, m_place.failure);
        break;
    }
    Q_EMIT placeChanged();
}

void PageHost::pageLeft(const QUrl &url) {
    Q_EMIT browserRequested(url);
}

void PageHost::setState(State state, const QString &failure) {
    if (state == m_state && failure == m_failure)
        return;
    m_state = state;
    m_failure = failure;
    Q_EMIT stateChanged();
}

void PageHost::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    if (m_page)
        m_page->view()->setSize(now.size());
}

} // namespace kiv::ui
