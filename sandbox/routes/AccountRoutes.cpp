#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr double tokenLimit = 2'000'000;
constexpr double startCredits = 250;
/// What four characters of conversation cost: a token, and a thousandth of a credit.
constexpr double charactersPerToken = 4;
constexpr double tokensPerCredit = 1000;
constexpr qsizetype largestPicture = 5 * 1024 * 1024;

QJsonObject shownProfile(QJsonObject profile, const Call &call) {
    const QString key = profile.value(u"avatar_url"_s).toString();
    profile.insert(u"avatar_url"_s, fileAddress(call.origin, key));
    return profile;
}

double spentTokens(Services &services, const Call &call) {
    return std::ceil(static_cast<double>(services.chats.characters(call.account)) /
                     charactersPerToken);
}

Reply plan(Services &services, const Call &call) {
    const double spent = spentTokens(services, call);
    return Reply::json(QJsonObject{{u"name"_s, u"Team"_s},
                                   {u"plan_key"_s, u"team"_s},
                                   {u"token_limit"_s, tokenLimit},
                                   {u"spent_tokens"_s, spent},
                                   {u"tokens_left"_s, std::max(0.0, tokenLimit - spent)}});
}

Reply wallet(Services &services, const Call &call) {
    const double balance =
        std::max(0.0, startCredits - spentTokens(services, call) / tokensPerCredit);
    return Reply::json({{u"wallet"_s, QJsonObject{{u"balance_credits"_s, balance},
                                                  {u"available_credits"_s, balance}}}});
}

Reply changePassword(Services &services, const Call &call) {
    const QJsonObject body = call.json();
    const QString next = stringMember(body, "new_password"_L1);
    Accounts::checkNewPassword(next);
    services.attempts.begin(call.account);
    services.accounts.changePassword(call.account, stringMember(body, "current_password"_L1), next);
    services.attempts.succeeded(call.account);
    services.sessions.closeOthers(call.account, call.token);
    return Reply::json(QJsonObject{{u"ok"_s, true}});
}

/// The picture's type by its first bytes: what the sender calls it does not count.
QString pictureType(const QByteArray &content) {
    if (content.startsWith("\x89PNG\r\n\x1a\n"))
        return u"image/png"_s;
    if (content.startsWith("\xff\xd8\xff"))
        return u"image/jpeg"_s;
    if (content.startsWith("GIF8"))
        return u"image/gif"_s;
    if (content.startsWith("RIFF") && content.mid(8, 4) == "WEBP")
        return u"image/webp"_s;
    throw Refusal(400, u"Send a PNG, JPEG, GIF or WebP picture."_s, u"bad_picture"_s);
}

Reply uploadAvatar(Services &services, const Call &call) {
    if (call.request.files.size() != 1)
        throw Refusal(400, u"Send one picture."_s, u"no_files"_s);
    const httplib::MultipartFormData &part = call.request.files.begin()->second;
    const QByteArray content = QByteArray::fromStdString(part.content);
    if (content.size() > largestPicture)
        throw Refusal(413, u"The picture is larger than 5 MiB."_s, u"too_large"_s);
    const StoredFile file = services.files.store(
        call.account, QString::fromStdString(part.filename), pictureType(content), content);
    services.accounts.setAvatar(call.account, file.key);
    return Reply::json(QJsonObject{{u"avatar_url"_s, fileAddress(call.origin, file.key)}});
}

} // namespace

void addAccountRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.get("/api/v2/user/profile", Access::SignedIn, [&services](const Call &call) {
        return Reply::json(shownProfile(services.accounts.profile(call.account), call));
    });
    router.patch("/api/v2/user/profile", Access::SignedIn, [&services](const Call &call) {
        const QJsonObject changes = checkedProfile(call.json());
        return Reply::json(
            shownProfile(services.accounts.patchProfile(call.account, changes), call));
    });
    router.get("/api/v2/user/plan", Access::SignedIn,
               [&services](const Call &call) { return plan(services, call); });
    router.get("/api/v2/user/wallet", Access::SignedIn,
               [&services](const Call &call) { return wallet(services, call); });
    router.post("/api/v2/user/password", Access::SignedIn,
                [&services](const Call &call) { return changePassword(services, call); });
    router.upload("/api/v2/user/avatar",
                  [&services](const Call &call) { return uploadAvatar(services, call); });
}

} // namespace kiv::sandbox
