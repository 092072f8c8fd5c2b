#include "soak/Witness.h"

#include "sandbox/Client.h"
#include "soak/Waiting.h"

#include <QtConcurrentRun>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using test::Client;
using test::Response;

namespace {

constexpr auto patience = 20s;

/// Asks on another thread.
template <typename Ask>
auto inBackground(Ask ask) {
    auto asked = QtConcurrent::run(std::move(ask));
    waitUntil(patience, [&] { return asked.isFinished(); });
    return asked.result();
}

} // namespace

bool Witness::signUp(const QString &email, const QString &password) {
    return inBackground([port = m_port, email, password] {
        return Client(port)
                   .post(u"/api/v2/auth/signup"_s, {{u"email"_s, email},
                                                    {u"password"_s, password},
                                                    {u"time_zone"_s, u"Etc/UTC"_s}})
                   .status == 200;
    });
}

QJsonObject Witness::get(const QString &email, const QString &password, const QString &path) {
    const auto [body, kept] =
        inBackground([port = m_port, cookie = m_cookies.value(email), email, password, path] {
            Client client(port);
            client.headers.emplace("Cookie", cookie);
            Response response = client.get(path);
            std::string current = cookie;
            if (response.status == 401) {
                const Response login = client.post(
                    u"/api/v2/auth/login"_s, {{u"email"_s, email}, {u"password"_s, password}});
                client.keepSession(login);
                current = client.headers.find("Cookie")->second;
                response = client.get(path);
            }
            return std::pair(response.status == 200 ? response.json() : QJsonObject(), current);
        });
    m_cookies.insert(email, kept);
    return body;
}

std::optional<QList<Stored>> Witness::rows(const QString &email, const QString &password,
                                           const QString &path) {
    const QJsonObject page = get(email, password, u'/' + path + u"?limit=200"_s);
    if (!page.contains(u"messages"_s))
        return std::nullopt;
    QList<Stored> rows;
    for (const QJsonValue row : page.value(u"messages"_s).toArray()) {
        rows.append({.id = row[u"id"_s].toInteger(),
                     .isOurs = row[u"role"_s] == u"user"_s,
                     .text = row[u"content"_s].toString(),
                     .files = row[u"metadata"_s][u"attachments"_s].toArray().size()});
    }
    return rows;
}

QJsonObject Witness::profile(const QString &email, const QString &password) {
    return get(email, password, u"/api/v2/user/profile"_s);
}

} // namespace kiv::soak
