#include "Router.h"
#include "Routes.h"
#include "Services.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// A year, as long as the stored session.
const QByteArray cookieRules = "; Path=/; HttpOnly; SameSite=Lax; Max-Age=";

QJsonObject userObject(Services &services, const Call &call, const QString &account) {
    const QJsonObject profile = services.accounts.profile(account);
    const QString avatar = profile.value(u"avatar_url"_s).toString();
    const QJsonValue name = profile.value(u"full_name"_s);
    return {{u"id"_s, account},
            {u"email"_s, profile.value(u"email"_s)},
            {u"name"_s, name},
            {u"full_name"_s, name},
            {u"avatar_url"_s, fileAddress(call.origin, avatar)}};
}

Reply signedIn(Services &services, const Call &call, const QString &account) {
    Reply reply = Reply::json({{u"user"_s, userObject(services, call, account)}});
    reply.headers.append({"Set-Cookie", "kiv_session=" + services.sessions.open(account) +
                                            cookieRules + QByteArray::number(365 * 24 * 3600)});
    return reply;
}

Reply login(Services &services, const Call &call) {
    const QJsonObject body = call.json();
    const QString email = stringMember(body, "email"_L1);
    const QString address = normalisedEmail(email);
    services.attempts.begin(address);
    const QString password = stringMember(body, "password"_L1);
    QString account = services.sample.enter(email, password);
    if (account.isEmpty())
        account = services.accounts.authenticate(email, password);
    services.attempts.succeeded(address);
    return signedIn(services, call, account);
}

Reply signup(Services &services, const Call &call) {
    const QJsonObject body = call.json();
    const QString email = stringMember(body, "email"_L1);
    services.sample.ensure(email);
    QJsonObject profile;
    const QString zone = stringMember(body, "time_zone"_L1);
    if (QTimeZone(zone.toUtf8()).isValid()) { // a zone unknown here is no reason to refuse
        profile.insert(u"time_zone"_s, zone);
    }
    return signedIn(services, call,
                    services.accounts.create(email, stringMember(body, "password"_L1), profile));
}

Reply logout(Services &services, const Call &call) {
    services.sessions.close(call.token);
    Reply reply = Reply::json(QJsonObject{{u"ok"_s, true}});
    reply.headers.append({"Set-Cookie", "kiv_session=" + cookieRules + "0"});
    return reply;
}

} // namespace

void addAuthRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.get("/api/v2/auth/me", Access::SignedIn, [&services](const Call &call) {
        return Reply::json(userObject(services, call, call.account));
    });
    router.post("/api/v2/auth/login", Access::Everybody,
                [&services](const Call &call) { return login(services, call); });
    router.post("/api/v2/auth/signup", Access::Everybody,
                [&services](const Call &call) { return signup(services, call); });
    router.post("/api/v2/auth/logout", Access::Everybody,
                [&services](const Call &call) { return logout(services, call); });
}

} // namespace kiv::sandbox
