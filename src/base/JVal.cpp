#include "base/JVal.h"

#include "base/Json.h"

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
    QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    const bool bareInteger = std::isfinite(value) && !text.contains(u'.') && !text.contains(u'e');
    return bareInteger ? text + u".0"_s : text;
}

namespace {

void appendQuoted(QString &out, const QString &text) {
    out += u'"' + text + u'"';
}

void appendCanonical(QString &out, const JVal &value) {
    if (const auto *text = value.asStr()) {
        appendQuoted(out, *text);
    } else if (const auto *number = value.asNum()) {
        out += decimalDescription(*number);
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
