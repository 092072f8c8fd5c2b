#pragma once

#include "base/Work.h"
#include "net/ChatTarget.h"
#include "store/CallFeed.h"
#include "store/CallHistory.h"
#include "store/CallTranscript.h"
#include "voice/AudioInput.h"
#include "voice/VoiceEngine.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

class AppStore;

/// Talking by voice: one live call from the call button to the hang-up, and the calls of before.
class CallRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool call READ call NOTIFY callChanged)
    Q_PROPERTY(bool callShown READ callShown NOTIFY callShownChanged)
    Q_PROPERTY(int callSec READ callSec NOTIFY callSecChanged)
    Q_PROPERTY(int callMax READ callMax NOTIFY callMaxChanged)
    Q_PROPERTY(bool callMuted READ callMuted NOTIFY callMutedChanged)
    Q_PROPERTY(bool callHeld READ callHeld NOTIFY callHeldChanged)
    Q_PROPERTY(bool callTyping READ callTyping NOTIFY callTypingChanged)
    Q_PROPERTY(QString callDraft READ callDraft WRITE setCallDraft NOTIFY callDraftChanged)
    Q_PROPERTY(kiv::store::CallPhase callPhase READ callPhase NOTIFY callPhaseChanged)
    Q_PROPERTY(bool callReconnecting READ callReconnecting NOTIFY callReconnectingChanged)
    Q_PROPERTY(QString callMode READ callMode NOTIFY callModeChanged)
    Q_PROPERTY(QString callError READ callError NOTIFY callErrorChanged)
    Q_PROPERTY(QString callHint READ callHint NOTIFY callHintChanged)
    Q_PROPERTY(bool callEndingSoon READ callEndingSoon NOTIFY callEndingSoonChanged)
    Q_PROPERTY(QString callName READ callName NOTIFY callWithChanged)
    Q_PROPERTY(kiv::store::ScopeKind callKind READ callKind NOTIFY callWithChanged)
    Q_PROPERTY(QString callColorHex READ callColorHex NOTIFY callWithChanged)
    Q_PROPERTY(kiv::store::CallTranscript *callTranscript READ callTranscript CONSTANT)
    Q_PROPERTY(QString voiceReason READ voiceReason NOTIFY voiceReasonChanged)
    Q_PROPERTY(kiv::store::CallHistory *callHistory READ callHistory CONSTANT)
    Q_PROPERTY(bool callHistoryLoaded READ callHistoryLoaded NOTIFY callHistoryLoadedChanged)
    Q_PROPERTY(bool callHistoryFailed READ callHistoryFailed NOTIFY callHistoryFailedChanged)
    Q_PROPERTY(QString callTranscriptOpen READ callTranscriptOpen NOTIFY callTranscriptOpenChanged)
