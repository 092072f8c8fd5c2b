#include "net/AvatarReply.h"

#include "base/Regex.h"
#include "net/Decode.h"

#include <array>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

/// The shapes that the backend is known to answer with.
struct AvatarResult {
    struct Nested {
        std::optional<QString> avatarUrl;
        std::optional<QString> url;
    };
    std::optional<QString> avatarUrl;
    std::optional<QString> url;
    std::optional<Nested> user;
    std::optional<Nested> data;

    std::optional<QString> address() const;
};

std::optional<QString> AvatarResult::address() const {
    const Nested none;
    const Nested &ofUser = user ? *user : none;
    const Nested &ofData = data ? *data : none;
    for (const auto &candidate :
         {avatarUrl, url, ofUser.avatarUrl, ofUser.url, ofData.avatarUrl, ofData.url}) {
        if (candidate)
            return candidate;
    }
    return std::nullopt;
}

constexpr int searchDepth = 3;

bool looksLikePicture(const QString &url) {
    static const Regex picture(u"\\.(png|jpe?g|webp|gif)(\\?|$)");
    return url.contains(u"/storage/"_s) || url.contains(u"/avatars/"_s) || picture.contains(url);
}

std::optional<QString> search(const JsonObject &object, int depth) {
    constexpr std::array<std::string_view, 4> addressKeys{"avatar_url", "avatarUrl", "picture",
                                                          "avatar"};
    constexpr std::array<std::string_view, 3> wrapperKeys{"user", "profile", "data"};
    if (depth > searchDepth)
        return std::nullopt;
    const auto text = [&](std::string_view key) {
        const auto member = object.find(key);
        return member ? member->string() : std::nullopt;
    };
    for (const auto key : addressKeys) {
        if (auto address = text(key); address && !address->isEmpty())
            return address;
    }
    if (auto url = text("url"); url && looksLikePicture(*url))
        return url;
    for (const auto key : wrapperKeys) {
        const auto member = object.find(key);
        const auto inner = member ? member->object() : std::nullopt;
        if (auto address = inner ? search(*inner, depth + 1) : std::nullopt)
            return address;
    }
    return std::nullopt;
}

} // namespace

// clang-format off
template <>
inline constexpr auto tableOf<AvatarResult::Nested> =
    recordTable("AvatarResult.Nested", Field{&AvatarResult::Nested::avatarUrl, "avatar_url"},
                Field{&AvatarResult::Nested::url, "url"});

template <>
inline constexpr auto tableOf<AvatarResult> = recordTable(
    "AvatarResult", Field{&AvatarResult::avatarUrl, "avatar_url"}, Field{&AvatarResult::url, "url"},
    Field{&AvatarResult::user, "user"}, Field{&AvatarResult::data, "data"});
// clang-format on

namespace {

std::optional<QString> knownAddress(JsonValue reply) {
    try {
        return decodeValue<AvatarResult>(reply, {recordName<AvatarResult>()}).address();
    } catch (const DecodingError &) {
        return std::nullopt; // another shape
    }
}

} // namespace

std::optional<QString> avatarAddress(QByteArrayView reply) {
    try {
        const JsonDocument document(reply);
        if (const auto address = knownAddress(document.root()); address && !address->isEmpty())
            return address;
        const auto object = document.root().object();
        return object ? search(*object, 0) : std::nullopt;
    } catch (const DecodingError &) {
        return std::nullopt; // no JSON at all
    }
}

} // namespace kiv::net
