#include "canvas/FigureName.h"

#include <QSet>
#include <QStringList>

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 60;
constexpr qsizetype mostNameWords = 6;

QSet<QString> wordSet(const QString &words) {
    const QStringList list = words.split(u' ');
    return {list.begin(), list.end()};
}

/// Without the number or the punctuation behind it: "Chapter 2", "Room #12", "Tel."
QString lastWord(QStringView text) {
    QString words = text.trimmed().toString().toLower();
    while (words.size() > 1 && (words.back().isDigit() || u".:#- "_s.contains(words.back())))
        words.chop(1);
    return words.sliced(words.lastIndexOf(u' ') + 1);
}

} // namespace

bool isFigureName(QStringView name) {
    static const QSet<QString> sentenceWords =
        wordSet(u"i we you they he she it this that there is are was were "
                u"я мы вы они он она это есть было была"_s);
    static const QSet<QString> remarks =
        wordSet(u"note notes nb n.b. also hint tip p.s. ps p.p.s. remember example e.g. "
                u"важно заметка примечание кстати также например"_s);
    const QStringView text = name.trimmed();
    if (text.isEmpty() || text.size() > longestName || text.contains(u". ") ||
        text.contains(u'?') || text.contains(u'!') || text.contains(u';') || text.contains(u"://"))
        return false;
    const QString lower = text.toString().toLower();
    const QStringList words = lower.split(u' ', Qt::SkipEmptyParts);
    return words.size() <= mostNameWords && !remarks.contains(lower) &&
           std::none_of(words.begin(), words.end(),
                        [](const QString &word) { return sentenceWords.contains(word); });
}

bool namesNoMeasure(QStringView name) {
    static const QSet<QString> marks = wordSet(
        u"year date phone tel fax mobile id version release build room seat gate flight house flat "
        u"page chapter psalm line lines verse question issue code pin number no № iban isbn "
        u"account order invoice "
        u"founded since born died port zip postcode extension ext options rank place position "
        u"priority severity due deadline eta latitude longitude lat lon lng floor "
        u"год дата телефон тел факс версия релиз сборка комната место выход рейс дом квартира кв "
        u"страница стр глава строка вопрос код пин номер инн счёт заказ договор индекс "
        u"порт варианты опции ранг приоритет срок дедлайн широта долгота этаж"_s);
    return marks.contains(lastWord(name));
}

bool headsNoMeasure(QStringView heading) {
    static const QSet<QString> marks =
        wordSet(u"versions releases phones numbers contacts ports codes dates deadlines contents "
                u"schedule timetable years rooms ids priorities "
                u"версии релизы телефоны номера контакты порты коды даты сроки дедлайны "
                u"содержание оглавление расписание годы приоритеты"_s);
    return marks.contains(lastWord(heading)) || namesNoMeasure(heading);
}

} // namespace kiv::canvas
