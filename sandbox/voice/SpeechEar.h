#pragma once

#include "voice/Ear.h"

#include <QProcess>
#include <QTimer>

namespace kiv::sandbox {

/// Has the caller's words read by kiv-speech, one process for each call.
class SpeechEar : public QObject, public Ear {
public:
    SpeechEar(const QString &program, const QString &models, EarHandlers handlers);
    ~SpeechEar() override;

    void hear(const QByteArray &samples) override;
    QString name() const override { return QStringLiteral("words"); }

private:
    void send(const QJsonObject &request);
    void sendPending();
    void readLines();
    void fail(const QString &why);

    EarHandlers m_handlers;
    QProcess m_process;
    QByteArray m_pending;
    QTimer m_gap; ///< no sound comes any more: what was said so far is all of it
    bool m_speaking = false;
    bool m_failed = false;
};

} // namespace kiv::sandbox
