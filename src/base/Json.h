#pragma once

#include "base/JVal.h"

#include <QByteArrayView>
#include <QString>

#include <simdjson.h>

#include <memory>
#include <optional>
#include <stdexcept>

namespace kiv {

/// A body that is not JSON, or not the JSON that its reader needs; `what()` is shown as it is.
class DecodingError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class JsonObject;
class JsonArray;

/// One value of a parsed document: strict about types, integers and doubles told apart.
/// A view: valid as long as its JsonDocument.
class JsonValue {
public:
    explicit JsonValue(simdjson::dom::element element) : m_element(element) {}

    bool isNull() const { return m_element.is_null(); }
    /// Nothing when the value is of another type.
    std::optional<QString> string() const;
    std::optional<bool> boolean() const;
    /// Whole numbers of 64 bits; 1.0 is none.
    std::optional<qint64> integer() const;
    /// Any number.
    std::optional<double> number() const;
    std::optional<JsonObject> object() const;
    std::optional<JsonArray> array() const;

    JVal toJVal() const;

private:
    simdjson::dom::element m_element;
};

/// One member of an object.
struct JsonMember {
    std::string_view key; ///< plain UTF-8
    JsonValue value;
};

/// Members of an object, found by key or iterated as they stand there:
/// for (JsonMember member : object). A key can stand twice; the first counts.
class JsonObject {
public:
    class Iterator {
    public:
        explicit Iterator(simdjson::dom::object::iterator at) : m_at(at) {}
        JsonMember operator*() const { return {m_at.key(), JsonValue(m_at.value())}; }
        Iterator &operator++() {
            ++m_at;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_at != other.m_at; }

    private:
        simdjson::dom::object::iterator m_at;
    };

    explicit JsonObject(simdjson::dom::object object) : m_object(object) {}
    Iterator begin() const { return Iterator(m_object.begin()); }
    Iterator end() const { return Iterator(m_object.end()); }
    /// The member under `key` (plain UTF-8), null included; nothing when it is missing.
    std::optional<JsonValue> find(std::string_view key) const;

private:
    simdjson::dom::object m_object;
};

/// Elements of an array, to be iterated: for (JsonValue value : array).
class JsonArray {
public:
    class Iterator {
    public:
        explicit Iterator(simdjson::dom::array::iterator at) : m_at(at) {}
        JsonValue operator*() const { return JsonValue(*m_at); }
        Iterator &operator++() {
            ++m_at;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_at != other.m_at; }

    private:
        simdjson::dom::array::iterator m_at;
    };

    explicit JsonArray(simdjson::dom::array array) : m_array(array) {}
    Iterator begin() const { return Iterator(m_array.begin()); }
    Iterator end() const { return Iterator(m_array.end()); }
    qsizetype size() const { return static_cast<qsizetype>(m_array.size()); }

private:
    simdjson::dom::array m_array;
};

/// A parsed body. Owns what its values view into.
class JsonDocument {
public:
    /// Throws DecodingError when `utf8` is not one whole valid document.
    explicit JsonDocument(QByteArrayView utf8);
    ~JsonDocument();
    Q_DISABLE_COPY_MOVE(JsonDocument)

    JsonValue root() const { return JsonValue(m_root); }

private:
    std::unique_ptr<simdjson::dom::parser> m_parser;
    simdjson::dom::element m_root;
};

} // namespace kiv
