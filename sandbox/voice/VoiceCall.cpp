#include "voice/VoiceCall.h"

#include "Database.h"
#include "voice/CallWitness.h"
#include "voice/SpeechEar.h"
#include "voice/SpokenText.h"
#include "voice/TurnEar.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr auto beginPatience = 10s;
constexpr auto thinking = 400ms;
constexpr auto layingOut = 400ms; ///< the words are there before what they speak of
constexpr auto betweenPings = 3s;
/// The caller's clock ends a call in time; this one is for callers whose clock does not.
constexpr int graceSeconds = 5;
constexpr qsizetype longestQuestion = 4000;
/// Nothing but zeros for this long is a microphone that is switched off.
constexpr qsizetype mutedBytes = callerRate / 2 * bytesPerSample;

const QString unheard =
    u"I can hear you, but I cannot make out words on this computer. Please type "
    "what you would like to know."_s;

/// The text up to the word that was being said.
QString upToWord(const QString &text, double share) {
    const qsizetype cut = static_cast<qsizetype>(share * static_cast<double>(text.size()));
    const qsizetype end = text.indexOf(u' ', cut);
    return end < 0 ? text : text.first(end) + u'…';
}

} // namespace

VoiceCall::VoiceCall(const OpenCall &call, const CallSetting &setting,
                     std::unique_ptr<CallSocket> socket, std::function<void(VoiceCall *)> over)
    : m_call(call),
      m_setting(setting),
      m_socket(std::move(socket)),
      m_over(std::move(over)),
      m_playback([this](const QByteArray &samples) {
          const QString sound = QString::fromLatin1(samples.toBase64());
          m_socket->send({{u"type"_s, u"audio"_s},
                          {u"audio_event"_s,
                           QJsonObject{{u"audio_base_64"_s, sound}, {u"event_id"_s, m_turn}}}});
      }) {
    m_socket->setHandlers({[this](const QJsonObject &message) { take(message); },
                           [this](bool goodbye) { ended(goodbye); },
                           [this](double ms) { m_latency = ms; }});
    m_since.start();
    m_longest.setSingleShot(true);
    m_thought.setSingleShot(true);
    connect(&m_longest, &QTimer::timeout, this, [this] {
        close(QWebSocketProtocol::CloseCodeNormal, u"The call has reached its longest time."_s);
    });
    connect(&m_thought, &QTimer::timeout, this, [this] { say(answerTo(m_question)); });
    connect(&m_pings, &QTimer::timeout, this, &VoiceCall::ping);
    m_longest.start(
        std::chrono::seconds(m_call.longestSeconds - m_call.secondsSoFar + graceSeconds));
    QTimer::singleShot(beginPatience, this, [this] {
        if (!m_begun)
            close(QWebSocketProtocol::CloseCodePolicyViolated, u"The conversation never began."_s);
    });
    if (m_setting.breakAfterMs)
        QTimer::singleShot(*m_setting.breakAfterMs, this, [this] { m_socket->breakOff(); });
    m_setting.witness.begin(m_call.id, m_call.agent);
    m_setting.witness.count(u"sockets"_s);
    m_setting.witness.note(u"state"_s, u"open"_s);
    m_socket->measure();
}

void VoiceCall::close(QWebSocketProtocol::CloseCode code, const QString &reason) {
    m_setting.witness.note(u"closed"_s, reason);
    m_socket->close(code, reason);
}

