#pragma once

#include "StoreFixture.h"

namespace kiv::test {

using namespace Qt::StringLiterals;

inline const QString profileGet = u"GET api/v2/user/profile"_s;
inline const QString profilePatch = u"PATCH api/v2/user/profile"_s;
inline const QString planGet = u"GET api/v2/user/plan"_s;
inline const QString walletGet = u"GET api/v2/user/wallet"_s;
inline const QString passwordPost = u"POST api/v2/user/password"_s;
inline const QString avatarPost = u"POST api/v2/user/avatar"_s;

/// A signed-in person on their account pages.
class AccountFixture : public StoreFixture {
public:
    AccountFixture() {
        backend.answer(profileGet, R"({"email":"ada@example.org","full_name":"Ada Byron",
            "handle":"ada","jobTitle":"Engineer","preferred_sectors":["Energy"],
            "notification_email":true,"goals_md":"Ship"})");
        backend.answer(profilePatch, "{}");
        backend.answer(planGet, R"({"name":"Team","token_limit":1000,"spent_tokens":250})");
        backend.answer(walletGet, R"({"wallet":{"balance_credits":12.5}})");
    }
    bool open() {
        if (!signIn())
            return false;
        store->layout()->openAccount();
        return soon([this] {
            return account().profileLoad() == store::LoadState::Ready &&
                   account().budgetLoad() == store::LoadState::Ready;
        });
    }
    store::AccountRoom &account() { return *store->account(); }
    store::AccountField &field(const QString &key) { return *account().field(key); }
    QList<QJsonObject> patches() {
        QList<QJsonObject> bodies;
        for (const auto &request : backend.requests(profilePatch))
            bodies.append(request.body);
        return bodies;
    }
};

} // namespace kiv::test
