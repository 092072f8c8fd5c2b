#include "voice/SpeechProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace kiv::voice {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto loadPatience = 30s;
constexpr int killPatienceMs = 2000;
constexpr qint64 longestLine = 1 << 20;
/// Of what is sent, in bytes: three quarters of a minute, more than comes while it loads.
constexpr qint64 mostUnread = 2 << 20;

QByteArray littleEndian(const QByteArray &samples) {
    if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
        return samples;
    QByteArray result = samples;
    for (qsizetype at = 1; at < result.size(); at += 2)
        std::swap(result[at - 1], result[at]);
    return result;
}

} // namespace

SpeechProcess::Program SpeechProcess::installed() {
    const QDir place(QCoreApplication::applicationDirPath());
    return {place.filePath(u"kiv-speech"_s), place.filePath(u"../share/kiv/speech"_s), {}};
}

SpeechProcess::SpeechProcess(Clock &clock, Program program)
    : m_clock(clock), m_program(std::move(program)) {}

SpeechProcess::~SpeechProcess() {
    stop();
}

bool SpeechProcess::available() const {
    return QFileInfo(m_program.path).isExecutable() && QFileInfo(m_program.models).isDir();
}

void SpeechProcess::start() {
    if (m_process)
        return;
    m_process = new QProcess(this);
    m_process->setProgram(m_program.path);
    m_process->setArguments(QStringList{u"--models"_s, m_program.models} + m_program.moreArguments);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &SpeechProcess::readLines);
    // Queued: a program that cannot be started says so within start().
    const auto gone = [this, process = m_process] {
        if (process == m_process && process->state() == QProcess::NotRunning)
            failAsStopped();
    };
    connect(m_process, &QProcess::finished, this, gone, Qt::QueuedConnection);
    connect(m_process, &QProcess::errorOccurred, this, gone, Qt::QueuedConnection);
    m_patience = m_clock.after(loadPatience, [this] {
        fail(tr("Speech recognition has not started in time. Start it again."));
    });
    m_process->start();
}

void SpeechProcess::sendSound(const QByteArray &samples) {
    send("{\"audio\":\"" + littleEndian(samples).toBase64() + "\"}\n");
}

void SpeechProcess::sendEnd() {
    send("{\"end\":true}\n");
}

void SpeechProcess::sendCancel() {
    send("{\"cancel\":true}\n");
}

void SpeechProcess::send(const QByteArray &line) {
    start();
    if (m_process->bytesToWrite() <= mostUnread) {
        m_process->write(line);
        return;
    }
    const auto hangs = [this, process = m_process] {
        if (process == m_process)
            failAsStopped();
    };
    QMetaObject::invokeMethod(this, hangs, Qt::QueuedConnection); // not to whoever is sending
}

void SpeechProcess::readLines() {
    // A line may end the process, and with it the reading.
    while (m_process && m_process->canReadLine())
        readLine(m_process->readLine());
    if (m_process && m_process->bytesAvailable() > longestLine)
        fail(tr("Speech recognition gave an answer that makes no sense."));
}

void SpeechProcess::readLine(const QByteArray &line) {
    const QJsonDocument document = QJsonDocument::fromJson(line);
    const QJsonObject object = document.object();
    if (!document.isObject())
        fail(tr("Speech recognition gave an answer that makes no sense."));
    else if (object.contains("interim"_L1))
        Q_EMIT interim(object.value("interim"_L1).toString());
    else if (object.contains("final"_L1))
        Q_EMIT final(object.value("final"_L1).toString());
    else if (object.contains("ended"_L1))
        Q_EMIT ended();
    else if (object.contains("ready"_L1))
        m_patience.stop();
    else if (object.contains("error"_L1))
        fail(object.value("error"_L1).toString());
}

void SpeechProcess::failAsStopped() {
    fail(tr("Speech recognition has stopped unexpectedly. Start it again."));
}

void SpeechProcess::fail(const QString &why) {
    stop();
    Q_EMIT failed(why);
}

void SpeechProcess::stop() {
    m_patience.stop();
    QProcess *process = std::exchange(m_process, nullptr);
    if (!process)
        return;
    // This may be within a signal of it. It has nothing to lose: all it holds was meant for this.
    process->disconnect(this);
    process->kill();
    process->waitForFinished(killPatienceMs);
    process->deleteLater();
}

} // namespace kiv::voice
