#include "app/EmbeddedServer.h"

#include "base/BaseUrl.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace kiv::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto startPatience = 20s;
constexpr int farewellMs = 2000;
/// What the server's own lines begin with.
constexpr auto serverPrefix = "kiv-sandbox: "_L1;

/// Reads the server's first line. Throws ProcessError when it names no address.
EmbeddedServer::Greeting greetingOf(const QByteArray &line) {
    const QJsonObject greeting = QJsonDocument::fromJson(line).object();
    const QString url = greeting.value(u"url"_s).toString();
    if (url.isEmpty())
        throw ProcessError("The embedded workspace did not say where it listens.");
    const QJsonObject sample = greeting.value(u"sample"_s).toObject();
    return {.url = parseBaseUrl(url),
            .sample = {sample.value(u"email"_s).toString(), sample.value(u"password"_s).toString()},
            .setAside = greeting.value(u"setAside"_s).toString()};
}

} // namespace

EmbeddedServer::EmbeddedServer(Clock &clock, const QString &program, const QStringList &arguments)
    : m_clock(clock), m_arguments(arguments) {
    m_process.setProgram(program);
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &m_process, [this] { hear(); });
}

EmbeddedServer::~EmbeddedServer() {
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(farewellMs)) {
        m_process.kill();
        m_process.waitForFinished(farewellMs);
    }
    hear();
}

void EmbeddedServer::hear() {
    m_process.setReadChannel(QProcess::StandardError);
    while (m_process.canReadLine()) {
        QString line = QString::fromUtf8(m_process.readLine()).trimmed();
        qWarning("kiv-sandbox: %s", qUtf8Printable(line.remove(serverPrefix)));
        m_complaint = line;
    }
    m_process.setReadChannel(QProcess::StandardOutput);
}

QCoro::Task<EmbeddedServer::Greeting> EmbeddedServer::start(Cancel cancel) {
    if (m_process.program().isEmpty())
        throw ProcessError("The embedded workspace is not installed.");
    if (m_process.state() != QProcess::NotRunning)
        m_process.kill();
    co_await untilEnded(&m_process, cancel);
    m_complaint.clear();
    // The port of before, once: somebody else may have taken it.
    const int port = std::exchange(m_port, 0);
    m_process.setArguments(
        port == 0 ? m_arguments : m_arguments + QStringList{u"--port"_s, QString::number(port)});
    QByteArray line;
    try {
        line = co_await startAndReadLine(&m_process, &m_clock, startPatience, std::move(cancel));
    } catch (const ProcessError &) {
        hear();
        if (m_complaint.isEmpty())
            throw;
        throw ProcessError(m_complaint.toStdString());
    }
    Greeting greeting = greetingOf(line);
    m_port = greeting.url.port();
    co_return greeting;
}

} // namespace kiv::app
