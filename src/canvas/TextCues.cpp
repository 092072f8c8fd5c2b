#include "canvas/TextCues.h"

#include "base/Regex.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct StatusWords {
    QString status;
    QStringList words;
};

/// In the order in which they are asked: "not started" is doing, because it contains "started".
const QList<StatusWords> &statusTable() {
    static const QList<StatusWords> table{
        {u"unknown"_s,
         {u"unknown"_s, u"n/a"_s, u"not tracked"_s, u"no data"_s, u"нет данных"_s, u"◌"_s}},
        {u"blocked"_s, {u"blocked"_s, u"заблокировано"_s, u"stuck"_s, u"failed"_s, u"ошибка"_s}},
        {u"done"_s,
         {u"done"_s, u"готово"_s, u"выполнено"_s, u"завершено"_s, u"yes"_s, u"shipped"_s,
          u"live"_s}},
        {u"doing"_s, {u"doing"_s, u"in progress"_s, u"в работе"_s, u"started"_s, u"running"_s}},
        {u"todo"_s,
         {u"todo"_s, u"to do"_s, u"не начато"_s, u"planned"_s, u"not started"_s, u"pending"_s}},
    };
    return table;
}

/// \[([^\]]*)\]\([^)]*\) replaced by its first group, in one pass: as a pattern it would look for
/// the closing bracket anew from every opening one.
QString withoutLinkTargets(QStringView text) {
    QString result;
    qsizetype copied = 0;
    qsizetype open = text.indexOf(u'[');
    while (open >= 0) {
        const qsizetype close = text.indexOf(u']', open + 1);
        if (close < 0)
            break;
        if (close + 1 < text.size() && text.at(close + 1) == u'(') {
            const qsizetype end = text.indexOf(u')', close + 2);
            if (end < 0)
                break;
            result.append(text.sliced(copied, open - copied));
            result.append(text.sliced(open + 1, close - open - 1));
            copied = end + 1;
            open = text.indexOf(u'[', copied);
        } else {
            open = text.indexOf(u'[', close + 1);
        }
    }
    return result.append(text.sliced(copied));
}

} // namespace

std::optional<QString> CanvasEngine::statusWord(QStringView text) {
    const QString lower = text.trimmed().toString().toLower();
    if (lower.isEmpty())
        return std::nullopt;
    for (const auto &[status, words] : statusTable()) {
        const auto isThere = [&lower](const QString &word) { return lower.contains(word); };
        if (std::any_of(words.begin(), words.end(), isThere))
            return status;
    }
    return std::nullopt;
}

QString CanvasEngine::unitToken(QStringView text) {
    for (const QChar sign : u"◆$€₽%"_s) {
        if (text.contains(sign))
            return sign;
    }
    return {};
}

QString CanvasEngine::stripInline(QStringView text) {
    QString plain = withoutLinkTargets(text);
    plain.removeIf([](QChar c) { return c == u'*' || c == u'_' || c == u'`'; });
    return plain.simplified();
}

bool CanvasEngine::looksTemp(const ViewSpec &spec) {
    // One digit stands for the whole number before it: only its end is next to the degree sign.
    static const Regex degrees(u"\\d\\s*°\\s*[cCfF]");
    QStringList parts{spec.title.value_or(QString()), spec.unit.value_or(QString())};
    for (const ViewSpec::Point &point : spec.points)
        parts << point.label << point.display.value_or(QString());
    return degrees.contains(parts.join(u' '));
}

bool CanvasEngine::looksDays(const ViewSpec &spec) {
    static const Regex day(u"^(?:пн|вт|ср|чт|пт|сб|вс|mon|tue|wed|thu|fri|sat|sun)[a-zа-яё]*$",
                           Regex::CaseInsensitive);
    if (spec.points.isEmpty())
        return false;
    const auto days =
        std::count_if(spec.points.begin(), spec.points.end(), [](const ViewSpec::Point &point) {
            return day.contains(QStringView(point.label).trimmed());
        });
    return days * 5 >= spec.points.size() * 3;
}

} // namespace kiv::canvas
