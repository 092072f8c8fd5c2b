#include "voice/SpeechEar.h"

#include "Http.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype pieceBytes = callerRate / 10 * bytesPerSample;
constexpr qint64 mostUnread = 8 * 1024 * 1024; ///< a recogniser that hangs is given up
constexpr auto gap = 1s;
constexpr int patienceMs = 500;

} // namespace

SpeechEar::SpeechEar(const QString &program, const QString &models, EarHandlers handlers)
    : m_handlers(std::move(handlers)) {
    m_gap.setSingleShot(true);
    m_gap.setInterval(gap);
    connect(&m_gap, &QTimer::timeout, this, [this] {
        sendPending();
        send({{u"end"_s, true}});
    });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &SpeechEar::readLines);
    connect(&m_process, &QProcess::errorOccurred, this, [this] { fail(m_process.errorString()); });
    connect(&m_process, &QProcess::finished, this,
            [this] { fail(u"the recogniser ended by itself"_s); });
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(program, {u"--models"_s, models});
}

SpeechEar::~SpeechEar() {
    m_process.disconnect(this);
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patienceMs)) {
        m_process.kill();
        m_process.waitForFinished(patienceMs);
    }
}

void SpeechEar::hear(const QByteArray &samples) {
    m_pending += samples;
    m_gap.start();
    if (m_pending.size() >= pieceBytes)
        sendPending();
}

void SpeechEar::sendPending() {
    if (!m_pending.isEmpty()) {
        send({{u"audio"_s, QString::fromLatin1(m_pending.toBase64())}});
        m_pending.clear();
    }
}

void SpeechEar::send(const QJsonObject &request) {
    if (m_failed)
        return;
    if (m_process.bytesToWrite() > mostUnread) {
        QMetaObject::invokeMethod(
            this, [this] { fail(u"the recogniser does not keep up"_s); }, Qt::QueuedConnection);
        return;
    }
    m_process.write(compact(request) + '\n');
}

void SpeechEar::readLines() {
    while (!m_failed && m_process.canReadLine()) {
        const QJsonObject line = QJsonDocument::fromJson(m_process.readLine()).object();
        if (line.contains(u"error"_s)) {
            fail(line[u"error"_s].toString());
        } else if (!line[u"interim"_s].toString().isEmpty() && !m_speaking) {
            m_speaking = true;
            m_handlers.began();
        } else if (line.contains(u"final"_s)) {
            m_speaking = false;
            m_handlers.said(line[u"final"_s].toString().trimmed());
        }
    }
}

void SpeechEar::fail(const QString &why) {
    if (!m_failed) {
        m_failed = true;
        m_handlers.failed(why);
    }
}

} // namespace kiv::sandbox
