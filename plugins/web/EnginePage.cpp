#include "EnginePage.h"

#include "base/BaseUrl.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUuid>
#include <QWebEngineCookieStore>
#include <QWebEngineLoadingInfo>

namespace kiv::web {

using namespace Qt::StringLiterals;

namespace {

/// The engine takes cookies one after another but does not say when it is done. One more, for a
/// host that cannot be, comes last: when it is in, the others are.
const QByteArray lastCookieName = "kiv-last";
const QUrl nowhere = u"https://kiv.invalid/"_s;

constexpr int aborted = -3;
constexpr int serverError = 500;

/// Back to the host alone that it came from: a domain would let its subdomains have it too.
QNetworkCookie hostOnly(QNetworkCookie cookie) {
    cookie.setDomain({});
    return cookie;
}

} // namespace

EnginePage::EnginePage(QQmlEngine &engine, const PageWish &wish, PageWatcher &watcher)
    : m_home(wish.home), m_watcher(watcher), m_gate(wish.home) {
    m_profile.setOffTheRecord(true);
    m_profile.setUrlRequestInterceptor(&m_gate);
    connect(m_profile.cookieStore(), &QWebEngineCookieStore::cookieAdded, this,
            &EnginePage::noteCookie);

    QQmlComponent component(&engine, QUrl(u"qrc:/qt/qml/Kiv/Web/PageView.qml"_s));
    m_view.reset(qobject_cast<QQuickItem *>(
        component.createWithInitialProperties({{u"page"_s, QVariant::fromValue(this)}})));
    if (!m_view)
        qFatal("The view of pages cannot be made: %s", qPrintable(component.errorString()));
    QQmlEngine::setObjectOwnership(m_view.get(), QQmlEngine::CppOwnership);
    // The engine has an item in the view that takes what the person does, and now and then a new
    // one.
    connect(m_view.get(), &QQuickItem::childrenChanged, this, [this] {
        for (QQuickItem *item : m_view->childItems())
            item->installEventFilter(this);
    });
}

/// The profile tells of cookies as it goes, when there is no view any more.
EnginePage::~EnginePage() {
    disconnect(m_profile.cookieStore(), nullptr, this, nullptr);
}

/// A page that sends the person to the browser more often than they do anything is not followed.
bool EnginePage::eventFilter(QObject *item, QEvent *event) {
    const QEvent::Type type = event->type();
    m_mayLeave |=
        type == QEvent::MouseButtonPress || type == QEvent::TouchBegin || type == QEvent::KeyPress;
    return QObject::eventFilter(item, event);
}

void EnginePage::open(const QUrl &url, const QList<QNetworkCookie> &session) {
    m_wanted = url;
    m_lastCookie = QUuid::createUuid().toByteArray(QUuid::Id128);
    m_hasContent = false;
    m_mayLeave = true;
    m_status.url = url;
    setState(PageState::Loading);
    QWebEngineCookieStore *cookies = m_profile.cookieStore();
    for (const QNetworkCookie &cookie : session)
        cookies->setCookie(hostOnly(cookie), m_home);
    cookies->setCookie(QNetworkCookie(lastCookieName, m_lastCookie), nowhere);
}

void EnginePage::noteCookie(const QNetworkCookie &cookie) {
    if (cookie.name() == lastCookieName && cookie.value() == m_lastCookie)
        load(std::exchange(m_wanted, {}));
}

void EnginePage::load(const QUrl &url) {
    if (url.isEmpty())
        return;
    m_leftForBrowser = false;
    // The same address again is no change of it.
    if (m_view->property("url").toUrl() == url)
        reload();
    else
        m_view->setProperty("url", url);
}

void EnginePage::back() {
    m_mayLeave = true;
    QMetaObject::invokeMethod(m_view.get(), "goBack");
}

void EnginePage::reload() {
    m_mayLeave = true;
    QMetaObject::invokeMethod(m_view.get(), "reload");
}

bool EnginePage::admits(const QUrl &url, bool isMainFrame) {
    if (isSameOrigin(url, m_home))
        return true;
    if (isMainFrame)
        handOver(url);
    return false;
}

/// A window that a page wants to open is a link.
void EnginePage::follow(const QUrl &url) {
    if (admits(url, true))
        m_view->setProperty("url", url);
}

void EnginePage::handOver(const QUrl &url) {
    if (!isWebAddress(url) || !std::exchange(m_mayLeave, false))
        return;
    m_leftForBrowser = true;
    m_watcher.pageLeft(url);
}

void EnginePage::noteLoad(int status, const QUrl &url, int domain, int code, const QString &text) {
    // The view itself goes back to the page before when a load fails.
    m_status.url = url;
    switch (status) {
    case QWebEngineLoadingInfo::LoadStartedStatus:
        m_leftForBrowser = false;
        setState(PageState::Loading);
        return;
    case QWebEngineLoadingInfo::LoadSucceededStatus:
        m_hasContent = true;
        setState(PageState::Shown);
        return;
    default:
        break;
    }
    const bool isAnswer = domain == QWebEngineLoadingInfo::HttpStatusCodeDomain;
    if (status == QWebEngineLoadingInfo::LoadStoppedStatus || code == aborted) {
        if (m_hasContent)
            setState(PageState::Shown);
        else
            setState(PageState::Failed, m_leftForBrowser ? tr("This page opens in the browser.")
                                                         : tr("The page did not load."));
    } else if (isAnswer && code < serverError) {
        m_hasContent = true; // what the platform has to say about it
        setState(PageState::Shown);
    } else if (isAnswer) {
        setState(PageState::Failed, tr("The workspace answered with an error (%1).").arg(code));
    } else if (domain == QWebEngineLoadingInfo::ConnectionErrorDomain ||
               domain == QWebEngineLoadingInfo::HttpErrorDomain ||
               domain == QWebEngineLoadingInfo::DnsErrorDomain) {
        setState(PageState::Failed, tr("The workspace could not be reached."));
    } else {
        setState(PageState::Failed, tr("The page did not load (%1).").arg(text));
    }
}

void EnginePage::noteEnd() {
    m_hasContent = false;
    setState(PageState::Failed, tr("The page stopped working."));
}

void EnginePage::notePlace(const QUrl &url, int progress, bool canGoBack) {
    if (m_status.state == PageState::Shown)
        m_status.url = url;
    m_status.progress = progress;
    m_status.canGoBack = canGoBack;
    m_watcher.pageChanged();
}

void EnginePage::setState(PageState state, const QString &failure) {
    m_status.state = state;
    if (state == PageState::Shown)
        m_status.url = m_view->property("url").toUrl();
    m_status.failure = failure;
    // Before there is a page the view is white, in the dark too.
    m_view->setOpacity(m_hasContent ? 1 : 0);
    m_watcher.pageChanged();
}

} // namespace kiv::web
