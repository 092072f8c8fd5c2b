#include "base/JVal.h"

#include "base/Json.h"

#include <charconv>
#include <cmath>

namespace kiv {

using namespace Qt::StringLiterals;

std::optional<JVal> JVal::parse(QByteArrayView utf8) {
    try {
        return JsonDocument(utf8).root().toJVal();
    } catch (const DecodingError &) {
        return std::nullopt;
    }
}

QString decimalDescription(double value) {
    // Up to here every whole number is written out; past it the digits would be padding.
    constexpr double longest = 0x1p54;
    const double size = std::abs(value);
    const bool plain = value == 0 || (size >= 1e-4 && size <= longest);
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, value,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    const QString text = QString::fromLatin1(digits, end - digits);
    return plain && !text.contains(u'.') ? text + u".0"_s : text;
}

namespace {

void appendQuoted(QString &out, const QString &text) {
    out += u'"' + text + u'"';
}

void appendCanonical(QString &out, const JVal &value) {
    if (const auto *text = value.asStr()) {
        appendQuoted(out, *text);
    } else if (const auto *number = value.asNum()) {
        out += decimalDescription(*number + 0.0); // nought has no sign
    } else if (const auto *flag = value.asBool()) {
        out += *flag ? u"true"_s : u"false"_s;
    } else if (const auto *array = value.asArr()) {
        out += u'[';
        for (qsizetype i = 0; i < array->size(); ++i) {
            if (i > 0)
                out += u',';
            appendCanonical(out, array->at(i));
        }
        out += u']';
    } else if (const auto *object = value.asObj()) {
        out += u'{';
        for (auto member = object->cbegin(); member != object->cend(); ++member) {
            if (member != object->cbegin())
                out += u',';
            appendQuoted(out, member.key());
            out += u':';
            appendCanonical(out, member.value());
        }
        out += u'}';
    } else {
        out += u"null"_s;
    }
}

} // namespace

QString JVal::canonical() const {
    QString out;
    appendCanonical(out, *this);
    return out;
}

} // namespace kiv
