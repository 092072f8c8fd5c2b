#include "text/MDParser.h"

#include <algorithm>

namespace kiv::text::MDParser {

namespace {

bool isSpace(QChar c) {
    return c == u' ' || c == u'\t' ||
           (c.unicode() > 0x7f && c.category() == QChar::Separator_Space);
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

QStringView trimmed(QStringView line) {
    while (!line.isEmpty() && isSpace(line.front()))
        line = line.sliced(1);
    while (!line.isEmpty() && isSpace(line.back()))
        line.chop(1);
    return line;
}

std::optional<QStringView> bulletItem(QStringView line) {
    line = trimmed(line);
    if (line.size() < 3 || (line[0] != u'-' && line[0] != u'*' && line[0] != u'•') ||
        (line[1] != u' ' && line[1] != u'\t'))
        return std::nullopt;
    // The line ends with no space: something is left behind the marker.
    return trimmed(line.sliced(2));
}

std::optional<TaskItem> taskItem(QStringView line) {
    const auto item = bulletItem(line);
    if (!item || item->size() < 4 || item->front() != u'[' || item->at(2) != u']')
        return std::nullopt;
    const QChar state = item->at(1);
    if (state != u' ' && state != u'x' && state != u'X')
        return std::nullopt;
    return TaskItem{state != u' ', trimmed(item->sliced(3))};
}

std::optional<OrderedItem> orderedItem(QStringView line) {
    line = trimmed(line);
    const auto digits = std::find_if_not(line.begin(), line.end(), isDigit) - line.begin();
    if (digits == 0 || digits + 1 >= line.size() || (line[digits] != u'.' && line[digits] != u')'))
        return std::nullopt;
    bool fits = false;
    const qint64 number = line.first(digits).toLongLong(&fits);
    if (!fits)
        return std::nullopt;
    return OrderedItem{number, trimmed(line.sliced(digits + 1))};
}

std::optional<HeadingItem> headingItem(QStringView line) {
    line = trimmed(line);
    const auto hashes =
        std::find_if_not(line.begin(), line.end(), [](QChar c) { return c == u'#'; }) -
        line.begin();
    if (hashes < 1 || hashes > 6 || hashes == line.size() || line[hashes] != u' ')
        return std::nullopt;
    QStringView text = trimmed(line.sliced(hashes));
    while (text.endsWith(u'#'))
        text = trimmed(text.chopped(1));
    if (text.isEmpty())
        return std::nullopt;
    return HeadingItem{static_cast<int>(std::min<qsizetype>(hashes, 3)), text};
}

bool isRule(QStringView line) {
    line = trimmed(line);
    if (line.size() < 3 || (line[0] != u'-' && line[0] != u'*' && line[0] != u'_'))
        return false;
    return std::all_of(line.begin(), line.end(), [&](QChar c) { return c == line[0]; });
}

bool isTableRule(QStringView line) {
    int dashes = 0;
    int longest = 0;
    for (const QChar c : trimmed(line)) {
        if (c == u' ')
            continue;
        if (c != u'-' && c != u'|' && c != u':')
            return false;
        dashes = c == u'-' ? dashes + 1 : 0;
        longest = std::max(longest, dashes);
    }
    return longest >= 3;
}

QStringList cells(QStringView line) {
    line = trimmed(line);
    if (line.startsWith(u'|'))
        line = line.sliced(1);
    if (line.endsWith(u'|'))
        line.chop(1);
    QStringList result;
    for (const QStringView cell : line.tokenize(u'|'))
        result.append(trimmed(cell).toString());
    return result;
}

} // namespace kiv::text::MDParser