void VoiceCall::take(const QJsonObject &message) {
    CallWitness &witness = m_setting.witness;
    const QString type = message[u"type"_s].toString();
    const QString text = message[u"text"_s].toString().trimmed().left(longestQuestion);
    if (type == u"conversation_initiation_client_data"_s) {
        begin(message);
    } else if (!m_begun) {
        close(QWebSocketProtocol::CloseCodePolicyViolated, u"The conversation has not begun."_s);
    } else if (message.contains(u"user_audio_chunk"_s)) {
        takeSound(QByteArray::fromBase64(message[u"user_audio_chunk"_s].toString().toLatin1()));
    } else if (type == u"pong"_s && message[u"event_id"_s].toInt() == m_ping) {
        m_latency = static_cast<double>(m_pinged.nsecsElapsed()) / 1e6;
        witness.count(u"pings_answered"_s);
    } else if (type == u"contextual_update"_s) {
        m_memory.add(text);
        witness.append(u"contextual_updates"_s, text);
    } else if (type == u"user_message"_s && !text.isEmpty()) {
        witness.append(u"user_messages"_s, text);
        interrupt();
        takeQuestion(text);
    }
}

void VoiceCall::begin(const QJsonObject &data) {
    if (m_begun)
        return;
    m_begun = true;
    const QJsonObject extra = data[u"custom_llm_extra_body"_s].toObject();
    m_memory.digest = extra[u"chat_digest"_s].toString();
    CallWitness &witness = m_setting.witness;
    witness.note(u"named_call_id"_s, extra[u"tamrix_call_id"_s]);
    witness.note(u"digest"_s, extra.value(u"chat_digest"_s));
    witness.note(u"dynamic_variables"_s, data[u"dynamic_variables"_s]);
    m_socket->send({{u"type"_s, u"conversation_initiation_metadata"_s},
                    {u"conversation_initiation_metadata_event"_s,
                     QJsonObject{{u"conversation_id"_s, m_call.id},
                                 {u"agent_output_audio_format"_s, u"pcm_%1"_s.arg(speakerRate)},
                                 {u"user_input_audio_format"_s, u"pcm_%1"_s.arg(callerRate)}}}});
    listen(m_setting.recogniser.isEmpty() ? turnEar() : wordEar());
    m_pings.start(betweenPings);
    QTimer::singleShot(0, this, &VoiceCall::ping);
    say({m_call.isResumed
             ? u"I am back. Please go on."_s
             : u"Hello, %1 here. What would you like to know?"_s.arg(m_setting.scope.name)});
}

void VoiceCall::takeSound(const QByteArray &samples) {
    const bool isNothing = std::ranges::all_of(samples, [](char byte) { return byte == 0; });
    m_silence = isNothing ? m_silence + samples.size() : 0;
    m_setting.witness.note(u"muted"_s, m_silence >= mutedBytes);
    m_setting.witness.count(u"audio_seconds"_s,
                            static_cast<double>(samples.size()) / (callerRate * bytesPerSample));
    m_ear->hear(samples);
}

void VoiceCall::takeWords(const QString &text) {
    if (!text.isEmpty()) {
        interrupt(); // of something short no beginning is told
        takeQuestion(text);
    } else if (!m_question.isEmpty()) {
        think(); // a noise came into it
    }
}

void VoiceCall::takeQuestion(const QString &text) {
    ++m_turn;
    m_socket->send({{u"type"_s, u"user_transcript"_s},
                    {u"user_transcription_event"_s,
                     QJsonObject{{u"user_transcript"_s, text}, {u"event_id"_s, m_turn}}}});
    m_setting.calls.addLine(m_call.id, u"user"_s, second(), text);
    if (m_question.isEmpty() || m_question == wordless) {
        m_question = text;
    } else if (text != wordless) { // a sentence that was begun before belongs to it
        m_question += u' ' + text;
    }
    think();
}

std::chrono::milliseconds VoiceCall::paced(std::chrono::milliseconds time) const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(time * m_setting.pace);
}

void VoiceCall::think() {
    m_thought.start(paced(thinking));
}

void VoiceCall::listen(std::unique_ptr<Ear> ear) {
    m_ear = std::move(ear);
    m_setting.witness.note(u"ear"_s, m_ear->name());
}

std::unique_ptr<Ear> VoiceCall::wordEar() {
    return std::make_unique<SpeechEar>(m_setting.recogniser, m_setting.models, earHandlers());
}

