#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

namespace kiv::net {

/// The signed-in user.
struct MeUser {
    std::optional<QString> id;
    std::optional<QString> email;
    std::optional<QString> name;
    std::optional<QString> fullName;
    std::optional<QString> avatarUrl; ///< from "picture" when "avatar_url" is absent

    /// What to greet the user by: the name, or else the e-mail address. A blank name counts as none
    /// at all, whatever the full name is.
    std::optional<QString> displayName() const;

    static MeUser decode(JsonValue value, Place place);

    friend bool operator==(const MeUser &, const MeUser &) = default;
};

/// Reply to signing in and signing up: the user, bare or wrapped in an object.
struct AuthResult {
    struct Wrapper {
        std::optional<MeUser> user;

        friend bool operator==(const Wrapper &, const Wrapper &) = default;
    };

    MeUser user;

    static AuthResult decode(JsonValue value, Place place);

    friend bool operator==(const AuthResult &, const AuthResult &) = default;
};

/// A reply whose content does not matter: any JSON object.
struct Ack {
    friend bool operator==(const Ack &, const Ack &) = default;
};

// clang-format off
template <>
inline constexpr auto tableOf<MeUser> = recordTable("MeUser",
    Field{&MeUser::id, "id"},
    Field{&MeUser::email, "email"},
    Field{&MeUser::name, "name"},
    Field{&MeUser::fullName, "full_name"},
    Field{&MeUser::avatarUrl, "avatar_url"});

template <>
inline constexpr auto tableOf<AuthResult::Wrapper> = recordTable("AuthResult.Wrapper",
    Field{&AuthResult::Wrapper::user, "user"});

template <>
inline constexpr auto tableOf<AuthResult> = recordTable("AuthResult",
    Field{&AuthResult::user, "user"});

template <>
inline constexpr auto tableOf<Ack> = RecordTable<Ack>{"Ack", {}};
// clang-format on

} // namespace kiv::net
