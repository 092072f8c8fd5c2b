#include "Caller.h"

#include <QFile>
#include <QJsonDocument>
#include <QWebSocketHandshakeOptions>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kiv::test {

namespace {

constexpr int rate = 16'000;
constexpr int pieceMs = 50;
constexpr qint64 wavHeader = 44;

} // namespace

Caller::Caller(const QString &origin) : m_socket(origin) {
    QObject::connect(
        &m_socket, &QWebSocket::textMessageReceived, &m_socket, [this](const QString &text) {
            const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
            if (message.isEmpty()) {
                m_unreadable.append(text);
                return;
            }
            m_messages.append(message);
            if (m_answersPings && message[u"type"_s] == u"ping"_s)
                send({{u"type"_s, u"pong"_s},
                      {u"event_id"_s, message[u"ping_event"_s][u"event_id"_s]}});
        });
    QObject::connect(&m_socket, &QWebSocket::disconnected, &m_socket, [this] { m_closed = true; });
}

void Caller::dial(const QString &signedUrl, const QString &protocol) {
    QWebSocketHandshakeOptions options;
    if (!protocol.isEmpty())
        options.setSubprotocols({protocol});
    m_socket.open(QUrl(signedUrl), options);
}

void Caller::begin(const QString &signedUrl, const QJsonObject &extra) {
    QObject::connect(&m_socket, &QWebSocket::connected, &m_socket, [this, extra] {
        send({{u"type"_s, u"conversation_initiation_client_data"_s},
              {u"custom_llm_extra_body"_s, extra}});
    });
    dial(signedUrl);
}

void Caller::send(const QJsonObject &message) {
    m_socket.sendTextMessage(
        QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
}

void Caller::sound(int ms, int loudness) {
    for (int sent = 0; sent < ms; sent += pieceMs) {
        QByteArray samples;
        for (int i = 0; i < rate * pieceMs / 1000; ++i) {
            const auto sample = static_cast<qint16>(loudness * std::sin(i * 0.2));
            samples.append(reinterpret_cast<const char *>(&sample), sizeof sample);
        }
        sendSamples(samples);
    }
}

bool Caller::play(const QString &wav) {
    QFile file(wav);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(wavHeader))
        return false;
    while (!file.atEnd()) {
        sendSamples(file.read(rate * pieceMs / 1000 * 2));
        QTest::qWait(pieceMs);
    }
    for (int i = 0; i < 1000 / pieceMs; ++i) {
        sound(pieceMs, 0);
        QTest::qWait(pieceMs);
    }
    return true;
}

void Caller::sendSamples(const QByteArray &samples) {
    send({{u"user_audio_chunk"_s, QString::fromLatin1(samples.toBase64())}});
}

QJsonObject Caller::next(const QString &type, int patienceMs) {
    QJsonObject found;
    const bool came = QTest::qWaitFor(
        [&] {
            for (qsizetype &at = m_taken[type]; at < m_messages.size(); ++at) {
                if (m_messages.at(at)[u"type"_s] == type) {
                    found = m_messages.at(at++);
                    return true;
                }
            }
            return false;
        },
        patienceMs);
    return came ? found : QJsonObject();
}

int Caller::count(const QString &type) const {
    return static_cast<int>(std::ranges::count_if(
        m_messages, [&](const QJsonObject &message) { return message[u"type"_s] == type; }));
}

bool Caller::waitForClose(int patienceMs) {
    return QTest::qWaitFor([this] { return m_closed; }, patienceMs);
}

} // namespace kiv::test
