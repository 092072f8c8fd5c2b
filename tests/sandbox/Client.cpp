#include "Client.h"

using namespace Qt::StringLiterals;

namespace kiv::test {

namespace {

const char *const loopback = "127.0.0.1";

std::string bytes(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

Client::Client(int port)
    : headers{{"Origin", "http://127.0.0.1:" + std::to_string(port)}},
      m_port(port),
      m_client(loopback, port) {
    m_client.set_read_timeout(10);
}

Response Client::take(const httplib::Result &result) {
    if (!result)
        return {};
    return {result->status, QByteArray::fromStdString(result->body),
            QByteArray::fromStdString(result->get_header_value("Set-Cookie"))};
}

Response Client::get(const QString &path) {
    return take(m_client.Get(path.toStdString(), headers));
}

Response Client::post(const QString &path, const QJsonObject &body) {
    return take(m_client.Post(path.toStdString(), headers, bytes(body), "application/json"));
}

Response Client::patch(const QString &path, const QJsonObject &body) {
    return take(m_client.Patch(path.toStdString(), headers, bytes(body), "application/json"));
}

Response Client::postRaw(const QString &path, const QByteArray &body, const QByteArray &type) {
    return take(m_client.Post(path.toStdString(), headers, body.toStdString(), type.toStdString()));
}

Response Client::upload(const QString &path,
                        const QList<std::tuple<QString, QString, QByteArray>> &files) {
    httplib::MultipartFormDataItems items;
    for (const auto &[name, mime, content] : files)
        items.push_back({"file", content.toStdString(), name.toStdString(), mime.toStdString()});
    return take(m_client.Post(path.toStdString(), headers, items));
}

QJsonObject Client::signUp(const QString &email) {
    const Response response = post(
        u"/api/v2/auth/signup"_s,
        {{u"email"_s, email}, {u"password"_s, u"lantern-42"_s}, {u"time_zone"_s, u"Etc/UTC"_s}});
    keepSession(response);
    return response.json().value(u"user"_s).toObject();
}

QString Client::kivChat() {
    const QString kiv = get(u"/api/v2/orchestrator"_s).json().value(u"agent_id"_s).toString();
    return kiv.isEmpty() ? QString() : u"/api/v2/custom-agents/%1/chat"_s.arg(kiv);
}

QString Client::agentChat(const QString &name) {
    const QJsonArray agents = get(u"/api/v2/custom-agents"_s).json().value(u"agents"_s).toArray();
    for (const QJsonValue &agent : agents) {
        if (agent[u"name"_s] == name)
            return u"/api/v2/custom-agents/%1/chat"_s.arg(agent[u"id"_s].toString());
    }
    return {};
}

void Client::keepSession(const Response &response) {
    headers.erase("Cookie");
    headers.emplace("Cookie", response.cookie.split(';').constFirst().toStdString());
}

} // namespace kiv::test
