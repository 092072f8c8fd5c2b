#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace kiv::sandbox {

/// Hands the sound of one utterance out in pieces, a little ahead of the time at which it is heard,
/// so that an interruption finds little on its way.
class Playback : public QObject {
public:
    using Piece = std::function<void(const QByteArray &samples)>;

    explicit Playback(Piece piece);

    void start(const QByteArray &samples);
    void stop();
    /// Whether the listener still hears something of it.
    bool isPlaying() const;
    /// How much of it has been heard, from 0 to 1.
    double heard() const;

private:
    void sendDue();

    Piece m_piece;
    QByteArray m_samples;
    qsizetype m_sent = 0;
    QElapsedTimer m_since;
    QTimer m_timer;
};

} // namespace kiv::sandbox
