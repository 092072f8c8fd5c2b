#include "voice/VoiceEngine.h"

#include "voice/VoicePageText.h"

#include <QScopeGuard>

#include <algorithm>

namespace kiv::voice {

using namespace Qt::StringLiterals;
using VoicePageText::jsString;

namespace {

const QString channelName = u"vcall"_s;
/// What a page posts is kept for the length of a call.
constexpr qsizetype longestText = 20'000;
const QString endCall = u"window.__nativeEnd()"_s;

QString text(const QVariantMap &message, const QString &key) {
    const QVariant value = message.value(key);
    return value.typeId() == QMetaType::QString ? value.toString().left(longestText) : QString();
}

/// Nothing for what is no number; true and false are none.
std::optional<double> number(const QVariantMap &message, const QString &key) {
    const QVariant value = message.value(key);
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

qint64 wholeNumber(const QVariantMap &message, const QString &key) {
    constexpr double limit = 9.0e15; // beyond, doubles skip whole numbers
    const double value = number(message, key).value_or(0);
    return value > -limit && value < limit ? static_cast<qint64>(value) : 0;
}

} // namespace

VoiceEngine::VoiceEngine(Clock &clock, VoicePages &pages, const QUrl &baseUrl)
    : m_clock(clock), m_pages(pages), m_baseUrl(baseUrl.toString() + u'/') {}

VoiceEngine::~VoiceEngine() = default;

QCoro::Task<void> VoiceEngine::warmUp(Cancel cancel) {
    if (m_ready && !m_gone)
        co_return;
    if (!m_warming) {
        if (!m_webView)
            m_webView = m_pages.makePage(*this);
        if (!m_webView || m_gone)
            throw VoiceError(VoiceError::Kind::NotReady);
        m_warming = true;
        m_starts = 0;
        m_webView->loadHtml(VoicePageText::html(), m_baseUrl);
    }
    Continuation<bool> waiting(std::move(cancel));
    const auto place = m_readyContinuations.insert(m_readyContinuations.end(), &waiting);
    const auto leave = qScopeGuard([&] { m_readyContinuations.erase(place); });
    if (!co_await waitFor(waiting))
        throw VoiceError(VoiceError::Kind::SdkLoadFailed);
}

void VoiceEngine::settleWarmUp() {
    m_warming = false;
    // Whoever is woken may begin another wait.
    const std::list<Continuation<bool> *> waiting = m_readyContinuations;
    for (Continuation<bool> *one : waiting) {
        if (std::ranges::find(m_readyContinuations, one) != m_readyContinuations.end())
            one->resume(m_ready && !m_gone);
    }
}

void VoiceEngine::giveUpWarmUp() {
    if (m_warming)
        settleWarmUp();
}

QCoro::Task<QString> VoiceEngine::start(QString sessionRaw, QString chatDigest, Cancel cancel) {
    if (!m_webView || !m_ready || m_gone)
        throw VoiceError(VoiceError::Kind::NotReady);
    m_watchdog = m_clock.after(connectPatience, [this] { connectTimedOut(); });
    Continuation<QString> waiting(std::move(cancel));
    m_connectContinuation = &waiting;
    const auto leave = qScopeGuard([&] {
        m_watchdog.stop();
        if (m_connectContinuation == &waiting)
            m_connectContinuation = nullptr;
    });
    ++m_starts;
    m_webView->evaluate(u"window.__nativeStart("_s + jsString(sessionRaw) + u", "_s +
                        jsString(chatDigest) + u')');
    co_return co_await waitFor(waiting);
}

void VoiceEngine::connectTimedOut() {
    failConnect(VoiceError(VoiceError::Kind::ConnectTimeout));
}

void VoiceEngine::failConnect(const VoiceError &error) {
    if (auto *waiting = std::exchange(m_connectContinuation, nullptr))
        waiting->fail(std::make_exception_ptr(error));
}

void VoiceEngine::seedChatContext(const QString &text) {
    const QString trimmed = text.trimmed();
    if (m_webView && !trimmed.isEmpty())
        m_webView->evaluate(u"window.__nativeContext("_s + jsString(trimmed) + u')');
}

void VoiceEngine::setMuted(bool muted) {
    if (m_webView)
        m_webView->evaluate(muted ? u"window.__nativeMute(true)"_s
                                  : u"window.__nativeMute(false)"_s);
}

void VoiceEngine::say(const QString &text) {
    if (m_webView)
        m_webView->evaluate(u"window.__nativeSay("_s + jsString(text) + u')');
}

void VoiceEngine::pageMessage(const QString &channel, const QVariant &body) {
    if (channel != channelName || body.typeId() != QMetaType::QVariantMap)
        return;
    QMetaObject::invokeMethod(
        this, [this, message = body.toMap()] { handle(message); }, Qt::QueuedConnection);
}

void VoiceEngine::pageGone() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_gone = true;
            settleWarmUp();
            failConnect(VoiceError::connectFailed({}));
            if (const auto told = onGone)
                told();
        },
        Qt::QueuedConnection);
}

void VoiceEngine::handle(const QVariantMap &message) {
    // What a call still had on the way when the next one began is not the next one's.
    if (number(message, u"start"_s).value_or(m_starts) != m_starts)
        return;
    const QString type = text(message, u"t"_s);
    if (type == u"ready"_s) {
        m_ready = true;
        settleWarmUp();
    } else if (type == u"connected"_s) {
        if (auto *waiting = std::exchange(m_connectContinuation, nullptr))
            waiting->resume(text(message, u"transport"_s));
        else
            m_webView->evaluate(endCall); // nobody waits for it any more
    } else if (type == u"connectFail"_s) {
        failConnect(VoiceError::connectFailed(text(message, u"message"_s)));
    } else if (type == u"mode"_s) {
        const QString mode = text(message, u"mode"_s);
        emitEvent(Mode{mode.isNull() ? u"listening"_s : mode});
    } else if (type == u"message"_s) {
        const QString said = text(message, u"message"_s).trimmed();
        if (!said.isEmpty())
            emitEvent(Message{text(message, u"source"_s), said,
                              text(message, u"type"_s) == u"partial"_s});
    } else if (type == u"ping"_s) {
        emitEvent(Ping{number(message, u"ms"_s).value_or(0)});
    } else if (type == u"error"_s) {
        emitEvent(Error{text(message, u"message"_s)});
    } else if (type == u"disconnect"_s) {
        emitEvent(Disconnect{text(message, u"reason"_s), text(message, u"message"_s),
                             wholeNumber(message, u"closeCode"_s),
                             text(message, u"closeReason"_s)});
    }
}

void VoiceEngine::emitEvent(const Event &event) {
    if (onEvent)
        onEvent(event);
}

} // namespace kiv::voice
