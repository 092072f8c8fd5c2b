#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>
#include <QWebSocket>

namespace kiv::test {

/// A caller by hand: opens the socket of a minted call and keeps every message that comes.
class Caller {
public:
    /// `origin` is what a page would send.
    explicit Caller(const QString &origin);

    void dial(const QString &signedUrl, const QString &protocol = QStringLiteral("convai"));
    /// Dials and says what the library says first.
    void begin(const QString &signedUrl, const QJsonObject &extra = {});
    void send(const QJsonObject &message);
    /// A tone (or silence, for no loudness) as the microphone would send it, in pieces.
    void sound(int ms, int loudness);
    /// A file of the microphone's format, at the speed of speech, and a second of silence after it.
    bool play(const QString &wav);
    void answerPings() { m_answersPings = true; }

    /// Waits for a message of the type beyond those that were taken before; empty when none comes.
    QJsonObject next(const QString &type, int patienceMs = 5000);
    int count(const QString &type) const;
    bool waitForClose(int patienceMs = 5000);

    QWebSocket &socket() { return m_socket; }
    const QStringList &unreadable() const { return m_unreadable; }

private:
    void sendSamples(const QByteArray &samples);

    QWebSocket m_socket;
    QList<QJsonObject> m_messages;
    QHash<QString, qsizetype> m_taken; ///< where to look on, by type
    QStringList m_unreadable;
    bool m_answersPings = false;
    bool m_closed = false;
};

} // namespace kiv::test
