#include "base/Text.h"
#include "net/AvatarReply.h"
#include "net/KivAPI.h"

namespace kiv::net::KivAPI {

using namespace Qt::StringLiterals;

namespace {
constexpr int shortestPassword = 8;
}

QCoro::Task<UserProfile> profile(APIClient *client, Cancel cancel) {
    return client->get<UserProfile>(u"api/v2/user/profile"_s, {}, std::move(cancel));
}

QCoro::Task<UserProfile> patchProfile(APIClient *client, QJsonObject changes, Cancel cancel) {
    const QByteArray reply = co_await client->patch(u"api/v2/user/profile"_s, changes, cancel);
    co_return decodeBody<UserProfile>(reply);
}

QCoro::Task<PlanInfo> plan(APIClient *client, Cancel cancel) {
    return client->get<PlanInfo>(u"api/v2/user/plan"_s, {}, std::move(cancel));
}

QCoro::Task<WalletInfo> wallet(APIClient *client, Cancel cancel) {
    return client->get<WalletInfo>(u"api/v2/user/wallet"_s, {}, std::move(cancel));
}

QCoro::Task<void> changePassword(APIClient *client, QString current, QString changed,
                                 QString confirmed, Cancel cancel) {
    if (changed != confirmed)
        throw PasswordError();
    if (characterCount(changed) < shortestPassword)
        throw APIError::server(400, u"Password must be at least 8 characters."_s);
    QJsonObject body{{u"new_password"_s, changed}};
    if (!current.isEmpty())
        body.insert(u"current_password"_s, current);
    co_await client->postRaw(u"api/v2/user/password"_s, body, cancel);
}

QCoro::Task<std::optional<QString>> uploadAvatar(APIClient *client, MultipartFile picture,
                                                 Cancel cancel) {
    const QList<MultipartFile> files{std::move(picture)};
    const QByteArray reply =
        co_await client->postMultipart(u"api/v2/user/avatar"_s, files, UploadProgress(), cancel);
    co_return avatarAddress(reply);
}

} // namespace kiv::net::KivAPI
