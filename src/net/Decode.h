#pragma once

#include "net/Record.h"

#include <QList>

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

template <typename T>
T decodeValue(JsonValue value, Place place);

template <typename T>
T wanted(std::optional<T> value, Place place, std::string_view expected) {
    if (!value)
        throwWrongType(place, expected);
    return *std::move(value);
}

template <typename Member>
Member decodeMember(const JsonObject &object, Place place) {
    const std::optional<JsonValue> found = object.find(place.key);
    if constexpr (isOptional<Member>) {
        if (!found || found->isNull())
            return std::nullopt;
        return decodeValue<typename Member::value_type>(*found, place);
    } else {
        if (!found)
            throwMissing(place);
        return decodeValue<Member>(*found, place);
    }
}

template <typename Record>
Record decodeByTable(JsonValue value, Place place) {
    const JsonObject object = wanted(value.object(), place, "an object");
    Record record;
    const auto fill = [&]<typename... Fields>(const Fields &...fields) {
        ((record.*fields.member =
              decodeMember<typename Fields::Type>(object, {tableOf<Record>.name, fields.key})),
         ...);
    };
    std::apply(fill, tableOf<Record>.fields);
    return record;
}

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
        list.reserve(array.size());
        for (const JsonValue element : array)
            list.append(decodeValue<typename T::value_type>(element, place));
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
