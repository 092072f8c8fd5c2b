#pragma once

#include "base/Clock.h"

#include <QObject>
#include <QProcess>

namespace kiv::voice {

/// The recogniser's program as a child. It is started when something is sent to it, and says by one
/// signal when it fails; what is sent after that starts another.
class SpeechProcess : public QObject {
    Q_OBJECT
public:
    struct Program {
        QString path;
        /// The folder of the models.
        QString models;
        QStringList moreArguments;
    };
    /// The program of this installation.
    static Program installed();

    SpeechProcess(Clock &clock, Program program);
    ~SpeechProcess() override;

    /// Whether program and models are there.
    bool available() const;
    /// 0 while it does not run.
    qint64 processId() const { return m_process ? m_process->processId() : 0; }

    /// Starts the program, which takes a moment; what is sent meanwhile is not lost.
    void start();
    void sendSound(const QByteArray &samples);
    /// Has what was said finished; `ended` follows.
    void sendEnd();
    /// Has what was said forgotten.
    void sendCancel();
    /// Ends the program; nothing is heard of it any more.
    void stop();

Q_SIGNALS:
    void interim(const QString &text);
    void final(const QString &text);
    void ended();
    void failed(const QString &why);

private:
    void send(const QByteArray &line);
    void readLines();
    void readLine(const QByteArray &line);
    void failAsStopped();
    void fail(const QString &why);

    Clock &m_clock;
    Program m_program;
    QProcess *m_process = nullptr; ///< a child of this
    Clock::Timer m_patience;
};

} // namespace kiv::voice
