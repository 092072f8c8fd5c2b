#pragma once

#include "base/Json.h"

#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace kiv::net {

template <typename T>
inline constexpr bool isOptional = false;
template <typename T>
inline constexpr bool isOptional<std::optional<T>> = true;

/// One member of a record and its key on the wire. A std::optional member may be missing or null
/// there; any other member is required.
template <typename Record, typename Member>
struct Field {
    using Type = Member;
    static constexpr bool required = !isOptional<Member>;

    Member Record::*member;
    std::string_view key;
};

/// How a record is spelled on the wire; `name` is for error texts.
template <typename Record, typename... Members>
struct RecordTable {
    std::string_view name;
    std::tuple<Field<Record, Members>...> fields;
};

template <typename Record, typename... Members>
constexpr RecordTable<Record, Members...> recordTable(std::string_view name,
                                                      Field<Record, Members>... fields) {
    return {name, {fields...}};
}

/// The table of a record, specialised beside each record.
template <typename Record>
inline constexpr auto tableOf = nullptr;

/// Where in a body a value stands: the record and, unless it is the record itself, its key.
struct Place {
    std::string_view record;
    std::string_view key = {};
};

[[noreturn]] void throwMissing(Place place);
[[noreturn]] void throwWrongType(Place place, std::string_view expected);

} // namespace kiv::net
