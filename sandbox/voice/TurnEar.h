#pragma once

#include "voice/Ear.h"

#include <QObject>

namespace kiv::sandbox {

/// Knows no words: tells from loudness alone when the caller speaks and when it is the agent's
/// turn.
class TurnEar : public QObject, public Ear {
public:
    explicit TurnEar(EarHandlers handlers) : m_handlers(std::move(handlers)) {}

    void hear(const QByteArray &samples) override;
    QString name() const override { return QStringLiteral("turns"); }

private:
    void hearFrame(const char *frame);
    void later(std::function<void()> call);

    EarHandlers m_handlers;
    QByteArray m_pending; ///< less than a frame
    double m_floor = 0;   ///< loudness of the room
    int m_loud = 0;       ///< ms of speech in this turn
    int m_quiet = 0;      ///< ms of silence since the last of it
    bool m_speaking = false;
};

} // namespace kiv::sandbox