public:
    explicit CallRoom(AppStore &store);
    ~CallRoom() override;

    /// Where the hidden page of calls comes from; it outlives the room. Without one it is the
    /// store's web host.
    void setVoicePages(voice::VoicePages *pages) { m_pages = pages; }

    /// A call is on, from the button to the last moment of its end.
    bool call() const { return m_call; }
    /// The call screen is up; false while a call goes on behind the window.
    bool callShown() const { return m_callShown; }
    int callSec() const { return m_callSec; }
    int callMax() const { return m_callMax; }
    bool callMuted() const { return m_callMuted; }
    bool callHeld() const { return m_callHeld; }
    bool callTyping() const { return m_callTyping; }
    QString callDraft() const { return m_callDraft; }
    void setCallDraft(const QString &draft) { m_callDraft = draft; }
    CallPhase callPhase() const { return m_callPhase; }
    /// An active call was cut off and is being connected anew.
    bool callReconnecting() const { return m_callReconnecting; }
    /// "listening" or "speaking".
    QString callMode() const { return m_callMode; }
    /// The one-line failure on the call screen.
    QString callError() const { return m_callError; }
    /// A line to be shown once, then taken back with dismissHint(): why no call was started, or
    /// what was done.
    QString callHint() const { return m_callHint; }
    bool callEndingSoon() const { return m_callEndingSoon; }
    /// Who the call is with; stays when the person goes elsewhere in the window.
    QString callName() const { return m_callName; }
    ScopeKind callKind() const { return m_callKind; }
    QString callColorHex() const { return m_callColorHex; }
    CallTranscript *callTranscript() { return &m_callTranscript; }
    /// Nothing until it was asked for.
    std::optional<bool> voiceAvailable() const { return m_voiceAvailable; }
    QString voiceReason() const { return m_voiceReason; }
    CallHistory *callHistory() { return &m_callHistory; }
    bool callHistoryLoaded() const { return m_callHistoryLoaded; }
    bool callHistoryFailed() const { return m_callHistoryFailed; }
    /// The past call whose transcript is open; empty for none.
    QString callTranscriptOpen() const { return m_callTranscriptOpen; }

    /// The call button: starts a call, or says why there is none; shows the one that is on.
    Q_INVOKABLE void callAction();
    Q_INVOKABLE void hangupCall();
    Q_INVOKABLE void toggleMute();
    Q_INVOKABLE void toggleHold();
    /// Sends typed text into the call.
    Q_INVOKABLE void callSay(const QString &text);
    /// Puts a link to what the call is about on the clipboard.
    Q_INVOKABLE void callShare();
    Q_INVOKABLE void openTyping() { m_callTyping = true; }
    Q_INVOKABLE void closeTyping() { m_callTyping = false; }
    Q_INVOKABLE void showCall() { m_callShown = m_call.value(); }
    /// Shows what a line of the transcript stands for on the canvas, and the window around it.
    Q_INVOKABLE void showDrawing(const QString &action);
    /// The message of that line while its conversation is shown; empty while another one is.
    Q_INVOKABLE QString messageOf(const QString &action) const;
    /// Back to the window; the call goes on.
    Q_INVOKABLE void leaveCallScreen() { m_callShown = false; }
    Q_INVOKABLE void dismissHint() { m_callHint = QString(); }
    /// Past calls with whom the current scope would call.
    Q_INVOKABLE void loadCallHistory();
    /// Opens the transcript of a past call, or closes it.
    Q_INVOKABLE void toggleCallTranscript(const QString &callID);
    /// The same for the line of a call in the conversation.
    Q_INVOKABLE void toggleCallLines(const QString &callID);

    /// Ends what there is of a call at once, screen and all.
    void leaveCall();
    /// The same; returns when the backend has been told.
    QCoro::Task<void> endCall(Cancel cancel);
    /// Whether the backend is still to hear of the end of a call.
    bool isTellingEnd() const { return m_goodbyes.running(); }
    /// Nobody is signed in any more: nothing of their calls is kept.
    void clear();

    /// The conversation with its calls at their places; `hasOlder` when it goes back further.
    QList<Msg> withCalls(const net::ChatTarget &target, const QList<Msg> &messages, bool hasOlder,
                         const std::optional<QDateTime> &since) const;
    /// A row of the shown conversation has come (`isNew`) or grown. One that came during a call
    /// with this agent, and that nobody typed a question for, answers what was said last.
    void takeRow(const Msg &row, bool isNew);
    /// The question that a row of the shown conversation answered in the call; nothing for others.
    std::optional<QString> spokenQuestion(const Msg &row) const;
    /// Puts the past calls with an agent into its conversation.
    void attachSharedVoiceHistory(const net::ChatTarget &target);

Q_SIGNALS:
    void callChanged();
    void callShownChanged();
    void callSecChanged();
    void callMaxChanged();
    void callMutedChanged();
    void callHeldChanged();
    void callTypingChanged();
    void callDraftChanged();
    void callPhaseChanged();
    void callReconnectingChanged();
    void callModeChanged();
    void callErrorChanged();
    void callHintChanged();
    void callEndingSoonChanged();
    void callWithChanged();
    void voiceAvailableChanged();
    void voiceReasonChanged();
    void callHistoryLoadedChanged();
    void callHistoryFailedChanged();
    void callTranscriptOpenChanged();
    /// The person shares this address.
    void callLinkShared(const QString &link);

