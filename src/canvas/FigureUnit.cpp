#include "canvas/FigureUnit.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestUnit = 20;

bool isCurrency(QChar c) {
    return u"$€£¥₽₴₸"_s.contains(c);
}

struct Multiplier {
    QString word;
    double factor;
    bool attached; ///< counts only directly behind the digits, but for amounts: "5 k" are not 5000
    bool ofMoney;  ///< counts only for amounts: "90m" are minutes or metres, "512B" bytes
};

const QList<Multiplier> &multipliers() {
    static const QList<Multiplier> table{
        {u"k"_s, 1e3, true, false},         {u"K"_s, 1e3, true, false},
        {u"к"_s, 1e3, true, false},         {u"К"_s, 1e3, true, false},
        {u"M"_s, 1e6, true, false},         {u"m"_s, 1e6, true, true},
        {u"b"_s, 1e9, true, true},          {u"B"_s, 1e9, true, true},
        {u"bn"_s, 1e9, false, false},       {u"mln"_s, 1e6, false, false},
        {u"тыс"_s, 1e3, false, false},      {u"тыс."_s, 1e3, false, false},
        {u"млн"_s, 1e6, false, false},      {u"млн."_s, 1e6, false, false},
        {u"млрд"_s, 1e9, false, false},     {u"млрд."_s, 1e9, false, false},
        {u"thousand"_s, 1e3, false, false}, {u"million"_s, 1e6, false, false},
        {u"billion"_s, 1e9, false, false},
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
            u"декабря янв фев мар апр июн июл авг сен сент окт ноя дек год года г г. floor этаж "
            u"ago назад of in on at to and or is are was were will be the a an for "
            u"with but not than then из в на и до от для но не или это был была были"_s;
        const QStringList list = all.split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

bool isLetters(QStringView text, QStringView others) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [others](QChar c) {
        return c.isLetter() || others.contains(c);
    });
}

/// "/5", "/10", "/100".
bool isScale(QStringView unit) {
    static const QStringList wholes{u"5"_s, u"10"_s, u"100"_s};
    return unit.startsWith(u'/') && wholes.contains(unit.sliced(1).trimmed());
}

} // namespace

QString takeCurrency(FigureReader &reader) {
    static const QStringList codes{u"USD "_s, u"EUR "_s, u"GBP "_s, u"RUB "_s, u"CHF "_s};
    if (isCurrency(reader.peek())) {
        const QString sign = reader.peek();
        reader.skip(1);
        reader.skipSpaces();
        return sign;
    }
    for (const QString &code : codes) {
        if (reader.take(code))
            return code.trimmed();
    }
    return {};
}

double takeMultiplier(FigureReader &reader, bool isMoney) {
    const bool attached = !FigureReader::isSpace(reader.peek());
    qsizetype from = 0;
    const QStringView rest = reader.rest();
    while (from < rest.size() && FigureReader::isSpace(rest.at(from)))
        ++from;
    qsizetype to = from;
    while (to < rest.size() && to - from < longestUnit &&
           (rest.at(to).isLetter() || rest.at(to) == u'.'))
        ++to;
    const QString written = rest.sliced(from, to - from).toString();
    const QString word = written.size() == 1 ? written : written.toLower();
    for (const Multiplier &multiplier : multipliers()) {
        if (word == multiplier.word && (attached || isMoney || !multiplier.attached) &&
            (isMoney || !multiplier.ofMoney)) {
            reader.skip(to);
            return multiplier.factor;
        }
    }
    return 1;
}

bool isRate(QStringView unit) {
    static const QStringList each{u"per "_s, u"a "_s, u"в "_s, u"за "_s};
    if (unit.startsWith(u'/'))
        return unit.sliced(1).size() > 0 && unit.at(1).isLetter() && isLetters(unit, u"/.");
    return std::any_of(each.begin(), each.end(), [unit](const QString &word) {
        return unit.startsWith(word) && isLetters(unit.sliced(word.size()), u"");
    });
}

std::optional<QString> unitOfRest(QStringView rest) {
    const QString unit = rest.trimmed().toString();
    if (unit.size() > longestUnit)
        return std::nullopt;
    if (isScale(unit))
        return u'/' + unit.sliced(1).trimmed();
    if (isRate(unit))
        return unit;
    const QStringList words = unit.split(u' ', Qt::SkipEmptyParts);
    if (words.size() > 2)
        return std::nullopt;
    for (const QString &word : words) {
        const bool isWord = std::all_of(word.begin(), word.end(), [](QChar c) {
            return c.isLetter() || isCurrency(c) || u"%°²³/.-"_s.contains(c);
        });
        if (!isWord || word.front() == u'-' || word.front() == u'/' ||
            wordsOfNoUnit().contains(word.toLower()))
            return std::nullopt;
    }
    return unit;
}

bool isMoney(const QString &unit) {
    static const QStringList names{u"usd"_s, u"eur"_s,  u"gbp"_s,   u"rub"_s,    u"chf"_s,
                                   u"руб"_s, u"euro"_s, u"euros"_s, u"dollars"_s};
    const bool signedUnit = std::any_of(unit.begin(), unit.end(), isCurrency);
    return signedUnit || names.contains(unit.toLower()) ||
           unit.startsWith(u"рубл", Qt::CaseInsensitive);
}

QString currencySign(const QString &unit) {
    static const QHash<QString, QString> signs{{u"usd"_s, u"$"_s},   {u"eur"_s, u"€"_s},
                                               {u"gbp"_s, u"£"_s},   {u"rub"_s, u"₽"_s},
                                               {u"руб"_s, u"₽"_s}, {u"руб."_s, u"₽"_s}};
    return signs.value(unit.toLower(), unit);
}

} // namespace kiv::canvas
