#include "canvas/ReplyOptions.h"

#include "base/Regex.h"
#include "base/Text.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostOptions = 4;
constexpr qsizetype longestOption = 80;
constexpr qsizetype longestStarterLabel = 60;
constexpr qsizetype longestPrompt = 400;

struct OptionsLine {
    qsizetype start;
    QStringView list;
};

/// The text without the one line end that may stand at its end.
QStringView withoutFinalLineEnd(QStringView text) {
    if (text.endsWith(u"\r\n"))
        return text.chopped(2);
    const bool ends = !text.isEmpty() && u"\n\v\f\r\u0085\u2028\u2029"_s.contains(text.back());
    return ends ? text.chopped(1) : text;
}

/// (?:^|\n)[ \t]*(?:OPTIONS|ВАРИАНТЫ|ОПЦИИ)[ \t]*:[ \t]*([^\n]*?)[ \t]*$ without multi-line
/// anchors: only the last line can match, so only that one is looked at.
std::optional<OptionsLine> findOptionsLine(QStringView text) {
    static const Regex head(u"^[ \\t]*(?:OPTIONS|ВАРИАНТЫ|ОПЦИИ)[ \\t]*:[ \\t]*",
                            Regex::CaseInsensitive);
    const QStringView content = withoutFinalLineEnd(text);
    const qsizetype start = content.lastIndexOf(u'\n') + 1;
    const QStringView line = content.sliced(start);
    const auto found = head.find(line);
    if (!found)
        return std::nullopt;
    QStringView list = line.sliced(found->range().end());
    while (list.endsWith(u' ') || list.endsWith(u'\t'))
        list.chop(1);
    return OptionsLine{start, list};
}

/// Every white-space character a space, CR LF counting as one; runs stay.
QString normalised(QStringView option) {
    QString result;
    result.reserve(option.size());
    for (qsizetype i = 0; i < option.size(); ++i) {
        const QChar c = option.at(i);
        const bool firstHalf = c == u'\r' && i + 1 < option.size() && option.at(i + 1) == u'\n';
        if (!firstHalf)
            result += c.isSpace() ? u' ' : c;
    }
    return result.trimmed();
}

template <typename Options>
QList<ReplyChip> optionChips(const Options &options) {
    QList<ReplyChip> chips;
    for (const auto &raw : options) {
        const QString option = normalised(raw);
        if (!option.isEmpty() && characterCount(option) <= longestOption)
            chips.append({.label = option, .send = option});
        if (chips.size() == mostOptions)
            break;
    }
    return chips;
}

QList<ReplyChip> starterChips(const QList<Starter> &starters) {
    QList<ReplyChip> chips;
    for (const Starter &starter : starters) {
        const QString label = starter.label.trimmed();
        const QString prompt = starter.prompt.trimmed();
        if (!label.isEmpty() && !prompt.isEmpty() && characterCount(label) <= longestStarterLabel)
            chips.append({.label = label, .send = firstCharacters(prompt, longestPrompt)});
    }
    return chips;
}

QList<ReplyChip> confirmationChips() {
    return {{.label = u"Yes"_s, .send = u"Yes"_s}, {.label = u"No"_s, .send = u"No"_s}};
}

QList<ReplyChip> recoveryChips() {
    return {{.label = u"Try again"_s, .send = u"Try that again"_s},
            {.label = u"Skip and continue"_s, .send = u"Skip it and continue"_s},
            {.label = u"Try another way"_s, .send = u"Try a different approach"_s}};
}

} // namespace

ReplyOptions::Parsed ReplyOptions::parse(const QString &text, const ReplySources &sources) {
    Parsed parsed{text, {}};
    if (sources.choiceOptions) {
        parsed.chips = optionChips(*sources.choiceOptions);
    } else if (const auto line = findOptionsLine(text)) {
        parsed.chips = optionChips(line->list.tokenize(u'|'));
        parsed.text = text.first(line->start).trimmed();
    } else if (sources.starters) {
        parsed.chips = starterChips(*sources.starters);
    }
    if (parsed.chips.size() < 2) {
        if (sources.confirmAsk.value_or(false))
            parsed.chips = confirmationChips();
        else if (!sources.errorMessage.value_or(QString()).trimmed().isEmpty())
            parsed.chips = recoveryChips();
    }
    return parsed;
}

} // namespace kiv::canvas
