#include "canvas/UnitStem.h"

#include <QStringList>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

bool isCyrillic(QChar c) {
    return c.script() == QChar::Script_Cyrillic;
}

QString stemOfWord(const QString &word) {
    constexpr qsizetype shortestStem = 3;
    static const QStringList days{u"день"_s, u"дня"_s, u"дней"_s};
    static const QStringList endings{u"ов"_s, u"ев"_s, u"ей"_s, u"а"_s,
                                     u"я"_s,  u"ы"_s,  u"и"_s,  u"ь"_s};
    if (days.contains(word))
        return days.first();
    if (word.isEmpty() || !isCyrillic(word.back()))
        return word;
    for (const QString &ending : endings) {
        if (word.size() - ending.size() >= shortestStem && word.endsWith(ending))
            return word.chopped(ending.size());
    }
    return word;
}

} // namespace

QString unitStem(const QString &unit) {
    const QString lower = unit.toLower();
    if (lower.size() > 2 && lower.endsWith(u's'))
        return lower.chopped(1);
    QStringList words = lower.split(u' ', Qt::SkipEmptyParts);
    for (QString &word : words)
        word = stemOfWord(word);
    return words.join(u' ');
}

} // namespace kiv::canvas
