#include "net/SessionRecords.h"

#include "net/Decode.h"

namespace kiv::net {

std::optional<QString> MeUser::displayName() const {
    const QString called = (name ? *name : fullName.value_or(QString())).trimmed();
    return called.isEmpty() ? email : called;
}

MeUser MeUser::decode(JsonValue value, Place place) {
    MeUser user = decodeByTable<MeUser>(value, place);
    if (!user.avatarUrl) {
        constexpr std::string_view key = "picture";
        const auto picture = value.object()->find(key);
        if (picture && !picture->isNull())
            user.avatarUrl = decodeValue<QString>(*picture, {tableOf<MeUser>.name, key});
    }
    return user;
}

AuthResult AuthResult::decode(JsonValue value, Place place) {
    try {
        const Wrapper wrapper = decodeByTable<Wrapper>(value, place);
        if (wrapper.user)
            return {*wrapper.user};
    } catch (const DecodingError &) {
        // It may still be a bare user, whose own error tells more.
    }
    return {MeUser::decode(value, {tableOf<MeUser>.name})};
}

} // namespace kiv::net
