#pragma once

#include "answers/Answer.h"
#include "voice/CallMemory.h"
#include "voice/CallSocket.h"
#include "voice/CallStore.h"
#include "voice/Ear.h"
#include "voice/Playback.h"
#include "voice/Speaker.h"

#include <QElapsedTimer>
#include <QTimer>

namespace kiv::sandbox {

class CallWitness;
class Database;

/// What a call works with besides its socket.
struct CallSetting {
    Database &database;
    CallStore &calls;
    CallWitness &witness;
    Scope scope;        ///< who answers, and from which data
    QString recogniser; ///< the program that reads words; empty for none
    QString models;     ///< the folder of what it needs
    double pace = 1;    ///< scales the pause before an answer
    std::optional<int> breakAfterMs;
    /// Puts an answer into the chat with who answers.
    std::function<void(const Answer &)> post;
};

/// One conversation over one socket: greets, listens, answers aloud, and writes down what both
/// said.
class VoiceCall : public QObject {
public:
    /// `over` is called once, when the socket is gone; the call is not used afterwards.
    VoiceCall(const OpenCall &call, const CallSetting &setting, std::unique_ptr<CallSocket> socket,
              std::function<void(VoiceCall *)> over);

    const QString &id() const { return m_call.id; }
    /// Ends the call from this side.
    void close(QWebSocketProtocol::CloseCode code, const QString &reason);

private:
    void take(const QJsonObject &message);
    void begin(const QJsonObject &data);
    void takeSound(const QByteArray &samples);
    void takeWords(const QString &text);
    void takeQuestion(const QString &text);
    std::chrono::milliseconds paced(std::chrono::milliseconds time) const;
    void think();
    void listen(std::unique_ptr<Ear> ear);
    std::unique_ptr<Ear> wordEar();
    std::unique_ptr<Ear> turnEar();
    EarHandlers earHandlers();

    /// What is said, and what is laid out beside it if anything is.
    struct Spoken {
        QString text;
        std::optional<Answer> laidOut = {};
    };
    Spoken answerTo(const QString &question);
    void say(const Spoken &answer);
    void interrupt();
    void ping();
    void ended(bool goodbye);
    int second() const;

    const OpenCall m_call;
    const CallSetting m_setting;
    std::unique_ptr<CallSocket> m_socket;
    std::function<void(VoiceCall *)> m_over;
    std::unique_ptr<Ear> m_ear;
    CallMemory m_memory;
    Speaker m_speaker;
    Playback m_playback;
    QTimer m_longest;
    QTimer m_thought;
    QTimer m_pings;
    QElapsedTimer m_since;
    QElapsedTimer m_pinged;
    QString m_question; ///< what is still to be answered
    QString m_saying;   ///< what is being said
    qint64 m_sayingLine = 0;
    int m_turn = 0; ///< number of the newest event of the conversation
    int m_ping = 0;
    double m_latency = 0;
    qsizetype m_silence = 0; ///< bytes of nothing at all that came last
    bool m_begun = false;
};

} // namespace kiv::sandbox
