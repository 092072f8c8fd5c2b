#include "canvas/AnswerReading.h"

#include "canvas/AnswerBlock.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Where a data block begins that runs to the end of the text, or may turn out to: its language
/// word need not be there yet.
std::optional<qsizetype> openBlockAt(QStringView text) {
    const qsizetype fence = text.lastIndexOf(u"```"_s);
    if (fence < 0)
        return std::nullopt;
    const QStringView behind = text.sliced(fence + 3);
    const qsizetype lineEnd = behind.indexOf(u'\n');
    const QStringView word = (lineEnd < 0 ? behind : behind.first(lineEnd)).trimmed();
    const auto begins = [&](const QString &language) {
        return lineEnd < 0 ? language.startsWith(word, Qt::CaseInsensitive)
                           : language.compare(word, Qt::CaseInsensitive) == 0;
    };
    if (begins(u"view"_s) || begins(u"chart"_s) || begins(u"kpi"_s))
        return fence;
    return std::nullopt;
}

bool mayBeTableRow(QStringView line) {
    return line.contains(u'|');
}

/// Whether the text goes on behind its last table row, so that no further row can come.
bool endsBehindTable(QStringView text) {
    const qsizetype lastStart = text.lastIndexOf(u'\n') + 1;
    const QStringView last = text.sliced(lastStart);
    if (!last.trimmed().isEmpty())
        return !mayBeTableRow(last);
    const QStringView above = text.first(std::max<qsizetype>(lastStart - 1, 0));
    return !mayBeTableRow(above.sliced(above.lastIndexOf(u'\n') + 1));
}

} // namespace

AnswerReading readAnswer(const QString &text, const std::optional<JVal> &view,
                         const ReplySources &sources) {
    // An options line right below a table must not be read as a row of it.
    const auto replies = ReplyOptions::parse(text, sources);
    const auto answer = CanvasEngine::extractViewSpec(replies.text, view);
    AnswerReading reading{
        .text = replies.text, .shown = answer.text, .chips = replies.chips, .spec = answer.spec};
    if (replies.text == text) {
        // Only a block may have stood behind the options.
        const auto rest = ReplyOptions::parse(answer.text, sources);
        reading.shown = rest.text;
        reading.chips = rest.chips;
    }
    if (reading.spec) {
        const bool isTable = !reading.spec->columns.isEmpty();
        reading.isWhole = !answer.isLifted || (isTable && endsBehindTable(replies.text));
    }
    return reading;
}

QString withoutOpenBlock(const QString &text) {
    const auto open = openBlockAt(text);
    return open ? text.first(*open).trimmed() : text;
}

} // namespace kiv::canvas
