#include "SandboxProcess.h"

#include <QJsonDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kiv::test {

namespace {

constexpr int patience = 10'000;

} // namespace

SandboxProcess::SandboxProcess(const QString &dataDir, const QStringList &arguments,
                               const QString &program) {
    QStringList all{u"--data-dir"_s, dataDir, u"--control"_s};
    if (!arguments.contains(u"--answer-speed"_s))
        all += {u"--answer-speed"_s, u"0"_s};
    m_process.start(program, all + arguments);
    while (!m_process.canReadLine() && m_process.waitForReadyRead(patience)) {
    }
    m_first = QJsonDocument::fromJson(m_process.readLine()).object();
}

SandboxProcess::~SandboxProcess() {
    if (m_process.state() != QProcess::NotRunning && !closeInput()) {
        m_process.kill();
        m_process.waitForFinished(patience);
    }
}

int SandboxProcess::port() const {
    return QUrl(url()).port();
}

bool SandboxProcess::closeInput() {
    m_process.closeWriteChannel();
    return m_process.waitForFinished(patience) && m_process.exitStatus() == QProcess::NormalExit &&
           m_process.exitCode() == 0;
}

} // namespace kiv::test
