#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <variant>

namespace kiv {

/// A JSON value as the canvas sees it. Booleans of a parsed document arrive as the numbers 1 and
/// 0; `boolean` exists for values made by hand.
class JVal {
public:
    using Array = QList<JVal>;
    using Object = QMap<QString, JVal>;

    JVal() = default; ///< null
    static JVal str(QString text) { return JVal(std::move(text)); }
    static JVal num(double value) { return JVal(value); }
    static JVal boolean(bool value) { return JVal(value); }
    static JVal arr(Array values) { return JVal(std::move(values)); }
    static JVal obj(Object members) { return JVal(std::move(members)); }

    /// Parses one JSON document from UTF-8; nothing when it is not valid JSON.
    static std::optional<JVal> parse(QByteArrayView utf8);

    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }
    const QString *asStr() const { return std::get_if<QString>(&m_value); }
    const double *asNum() const { return std::get_if<double>(&m_value); }
    const bool *asBool() const { return std::get_if<bool>(&m_value); }
    const Array *asArr() const { return std::get_if<Array>(&m_value); }
    const Object *asObj() const { return std::get_if<Object>(&m_value); }

    /// A deterministic text form used as an identity key; strings are not escaped in it.
    QString canonical() const;

    friend bool operator==(const JVal &, const JVal &) = default;

private:
    template <typename T>
    explicit JVal(T value) : m_value(std::move(value)) {}

    std::variant<std::monostate, QString, double, bool, Array, Object> m_value;
};

/// The shortest decimal text that reads back as `value`, a whole number with ".0": 1.0, 2.5,
/// 1000000.0. An exponent is written below 1e-4 and past 2^54 only: 1e-05, 1e+300.
QString decimalDescription(double value);

} // namespace kiv
