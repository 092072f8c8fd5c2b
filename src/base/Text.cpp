#include "base/Text.h"

#include <QTextBoundaryFinder>

namespace kiv {

QString firstCharacters(const QString &text, qsizetype count) {
    if (text.size() <= count)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype seen = 0; seen < count; ++seen) {
        const qsizetype next = finder.toNextBoundary();
        if (next < 0)
            break;
        end = next;
    }
    return text.first(end);
}

QString lastCharacters(const QString &text, qsizetype count) {
    if (text.size() <= count)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.toEnd();
    qsizetype start = text.size();
    for (qsizetype seen = 0; seen < count; ++seen) {
        const qsizetype previous = finder.toPreviousBoundary();
        if (previous < 0)
            break;
        start = previous;
    }
    return text.sliced(start);
}

qsizetype characterCount(const QString &text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() > 0)
        ++count;
    return count;
}

} // namespace kiv