private:
    /// Who is called, and from which conversation.
    struct Callee {
        QString agent; ///< empty while it is not known who answers for everything
        std::optional<net::ChatTarget> chat;
        QString project;
    };
    enum class Ending { Shown, AtOnce };

    // The button
    QCoro::Task<void> press(Cancel cancel);
    QCoro::Task<void> probeVoice(Cancel cancel);
    bool micAllowed();
    QCoro::Task<void> warmUpEarly(Cancel cancel);
    void showCallHint(const QString &text);
    void showCallee();
    Callee currentCallee() const;
    voice::VoicePages &pages();
    voice::VoiceEngine &engine();
    void dropEngine();

    // The line
    void startLiveCall();
    QCoro::Task<void> mintSession(int gen, Cancel cancel);
    QCoro::Task<void> connectCall(Cancel cancel);
    QCoro::Task<void> reconnectCall(Cancel cancel);
    QCoro::Task<void> warmUpInTime(Cancel cancel);
    void callConnected();
    void failStart(const std::exception &error);
    void startCallClock();
    void tick();
    void handleVoiceEvent(const voice::VoiceEngine::Event &event);
    void onDisconnect(const voice::VoiceEngine::Disconnect &disconnect);
    void onEngineGone();
    void applyMute();
    void applyMicrophone();
    bool isCalledFromHere() const;
    bool isUnasked(const Msg &row) const;
    void showLevel();
    QString leaveLine();
    void hangUp(Ending ending);
    void finishCall();
    void tellEnd(const QString &callID);
    QCoro::Task<void> postEnd(QString callID, Cancel cancel);

    // Past calls
    QCoro::Task<void> loadHistory(QString agentID, std::optional<net::ChatTarget> chat,
                                  Cancel cancel);
    QCoro::Task<void> loadTranscript(QString callID, Cancel cancel);
    QCoro::Task<void> openLines(net::ChatTarget chat, QString callID, Cancel cancel);
    QCoro::Task<QList<PastLine>> transcriptOf(QString callID, Cancel cancel);
    void flushCallIntoFeed();

    static constexpr int usualMax = 600;

    AppStore &m_store;
    voice::VoicePages *m_pages = nullptr;
    std::unique_ptr<voice::VoicePages> m_hosted;
    Callee m_callee;
    QString m_callName;
    ScopeKind m_callKind = ScopeKind::Kiv;
    QString m_callColorHex;
    CallTranscript m_callTranscript;
    CallHistory m_callHistory;
    CallFeed m_feed;
    QString m_historyAgent;                               ///< whose calls the history holds
    QHash<QString, QList<PastLine>> m_callTranscriptRows; ///< of past calls, by their id

    int m_callGen = 0; ///< counts calls, so that what comes late finds its own
    QString m_callID;
    QString m_callSessionRaw; ///< as it came, for a reconnection
    QString m_callChatDigest;
    QString m_callLastError;
    bool m_callReconnectTried = false;
    bool m_wasActive = false;
    QDateTime m_startedAt;
    Clock::Milliseconds m_began{0};
    QSet<qint64> m_rowsMeanwhile; ///< that came during the call without being asked for by text
    QUuid m_holdLine;
    QUuid m_lostLine;

    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_call, &CallRoom::callChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callShown, &CallRoom::callShownChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, int, m_callSec, &CallRoom::callSecChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CallRoom, int, m_callMax, usualMax,
                                         &CallRoom::callMaxChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callMuted, &CallRoom::callMutedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callHeld, &CallRoom::callHeldChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callTyping, &CallRoom::callTypingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_callDraft, &CallRoom::callDraftChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CallRoom, CallPhase, m_callPhase, CallPhase::Connecting,
                                         &CallRoom::callPhaseChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callReconnecting,
                               &CallRoom::callReconnectingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CallRoom, QString, m_callMode, QStringLiteral("listening"),
                                         &CallRoom::callModeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_callError, &CallRoom::callErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_callHint, &CallRoom::callHintChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callEndingSoon, &CallRoom::callEndingSoonChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, std::optional<bool>, m_voiceAvailable,
                               &CallRoom::voiceAvailableChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_voiceReason, &CallRoom::voiceReasonChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callHistoryLoaded,
                               &CallRoom::callHistoryLoadedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, bool, m_callHistoryFailed,
                               &CallRoom::callHistoryFailedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_callTranscriptOpen,
                               &CallRoom::callTranscriptOpenChanged)

    // Last: what runs ends before what it works on.
    std::unique_ptr<voice::VoiceEngine> m_voice;
    /// Listens along, for its level alone: what the page hears it does not tell.
    std::unique_ptr<voice::AudioInput> m_level;
    Clock::Timer m_callTask;
    Clock::Timer m_warmLimit;
    Clock::Timer m_finish;
    Work m_press;
    Work m_warm;
    Work m_mint;
    Work m_connect;
    Work m_goodbyes;
    Work m_history;
    Work m_transcripts;
};

} // namespace kiv::store
