#include "soak/Server.h"

#include "soak/Waiting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>

#include <csignal>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 20s;

} // namespace

Server::Server(const QString &dataDir) : m_dataDir(dataDir) {
    m_process.setProgram(QStringLiteral(KIV_SANDBOX));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&m_process, &QProcess::finished, &m_process,
                     [this] { m_hasCrashed = m_hasCrashed || !m_isKilled; });
    start();
    waitUntil(patience, [this] { return m_process.canReadLine(); });
    const QJsonObject greeting = QJsonDocument::fromJson(m_process.readLine()).object();
    m_url = QUrl(greeting.value(u"url"_s).toString());
    if (!m_url.isValid() || m_url.port() <= 0)
        qFatal("The server does not start");
}

Server::~Server() {
    thaw();
    kill();
    m_process.waitForFinished();
}

/// Answers come faster than in life, so that a run has more of them.
QStringList Server::arguments() const {
    return {
        u"--data-dir"_s,     m_dataDir, u"--control"_s, u"--port"_s, QString::number(m_url.port(0)),
        u"--answer-speed"_s, u"0.4"_s};
}

void Server::setFaults(const QStringList &faults) {
    QNetworkRequest request(m_url.resolved(QUrl(u"/_control/faults"_s)));
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    request.setRawHeader("Origin", m_url.toEncoded());
    request.setTransferTimeout(1000);
    const QJsonObject body{{u"faults"_s, QJsonArray::fromStringList(faults)}};
    QNetworkReply *reply = m_control.post(request, QJsonDocument(body).toJson());
    QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
}

void Server::kill() {
    if (!isUp())
        return;
    m_isKilled = true;
    m_process.kill();
}

void Server::start() {
    if (m_process.state() != QProcess::NotRunning)
        return;
    m_isKilled = false;
    m_process.setArguments(arguments());
    m_process.start();
}

void Server::freeze() {
    if (isUp())
        ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
}

void Server::thaw() {
    if (isUp())
        ::kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
}

bool Server::heal() {
    thaw();
    // It has to say twice that there are none: what was ordered while it was frozen may be taken in
    // only after its first answer.
    int timesNone = 0;
    return waitUntil(patience, [&] {
        start();
        const std::unique_ptr<QNetworkReply> reply(
            m_control.get(QNetworkRequest(m_url.resolved(QUrl(u"/_control/faults"_s)))));
        waitUntil(500ms, [&] { return reply->isFinished(); });
        const QJsonObject said = QJsonDocument::fromJson(reply->readAll()).object();
        if (said.contains(u"faults"_s) && said.value(u"faults"_s).toArray().isEmpty()) {
            ++timesNone;
            letRun(200ms);
        } else {
            timesNone = 0;
            setFaults({});
        }
        return timesNone == 2;
    });
}

} // namespace kiv::soak
