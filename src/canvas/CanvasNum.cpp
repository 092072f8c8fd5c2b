#include "canvas/CanvasNum.h"

#include "base/JVal.h"

#include <charconv>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Reads a whole text of digits, point, exponent and sign; nothing unless it is a finite number.
std::optional<double> readDecimal(QStringView text) {
    QByteArray digits = text.toLatin1();
    if (digits.startsWith('+'))
        digits.remove(0, 1).prepend(digits.startsWith('-') ? "!" : "");
    double value = 0;
    const char *end = digits.cend();
    const auto [stopped, error] = std::from_chars(digits.cbegin(), end, value);
    if (stopped != end || digits.isEmpty())
        return std::nullopt;
    if (error == std::errc::result_out_of_range && digits.toLower().contains("e-"))
        return 0; // too small to tell from nothing
    if (error != std::errc() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

double multiplierOf(const QString &lower) {
    if (lower.endsWith(u'k') || lower.endsWith(u'к'))
        return 1e3;
    if (lower.endsWith(u"млн") || lower.endsWith(u'm'))
        return 1e6;
    if (lower.endsWith(u"млрд") || lower.endsWith(u'b'))
        return 1e9;
    return 1;
}

/// The figure's own characters: spaces, thousands separators, signs of currency and words dropped.
QString cleaned(QString text) {
    static const Regex decimalComma(u",(?=\\d{1,2}$)");
    static const Regex thousands(u"[,_](?=\\d{3})");
    text.removeIf([](QChar c) { return c == u'\u00a0' || c == u'\u202f' || c == u' '; });
    if (text.contains(u','))
        text = decimalComma.replaceAll(text, u".");
    if (text.contains(u',') || text.contains(u'_'))
        text = thousands.replaceAll(text, u"");
    text.removeIf([](QChar c) { return !u"0123456789.eE+-"_s.contains(c); });
    return text;
}

bool isRangeWord(const QString &text) {
    static const QStringList words{u"…"_s,  u"–"_s,   u"—"_s,    u"−"_s, u"~"_s,  u"-"_s,
                                   u"--"_s, u"---"_s, u"...."_s, u"/"_s, u"to"_s, u"до"_s};
    return words.contains(text);
}

const Regex &number() {
    static const Regex pattern(u"[+-]?\\d+(?:[.,]\\d+)?");
    return pattern;
}

std::optional<CanvasNum::Found> foundBy(const Regex::Match &match) {
    const QString raw = match.captured().toString();
    const auto value = readDecimal(QString(raw).replace(u',', u'.'));
    if (!value)
        return std::nullopt;
    return CanvasNum::Found{*value, match.range(), raw};
}

/// At most `limit` numbers, so that a short question to a long text stays short.
QList<CanvasNum::Found> firstNumbers(QStringView text, qsizetype limit) {
    QList<CanvasNum::Found> found;
    qsizetype from = 0;
    while (found.size() < limit) {
        const auto match = number().find(text, from);
        if (!match)
            break;
        if (auto entry = foundBy(*match))
            found.append(*entry);
        from = match->range().end();
    }
    return found;
}

} // namespace

std::optional<double> CanvasNum::parse(QStringView text) {
    const QString trimmed = text.trimmed().toString();
    if (trimmed.isEmpty())
        return std::nullopt;
    const bool negative =
        trimmed.startsWith(u'-') || (trimmed.startsWith(u'(') && trimmed.endsWith(u')'));
    const double multiplier = multiplierOf(trimmed.right(4).toLower());
    const auto number = readDecimal(cleaned(trimmed));
    if (!number)
        return std::nullopt;
    const double size = multiplier * std::abs(*number);
    if (!std::isfinite(size))
        return std::nullopt;
    return (negative || *number < 0) && size > 0 ? -size : size;
}

QString CanvasNum::out(QStringView text) {
    const auto isDigits = [](QStringView part) {
        return !part.isEmpty() &&
               std::all_of(part.begin(), part.end(), [](QChar c) { return c.isDigit(); });
    };
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.first(point);
    if (!isDigits(whole) || (point >= 0 && !isDigits(text.sliced(point + 1))))
        return text.toString();
    QString grouped;
    grouped.reserve(text.size() + whole.size() / 3);
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0)
            grouped += u'\u202f';
        grouped += whole.at(i);
    }
    return grouped.append(text.sliced(whole.size()));
}

QString CanvasNum::decimal(double value) {
    QString text = decimalDescription(value);
    if (text.endsWith(u".0"))
        text.chop(2);
    return text;
}

QList<CanvasNum::Found> CanvasNum::numsIn(QStringView text) {
    QList<Found> found;
    for (const Regex::Match &match : number().findAll(text)) {
        if (auto entry = foundBy(match))
            found.append(*entry);
    }
    return found;
}

std::optional<double> CanvasNum::numFromText(QStringView text) {
    const QList<Found> found = firstNumbers(text, 2);
    if (found.size() == 2) {
        const qsizetype start = found.at(0).range.end();
        const QStringView between = text.sliced(start, found.at(1).range.start - start).trimmed();
        if (between.size() <= 4 && isRangeWord(between.toString().toLower()))
            return (found.at(0).value + found.at(1).value) * 0.5;
    }
    return found.isEmpty() ? parse(text) : found.first().value;
}

} // namespace kiv::canvas
