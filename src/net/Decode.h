#pragma once

#include "net/Record.h"

#include <QList>

#include <algorithm>
#include <bitset>

namespace kiv::net {

template <typename T>
inline constexpr bool isList = false;
template <typename T>
inline constexpr bool isList<QList<T>> = true;

/// A record with an order of its own, which its table cannot tell.
template <typename T>
concept DecodesItself = requires(JsonValue value, Place place) {
    { T::decode(value, place) } -> std::same_as<T>;
};

/// A record that its table tells everything about.
template <typename T>
concept FilledByTable =
    !DecodesItself<T> && !std::is_same_v<decltype(tableOf<T>), const std::nullptr_t>;

template <typename T>
T decodeValue(JsonValue value, Place place);

template <typename T>
T wanted(std::optional<T> value, Place place, std::string_view expected) {
    if (!value)
        throwWrongType(place, expected);
    return *std::move(value);
}

template <typename Record, typename Member>
void readMember(Record &record, const Field<Record, Member> &field, JsonValue value) {
    const Place place{tableOf<Record>.name, field.key};
    if constexpr (!isOptional<Member>)
        record.*field.member = decodeValue<Member>(value, place);
    else if (!value.isNull())
        record.*field.member = decodeValue<typename Member::value_type>(value, place);
}

/// Fills a new record in one pass over its object. Of a key that stands twice the first counts.
template <typename Record>
void fillByTable(Record &record, JsonValue value, Place place) {
    constexpr const auto &fields = tableOf<Record>.fields;
    std::bitset<std::tuple_size_v<decltype(tableOf<Record>.fields)>> seen;
    for (const JsonMember member : wanted(value.object(), place, "an object")) {
        std::size_t number = 0;
        [[maybe_unused]] const auto takes = [&](const auto &field) {
            const bool isIt = member.key == field.key;
            if (isIt && !seen[number]) {
                readMember(record, field, member.value);
                seen.set(number);
            }
            ++number;
            return isIt;
        };
        std::apply([&](const auto &...field) { (void)(takes(field) || ...); }, fields);
    }
    std::size_t number = 0;
    [[maybe_unused]] const auto checkRequired = [&](const auto &field) {
        if (field.required && !seen[number])
            throwMissing({tableOf<Record>.name, field.key});
        ++number;
    };
    std::apply([&](const auto &...field) { (checkRequired(field), ...); }, fields);
}

template <typename Record>
Record decodeByTable(JsonValue value, Place place) {
    Record record;
    fillByTable(record, value, place);
    return record;
}

/// Elements that a list has room for before any of them has been read: a body can hold millions
/// that are refused.
inline constexpr qsizetype mostReserved = 1000;

/// The typing rules, the same for every record: no type is turned into another, unknown keys are
/// skipped, and one wrong value fails the whole body. Throws DecodingError.
template <typename T>
T decodeValue(JsonValue value, Place place) {
    if constexpr (std::is_same_v<T, QString>) {
        return wanted(value.string(), place, "a text");
    } else if constexpr (std::is_same_v<T, bool>) {
        return wanted(value.boolean(), place, "true or false");
    } else if constexpr (std::is_same_v<T, qint64>) {
        return wanted(value.integer(), place, "a whole number");
    } else if constexpr (std::is_same_v<T, double>) {
        return wanted(value.number(), place, "a number");
    } else if constexpr (std::is_same_v<T, JVal>) {
        return value.toJVal();
    } else if constexpr (isList<T>) {
        const JsonArray array = wanted(value.array(), place, "a list");
        T list;
        list.reserve(std::min(array.size(), mostReserved));
        using Element = typename T::value_type;
        for (const JsonValue element : array) {
            if constexpr (FilledByTable<Element>)
                fillByTable(list.emplaceBack(), element, place);
            else
                list.append(decodeValue<Element>(element, place));
        }
        return list;
    } else if constexpr (DecodesItself<T>) {
        return T::decode(value, place);
    } else {
        return decodeByTable<T>(value, place);
    }
}

template <typename T>
constexpr std::string_view recordName() {
    if constexpr (isList<T>)
        return recordName<typename T::value_type>();
    else
        return tableOf<T>.name;
}

/// Reads a record, or a list of records, from a whole body in UTF-8. Throws DecodingError.
template <typename T>
T decodeBody(QByteArrayView body) {
    const JsonDocument document(body);
    return decodeValue<T>(document.root(), {recordName<T>()});
}

} // namespace kiv::net
