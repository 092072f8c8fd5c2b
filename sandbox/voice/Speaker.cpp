#include "voice/Speaker.h"

#include "answers/Answer.h"

#include <QStandardPaths>
#include <QTimer>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr int wordsPerMinute = 165;
constexpr qsizetype headerBytes = 44; ///< of the WAV that comes out
constexpr qsizetype rateOffset = 24;
constexpr int patienceMs = 10'000;
constexpr int endPatienceMs = 500;

QString voiceFor(const QString &text) {
    return isRussian(text) ? u"ru"_s : u"en-gb"_s;
}

QByteArray samplesOf(const QByteArray &wav) {
    if (wav.size() <= headerBytes ||
        qFromLittleEndian<quint32>(wav.constData() + rateOffset) != speakerRate) {
        qWarning("The voice gave nothing that can be played.");
        return {};
    }
    return wav.sliced(headerBytes);
}

} // namespace

QString Speaker::program() {
    return QStandardPaths::findExecutable(u"espeak-ng"_s);
}

Speaker::~Speaker() {
    stop();
}

void Speaker::speak(const QString &text, Spoken spoken) {
    stop();
    m_process = new QProcess(this);
    const auto done = [this, spoken = std::move(spoken)] {
        const QByteArray samples = samplesOf(m_process->readAllStandardOutput());
        stop();
        spoken(samples);
    };
    connect(m_process, &QProcess::finished, this, done);
    connect(
        m_process, &QProcess::errorOccurred, this,
        [done](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                done();
        },
        Qt::QueuedConnection);
    QTimer::singleShot(patienceMs, m_process, &QProcess::kill);
    m_process->start(program(), {u"-v"_s, voiceFor(text), u"-s"_s, QString::number(wordsPerMinute),
                                 u"--stdin"_s, u"--stdout"_s});
    m_process->write(text.toUtf8());
    m_process->closeWriteChannel();
}

void Speaker::stop() {
    if (m_process) {
        m_process->disconnect(this);
        if (m_process->state() != QProcess::NotRunning) {
            m_process->kill();
            m_process->waitForFinished(endPatienceMs);
        }
        m_process->deleteLater();
        m_process = nullptr;
    }
}

} // namespace kiv::sandbox
