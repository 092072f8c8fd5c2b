#pragma once

#include "base/Clock.h"
#include "base/Continuation.h"
#include "voice/VoiceError.h"
#include "voice/VoicePage.h"

#include <QCoroTask>
#include <QObject>

#include <functional>
#include <list>
#include <variant>

namespace kiv::voice {

/// The native half of the bridge to the voice service: drives the hidden page that speaks the
/// service's protocol, and turns what the page posts into events. Serves one call after another;
/// `start` is not to be called while another start waits.
class VoiceEngine : public QObject, private VoicePageWatcher {
    Q_OBJECT
public:
    struct Connected {
        QString transport;
    };
    struct Mode {
        QString mode; ///< "speaking" or "listening"
    };
    struct Message {
        QString who;
        QString text;
        bool partial = false;
    };
    struct Ping {
        double ms = 0;
    };
    struct Error {
        QString text;
    };
    struct Disconnect {
        QString reason;
        QString message;
        qint64 closeCode = 0;
        QString closeReason;
    };
    struct ConnectFailed {
        QString text;
    };
    using Event = std::variant<Connected, Mode, Message, Ping, Error, Disconnect, ConnectFailed>;

    static constexpr auto connectPatience = std::chrono::seconds(25);

    /// `pages` is where the one page comes from, `baseUrl` the backend's address; the clock and
    /// the pages outlive the engine.
    VoiceEngine(Clock &clock, VoicePages &pages, const QUrl &baseUrl);
    ~VoiceEngine() override;

    /// Where events go; dropped without it.
    std::function<void(const Event &)> onEvent;
    /// Called when the page's process has ended: the engine is of no more use.
    std::function<void()> onGone;

    /// Makes the page ready; callers share what is under way. Waits as long as the page takes.
    /// Throws VoiceError.
    QCoro::Task<void> warmUp(Cancel cancel);
    /// Nobody waits for the page any longer: every warm-up under way fails. The next one loads the
    /// page anew.
    void giveUpWarmUp();
    /// Connects a call and gives its transport, "websocket" or "webrtc". `sessionRaw` is what the
    /// backend answered, `chatDigest` what the agent may know of the chat. Throws VoiceError.
    QCoro::Task<QString> start(QString sessionRaw, QString chatDigest, Cancel cancel);
    void seedChatContext(const QString &text);
    void setMuted(bool muted);
    /// What the owner writes instead of saying it.
    void say(const QString &text);
    /// Null before the first warm-up.
    VoicePage *webView() const { return m_webView.get(); }

private:
    void pageMessage(const QString &channel, const QVariant &body) override;
    void pageGone() override;
    void handle(const QVariantMap &message);
    void emitEvent(const Event &event);
    void settleWarmUp();
    void connectTimedOut();
    void failConnect(const VoiceError &error);

    Clock &m_clock;
    VoicePages &m_pages;
    QUrl m_baseUrl;
    bool m_ready = false;
    bool m_gone = false;
    bool m_warming = false;
    int m_starts = 0; ///< how often the page was told to start
    /// The warm-ups that wait for the page.
    std::list<Continuation<bool> *> m_readyContinuations;
    /// The start that waits for the page's answer.
    Continuation<QString> *m_connectContinuation = nullptr;
    Clock::Timer m_watchdog;
    std::unique_ptr<VoicePage> m_webView;
};

} // namespace kiv::voice
