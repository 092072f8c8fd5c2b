#include "canvas/ProseFigure.h"

#include "canvas/TextCues.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestFigure = 60;
constexpr qsizetype longestUnit = 20;
constexpr qsizetype longestName = 60;
constexpr qsizetype mostNameWords = 6;
constexpr qsizetype mostDigits = 15;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isMinus(QChar c) {
    return c == u'-' || c == u'−';
}

bool isCurrency(QChar c) {
    return u"$€£¥₽₴₸"_s.contains(c);
}

bool isThinSpace(QChar c) {
    return c == u' ' || c == u'\u00a0' || c == u'\u202f';
}

bool isOneOf(QStringView word, const QStringList &words) {
    return std::any_of(words.begin(), words.end(), [word](const QString &one) {
        return one.size() == word.size() && word.compare(one, Qt::CaseInsensitive) == 0;
    });
}

struct Multiplier {
    QString word;
    double factor;
    bool attached; ///< counts only directly behind the digits: "5 m" are metres
};

const QList<Multiplier> &multipliers() {
    static const QList<Multiplier> table{
        {u"k"_s, 1e3, true},         {u"к"_s, 1e3, true},        {u"m"_s, 1e6, true},
        {u"b"_s, 1e9, true},         {u"bn"_s, 1e9, false},      {u"тыс"_s, 1e3, false},
        {u"тыс."_s, 1e3, false},     {u"млн"_s, 1e6, false},     {u"млрд"_s, 1e9, false},
        {u"thousand"_s, 1e3, false}, {u"million"_s, 1e6, false}, {u"billion"_s, 1e9, false},
    };
    return table;
}

