#include "base/Json.h"

#include <QJsonDocument>

#include <array>
#include <string>

namespace kiv {

namespace {

/// Short texts of this thread's documents: keys, roles and states come again and again, and each is
/// made once. One takes the place of another with the same ends and size.
class ShortTexts {
public:
    static constexpr std::size_t longest = 12; ///< bytes; a std::string holds so many in itself

    const QString &text(std::string_view utf8) {
        const auto ends = static_cast<unsigned char>(utf8.front() + 4 * utf8.back());
        Entry &entry = m_entries[(ends + utf8.size()) % m_entries.size()];
        if (entry.utf8 != utf8)
            entry = {std::string(utf8), QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))};
        return entry.text;
    }

private:
    struct Entry {
        std::string utf8;
        QString text;
    };
    std::array<Entry, 64> m_entries;
};

QString fromUtf8(std::string_view text) {
    thread_local ShortTexts shortTexts;
    if (!text.empty() && text.size() <= ShortTexts::longest)
        return shortTexts.text(text);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The end of the string or the number that begins at `at`.
qsizetype endOfToken(const QByteArray &json, qsizetype at) {
    if (json[at] != '"') {
        while (++at < json.size() && QByteArrayView("+-.eE0123456789").contains(json[at])) {
        }
        return at;
    }
    while (++at < json.size() && json[at] != '"')
        at += json[at] == '\\' ? 1 : 0;
    return at + 1;
}

/// simdjson refuses numbers beyond its types (2^64, 1e400). Qt's parser takes those it can hold as
/// doubles; writing the document out again gives text that simdjson reads, once those among them
/// that are whole and have more than 64 bits are written as doubles.
QByteArray withNumbersInRange(QByteArrayView utf8) {
    const QByteArray json =
        QJsonDocument::fromJson(utf8.toByteArray()).toJson(QJsonDocument::Compact);
    QByteArray readable;
    for (qsizetype at = 0; at < json.size();) {
        const bool isNumber = json[at] == '-' || (json[at] >= '0' && json[at] <= '9');
        const qsizetype end = isNumber || json[at] == '"' ? endOfToken(json, at) : at + 1;
        const QByteArray token = json.sliced(at, end - at);
        bool fits = true;
        if (isNumber && !token.contains('.') && !token.contains('e'))
            token.toLongLong(&fits);
        readable += fits ? token : token + ".0";
        at = end;
    }
    return readable;
}

constexpr qsizetype escapeSize = 6;

/// The code unit of an escape like "\\ud83d" at `at`.
std::optional<char16_t> escapedUnit(QByteArrayView text, qsizetype at) {
    if (at + escapeSize > text.size() || text[at] != '\\' || text[at + 1] != 'u')
        return std::nullopt;
    bool isNumber = false;
    const ushort unit = text.sliced(at + 2, 4).toByteArray().toUShort(&isNumber, 16);
    return isNumber ? std::optional(static_cast<char16_t>(unit)) : std::nullopt;
}

/// Halves of a surrogate pair can be written as escapes, and simdjson refuses such a text. Each
/// becomes the character that stands for an unreadable one.
QByteArray withWholePairs(QByteArrayView utf8) {
    QByteArray whole = utf8.toByteArray();
    for (qsizetype at = whole.indexOf('\\'); at >= 0; at = whole.indexOf('\\', at)) {
        const auto unit = escapedUnit(whole, at);
        const auto next = escapedUnit(whole, at + escapeSize);
        if (!unit) {
            at += 2;
        } else if (QChar::isHighSurrogate(*unit) && next && QChar::isLowSurrogate(*next)) {
            at += 2 * escapeSize;
        } else {
            if (QChar::isSurrogate(*unit))
                whole.replace(at, escapeSize, "\\ufffd");
            at += escapeSize;
        }
    }
    return whole;
}

/// The parser of this thread's last document. Its buffers are many times the text: giving them back
/// to the system and asking for them again takes longer than to parse.
thread_local std::unique_ptr<simdjson::dom::parser> spareParser;
constexpr std::size_t mostSpared = 256 * 1024; ///< bytes of text that a kept parser has room for

std::unique_ptr<simdjson::dom::parser> takeParser() {
    return spareParser ? std::move(spareParser) : std::make_unique<simdjson::dom::parser>();
}

} // namespace

JsonDocument::JsonDocument(QByteArrayView utf8) : m_parser(takeParser()) {
    auto parse = [this](QByteArrayView text) {
        const char *data = text.isEmpty() ? "" : text.data(); // simdjson copies even nothing
        return m_parser->parse(data, static_cast<size_t>(text.size())).get(m_root);
    };
    auto error = parse(utf8);
    if (error == simdjson::STRING_ERROR)
        error = parse(withWholePairs(utf8));
    if (error == simdjson::NUMBER_ERROR) {
        const QByteArray readable = withNumbersInRange(utf8);
        if (!readable.isEmpty())
            error = parse(readable);
    }
    if (error != simdjson::SUCCESS)
        throw DecodingError(std::string("The reply is not valid JSON: ") +
                            simdjson::error_message(error));
}

JsonDocument::~JsonDocument() {
    if (m_parser->capacity() <= mostSpared)
        spareParser = std::move(m_parser);
}

std::optional<QString> JsonValue::string() const {
    std::string_view text;
    if (m_element.get_string().get(text) != simdjson::SUCCESS)
        return std::nullopt;
    return fromUtf8(text);
}

std::optional<bool> JsonValue::boolean() const {
    bool value = false;
    if (m_element.get_bool().get(value) != simdjson::SUCCESS)
        return std::nullopt;
    return value;
}

std::optional<qint64> JsonValue::integer() const {
    if (!m_element.is_int64())
        return std::nullopt;
    return m_element.get_int64().value_unsafe();
}

std::optional<double> JsonValue::number() const {
    double value = 0;
    if (m_element.get_double().get(value) != simdjson::SUCCESS)
        return std::nullopt;
    return value;
}

std::optional<JsonObject> JsonValue::object() const {
    simdjson::dom::object object;
    if (m_element.get_object().get(object) != simdjson::SUCCESS)
        return std::nullopt;
    return JsonObject(object);
}

std::optional<JsonArray> JsonValue::array() const {
    simdjson::dom::array array;
    if (m_element.get_array().get(array) != simdjson::SUCCESS)
        return std::nullopt;
    return JsonArray(array);
}

JVal JsonValue::toJVal() const {
    switch (m_element.type()) {
    case simdjson::dom::element_type::STRING:
        return JVal::str(*string());
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
    case simdjson::dom::element_type::DOUBLE:
        return JVal::num(*number());
    case simdjson::dom::element_type::BOOL:
        return JVal::num(*boolean() ? 1 : 0);
    case simdjson::dom::element_type::ARRAY: {
        const JsonArray array = *this->array();
        JVal::Array values;
        for (const JsonValue value : array)
            values.append(value.toJVal());
        return JVal::arr(std::move(values));
    }
    case simdjson::dom::element_type::OBJECT: {
        const JsonObject object = *this->object();
        JVal::Object members;
        for (const JsonMember member : object) {
            const QString key = fromUtf8(member.key);
            if (!members.contains(key))
                members.insert(key, member.value.toJVal());
        }
        return JVal::obj(std::move(members));
    }
    case simdjson::dom::element_type::NULL_VALUE:
        break;
    }
    return JVal();
}

std::optional<JsonValue> JsonObject::find(std::string_view key) const {
    simdjson::dom::element element;
    if (m_object.at_key(key).get(element) != simdjson::SUCCESS)
        return std::nullopt;
    return JsonValue(element);
}

} // namespace kiv
