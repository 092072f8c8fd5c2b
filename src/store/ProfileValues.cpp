#include "store/ProfileValues.h"

#include "net/AccountRecords.h"

namespace kiv::store {

using net::KivAPI::UserProfile;

namespace {

bool isOwnedByServer(std::string_view key) {
    return key == "id" || key == "email" || key == "avatar_url";
}

/// Calls `visit` with the key and the member of every field that the person may change.
template <typename Visit>
void visitFields(const Visit &visit) {
    std::apply(
        [&](const auto &...fields) {
            const auto each = [&](const auto &field) {
                if (!isOwnedByServer(field.key))
                    visit(QString::fromLatin1(field.key.data(),
                                              static_cast<qsizetype>(field.key.size())),
                          field.member);
            };
            (each(fields), ...);
        },
        net::tableOf<UserProfile>.fields);
}

} // namespace

ProfileValues profileValues(const UserProfile &profile) {
    ProfileValues values;
    visitFields([&](const QString &key, auto member) {
        const auto &value = profile.*member;
        values.insert(key, value ? std::optional(QVariant::fromValue(*value)) : std::nullopt);
    });
    return values;
}

QHash<QString, QVariant> emptyProfileValues() {
    const UserProfile none;
    QHash<QString, QVariant> values;
    visitFields([&](const QString &key, auto member) {
        using Value = typename std::decay_t<decltype(none.*member)>::value_type;
        values.insert(key, QVariant::fromValue(Value()));
    });
    return values;
}

} // namespace kiv::store
