#include "app/EmbeddedServer.h"

#include "base/BaseUrl.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace kiv::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto startPatience = 20s;
constexpr int farewellMs = 2000;

} // namespace

EmbeddedServer::EmbeddedServer(Clock &clock, const QString &program, const QStringList &arguments)
    : m_clock(clock), m_arguments(arguments) {
    m_process.setProgram(program);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

EmbeddedServer::~EmbeddedServer() {
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(farewellMs)) {
        m_process.kill();
        m_process.waitForFinished(farewellMs);
    }
}

QCoro::Task<EmbeddedServer::Greeting> EmbeddedServer::start(Cancel cancel) {
    if (m_process.program().isEmpty())
        throw ProcessError("The embedded workspace is not installed.");
    if (m_process.state() != QProcess::NotRunning)
        m_process.kill();
    co_await untilEnded(&m_process, cancel);
    // The port of before, once: somebody else may have taken it.
    const int port = std::exchange(m_port, 0);
    m_process.setArguments(
        port == 0 ? m_arguments : m_arguments + QStringList{u"--port"_s, QString::number(port)});
    const QByteArray line =
        co_await startAndReadLine(&m_process, &m_clock, startPatience, std::move(cancel));
    const QJsonObject greeting = QJsonDocument::fromJson(line).object();
    const QString url = greeting.value(u"url"_s).toString();
    if (url.isEmpty())
        throw ProcessError("The embedded workspace did not say where it listens.");
    const QJsonObject sample = greeting.value(u"sample"_s).toObject();
    Greeting result;
    result.url = parseBaseUrl(url);
    m_port = result.url.port();
    result.sample = {sample.value(u"email"_s).toString(), sample.value(u"password"_s).toString()};
    co_return result;
}

} // namespace kiv::app
