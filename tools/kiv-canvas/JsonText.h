#pragma once

#include <QByteArray>
#include <QStringView>

#include <concepts>
#include <optional>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace kiv::tools {

/// Writes JSON text in the order of the calls. An explanation of a long answer has a million
/// values, which are written without being held.
class JsonText {
public:
    void beginObject() { m_writer.StartObject(); }
    void endObject() { m_writer.EndObject(); }
    void beginArray() { m_writer.StartArray(); }
    void endArray() { m_writer.EndArray(); }
    void key(QStringView name) { m_writer.Key(name.utf16(), length(name)); }

    void value(QStringView text) {
        m_writer.String(text.isEmpty() ? u"" : text.utf16(), length(text));
    }
    void value(const QString &text) { value(QStringView(text)); }
    void value(const char16_t *text) { value(QStringView(text)); }
    template <std::same_as<bool> Flag> // a pointer is no flag
    void value(Flag flag) {
        m_writer.Bool(flag);
    }
    void value(qint64 number) { m_writer.Int64(number); }
    void value(int number) { m_writer.Int(number); }
    /// A whole number without a point; what is no number as null.
    void value(double number);
    void null() { m_writer.Null(); }

    template <typename T>
    void value(const std::optional<T> &present) {
        if (present)
            value(*present);
        else
            null();
    }
    template <typename T>
    void value(const QList<T> &elements) {
        beginArray();
        for (const T &element : elements)
            value(element);
        endArray();
    }
    /// A list of objects: `write` gives the members of one.
    template <typename T, typename Write>
    void objects(const QList<T> &records, Write write) {
        beginArray();
        for (const T &record : records) {
            beginObject();
            write(record);
            endObject();
        }
        endArray();
    }
    template <typename T>
    void member(QStringView name, const T &present) {
        key(name);
        value(present);
    }
    template <typename T, typename Write>
    void member(QStringView name, const QList<T> &records, Write write) {
        key(name);
        objects(records, write);
    }

    QByteArray text() const {
        return QByteArray(m_buffer.GetString(), static_cast<qsizetype>(m_buffer.GetSize()));
    }

private:
    using Utf16 = rapidjson::UTF16<char16_t>;

    static rapidjson::SizeType length(QStringView text) {
        return static_cast<rapidjson::SizeType>(text.size());
    }

    rapidjson::StringBuffer m_buffer;
    rapidjson::Writer<rapidjson::StringBuffer, Utf16, rapidjson::UTF8<>> m_writer{m_buffer};
};

} // namespace kiv::tools