std::unique_ptr<Ear> VoiceCall::turnEar() {
    return std::make_unique<TurnEar>(earHandlers());
}

EarHandlers VoiceCall::earHandlers() {
    return {[this] { interrupt(); }, [this](const QString &text) { takeWords(text); },
            [this](const QString &why) {
                qWarning("The caller's words cannot be read: %s", qUtf8Printable(why));
                // Not at once: it is the ear that is to go which says so.
                QMetaObject::invokeMethod(
                    this, [this] { listen(turnEar()); }, Qt::QueuedConnection);
            }};
}

VoiceCall::Spoken VoiceCall::answerTo(const QString &question) {
    if (question == wordless)
        return {unheard};
    const QString recalled = m_memory.recall(question);
    if (!recalled.isEmpty())
        return {recalled};
    try {
        const Question asked{question, m_setting.scope, {}};
        const Answer answer =
            m_setting.database.run([&](Sql &sql) { return composeAnswer(sql, asked); });
        const QString text = spokenText(answer.content);
        return isLaidOut(answer.content) ? Spoken{text, answer} : Spoken{text};
    } catch (const std::exception &error) {
        qWarning("An answer failed: %s", error.what());
        return {u"Something went wrong while I looked that up."_s};
    }
}

void VoiceCall::say(const Spoken &answer) {
    const int turn = ++m_turn;
    m_playback.stop();
    m_speaker.speak(answer.text, [this, answer, turn](const QByteArray &samples) {
        m_question.clear();
        m_saying = answer.text;
        m_sayingLine = m_setting.calls.addLine(m_call.id, u"agent"_s, second(), m_saying);
        m_socket->send({{u"type"_s, u"agent_response"_s},
                        {u"agent_response_event"_s,
                         QJsonObject{{u"agent_response"_s, m_saying}, {u"event_id"_s, turn}}}});
        if (answer.laidOut)
            QTimer::singleShot(paced(layingOut), this,
                               [this, laidOut = *answer.laidOut] { m_setting.post(laidOut); });
        m_playback.start(samples);
    });
}

void VoiceCall::interrupt() {
    m_thought.stop();
    m_speaker.stop();
    if (!m_playback.isPlaying())
        return;
    const QString heard = upToWord(m_saying, m_playback.heard());
    m_playback.stop();
    m_setting.calls.correctLine(m_sayingLine, heard);
    m_setting.witness.count(u"interruptions"_s);
    const int turn = m_turn;
    ++m_turn; // what still comes of the turn before is not to be played
    m_socket->send({{u"type"_s, u"interruption"_s},
                    {u"interruption_event"_s, QJsonObject{{u"event_id"_s, m_turn}}}});
    m_socket->send({{u"type"_s, u"agent_response_correction"_s},
                    {u"agent_response_correction_event"_s,
                     QJsonObject{{u"original_agent_response"_s, m_saying},
                                 {u"corrected_agent_response"_s, heard},
                                 {u"event_id"_s, turn}}}});
}

void VoiceCall::ping() {
    m_pinged.start();
    m_setting.witness.count(u"pings_sent"_s);
    m_setting.witness.note(u"latency_ms"_s, m_latency);
    m_socket->send(
        {{u"type"_s, u"ping"_s},
         {u"ping_event"_s, QJsonObject{{u"event_id"_s, ++m_ping}, {u"ping_ms"_s, m_latency}}}});
}

void VoiceCall::ended(bool goodbye) {
    m_playback.stop();
    m_speaker.stop();
    m_thought.stop();
    m_pings.stop();
    m_longest.stop();
    if (goodbye)
        m_setting.calls.finish(m_call.id);
    else
        m_setting.calls.drop(m_call.id);
    m_setting.witness.note(u"state"_s, goodbye ? u"ended"_s : u"dropped"_s);
    m_over(this);
}

int VoiceCall::second() const {
    return m_call.secondsSoFar + static_cast<int>(m_since.elapsed() / 1000);
}

} // namespace kiv::sandbox
