#include "net/KivAPI.h"

namespace kiv::net::KivAPI {

using namespace Qt::StringLiterals;

QCoro::Task<MeUser> currentUser(APIClient *client, Cancel cancel) {
    return client->get<MeUser>(u"api/v2/auth/me"_s, {}, std::move(cancel));
}

QCoro::Task<AuthResult> login(APIClient *client, QString email, QString password, Cancel cancel) {
    const QJsonObject body{{u"email"_s, email}, {u"password"_s, password}};
    const QByteArray reply = co_await client->postRaw(u"api/v2/auth/login"_s, body, cancel);
    co_return decodeBody<AuthResult>(reply);
}

QCoro::Task<AuthResult> signup(APIClient *client, QString email, QString password, QString timeZone,
                               Cancel cancel) {
    const QJsonObject body{
        {u"email"_s, email}, {u"password"_s, password}, {u"time_zone"_s, timeZone}};
    const QByteArray reply = co_await client->postRaw(u"api/v2/auth/signup"_s, body, cancel);
    co_return decodeBody<AuthResult>(reply);
}

QCoro::Task<void> logout(APIClient *client, Cancel cancel) {
    co_await client->postRaw(u"api/v2/auth/logout"_s, QJsonObject(), cancel);
}

void rum(APIClient *client, QString name, QJsonObject context) {
    context.insert(u"surface"_s, u"kiv-mac"_s);
    client->postAndForget(u"api/v2/rum"_s, {{u"name"_s, name},
                                            {u"value"_s, 1},
                                            {u"path"_s, u"/kiv"_s},
                                            {u"ts"_s, client->clock().now().toMSecsSinceEpoch()},
                                            {u"ctx"_s, context}});
}

} // namespace kiv::net::KivAPI