/// Words behind a number that make it a date, a time, an ordinal or part of a sentence.
const QSet<QString> &wordsOfNoUnit() {
    static const QSet<QString> words = [] {
        const QString all =
            u"am pm a.m. p.m. o'clock st nd rd th jan feb mar apr may jun jul aug sep sept oct nov "
            u"dec january february march april june july august september october november "
            u"december января февраля марта апреля мая июня июля августа сентября октября ноября "
            u"декабря год года г г. of in on at to and or is are was were will be the a an for "
            u"with but not than then из в на и до от для но не или это был была были"_s;
        const QStringList list = all.split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

/// Reads a figure from left to right.
class Reader {
public:
    explicit Reader(QStringView text) : m_text(text) {}

    bool atEnd() const { return m_at >= m_text.size(); }
    QChar peek(qsizetype ahead = 0) const {
        return m_at + ahead < m_text.size() ? m_text.at(m_at + ahead) : QChar();
    }
    void skipSpaces() {
        while (isThinSpace(peek()))
            ++m_at;
    }
    bool take(QChar c) {
        if (peek() != c || atEnd())
            return false;
        ++m_at;
        return true;
    }
    QStringView rest() const { return m_text.sliced(std::min(m_at, m_text.size())); }
    void skip(qsizetype count) { m_at += count; }

    /// Digits with separators of thousands and one decimal sign.
    std::optional<double> number() {
        QString digits = run();
        if (digits.isEmpty())
            return std::nullopt;
        bool grouped = true;
        while (grouped && digits.size() <= mostDigits) {
            grouped =
                digitsBehind() == 3 && (isThinSpace(peek()) || peek() == u',' || peek() == u'_');
            if (grouped) {
                ++m_at;
                digits += run();
            }
        }
        const bool decimalComma = peek() == u',' && digitsBehind() >= 1 && digitsBehind() <= 2;
        if ((peek() == u'.' && digitsBehind() >= 1) || decimalComma) {
            ++m_at;
            digits += u'.' + run();
        }
        if (digits.size() > mostDigits + 1)
            return std::nullopt;
        return digits.toDouble();
    }

private:
    QString run() {
        const qsizetype start = m_at;
        while (isDigit(peek()))
            ++m_at;
        return m_text.sliced(start, m_at - start).toString();
    }
    /// How many digits follow the character at hand, 4 standing for more.
    qsizetype digitsBehind() const {
        qsizetype count = 0;
        while (count < 4 && isDigit(peek(count + 1)))
            ++count;
        return count;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

/// Takes a word for thousands, millions or billions.
double takeMultiplier(Reader &reader) {
    const bool attached = !isThinSpace(reader.peek());
    qsizetype from = 0;
    const QStringView rest = reader.rest();
    while (from < rest.size() && isThinSpace(rest.at(from)))
        ++from;
    qsizetype to = from;
    while (to < rest.size() && to - from < longestUnit &&
           (rest.at(to).isLetter() || rest.at(to) == u'.'))
        ++to;
    const QString word = rest.sliced(from, to - from).toString().toLower();
    for (const Multiplier &multiplier : multipliers()) {
        if (word == multiplier.word && (attached || !multiplier.attached)) {
            reader.skip(to);
            return multiplier.factor;
        }
    }
    return 1;
}

/// The rest of a figure as its unit; nothing when it is anything else.
std::optional<QString> unitOfRest(QStringView rest) {
    const QString unit = rest.trimmed().toString();
    if (unit.size() > longestUnit)
        return std::nullopt;
    if (unit.startsWith(u'/')) {
        const QStringView scale = QStringView(unit).sliced(1).trimmed();
        const bool isScale = scale == u"5" || scale == u"10" || scale == u"100";
        return isScale ? std::optional(u'/' + scale.toString()) : std::nullopt;
    }
    const QStringList words = unit.split(u' ', Qt::SkipEmptyParts);
    if (words.size() > 2)
        return std::nullopt;
    for (const QString &word : words) {
        const bool isWord = std::all_of(word.begin(), word.end(), [](QChar c) {
            return c.isLetter() || isCurrency(c) || u"%°²³/.-"_s.contains(c);
        });
        if (!isWord || word.front() == u'-' || wordsOfNoUnit().contains(word.toLower()))
            return std::nullopt;
    }
    return unit;
}

/// The upper end of a range behind its lower end: "–20", " to 20".
std::optional<double> takeRangeEnd(Reader &reader) {
    const QStringView rest = reader.rest();
    Reader ahead(rest);
    ahead.skipSpaces();
    bool isRange = ahead.take(u'–') || ahead.take(u'—') || ahead.take(u'…');
    for (const QString &word : {u"to "_s, u"до "_s}) {
        if (!isRange && ahead.rest().startsWith(word)) {
            ahead.skip(word.size());
            isRange = true;
        }
    }
    ahead.skipSpaces();
    const auto end = isRange ? ahead.number() : std::nullopt;
    if (end)
        reader.skip(rest.size() - ahead.rest().size());
    return end;
}

/// A figure without anything in parentheses behind it.
std::optional<ProseFigure> bareFigure(QStringView text) {
    ProseFigure figure;
    figure.display = text.toString();
    Reader reader(text);
    const bool inParentheses = text.startsWith(u'(') && text.endsWith(u')');
    if (inParentheses)
        reader = Reader(text.sliced(1).chopped(1));
    if (reader.take(u'~') || reader.take(u'≈'))
        reader.skipSpaces();
    bool negative = inParentheses;
    const auto takeSign = [&reader, &negative] {
        if (isMinus(reader.peek()))
            negative = true;
        if (isMinus(reader.peek()) || reader.peek() == u'+')
            reader.skip(1);
    };
    takeSign();
    if (isCurrency(reader.peek())) {
        figure.unit = reader.peek();
        reader.skip(1);
        reader.skipSpaces();
        takeSign();
    }
    const auto number = reader.number();
    if (!number)
        return std::nullopt;
    figure.value = *number;
    double factor = takeMultiplier(reader);
    if (const auto end = takeRangeEnd(reader)) {
        const double endFactor = takeMultiplier(reader);
        factor = factor == 1 ? endFactor : factor;
        figure.value = (*number * factor + *end * endFactor) / 2 / factor;
    }
    figure.value *= negative ? -factor : factor;
    const auto unit = unitOfRest(reader.rest());
    if (!unit || (!unit->isEmpty() && !figure.unit.isEmpty()))
        return std::nullopt;
    if (!unit->isEmpty())
        figure.unit = *unit;
    return figure;
}

} // namespace

QString ProseFigure::unitKey() const {
    const QString lower = unit.toLower();
    return lower.size() > 2 && lower.endsWith(u's') ? lower.chopped(1) : lower;
}

std::optional<ProseFigure> proseFigure(QStringView text) {
    QStringView figure = text.trimmed();
    if (figure.size() > longestFigure)
        return std::nullopt;
    if (figure.endsWith(u'.') || figure.endsWith(u';') || figure.endsWith(u','))
        figure.chop(1);
    QString aside;
    const qsizetype open = figure.endsWith(u')') ? figure.lastIndexOf(u'(') : -1;
    if (open > 0) {
        aside = figure.sliced(open + 1).chopped(1).trimmed().toString();
        figure = figure.first(open).trimmed();
    }
    auto read = bareFigure(figure);
    if (!read)
        return std::nullopt;
    const bool isChange = !aside.isEmpty() && u"+-−–▲▼↑↓"_s.contains(aside.front()) &&
                          std::any_of(aside.begin(), aside.end(), isDigit);
    (isChange ? read->delta : read->remark) = aside;
    return read;
}

bool isFigureName(QStringView name) {
    static const QStringList sentenceWords =
        u"i we you they he she it this that there is are was were "
        u"я мы вы они он она это есть было была"_s.split(u' ');
    const QStringView text = name.trimmed();
    if (text.isEmpty() || text.size() > longestName || text.contains(u". ") ||
        text.contains(u'?') || text.contains(u'!') || text.contains(u';') || text.contains(u"://"))
        return false;
    qsizetype words = 0;
    for (const QStringView word : text.tokenize(u' ', Qt::SkipEmptyParts)) {
        if (++words > mostNameWords || isOneOf(word, sentenceWords))
            return false;
    }
    return true;
}

bool namesNoMeasure(QStringView name) {
    static const QStringList marks =
        u"year date phone tel id version room page code pin number no iban account founded since "
        u"port zip "
        u"options "
        u"год дата телефон тел версия код номер комната счёт инн варианты опции"_s.split(u' ');
    const QStringView text = name.trimmed();
    return isOneOf(text.sliced(text.lastIndexOf(u' ') + 1), marks);
}

} // namespace kiv::canvas
