#include "canvas/FigureLift.h"
#include "canvas/FigureName.h"
#include "canvas/ProseLifts.h"
#include "canvas/ProseLines.h"
#include "canvas/TextCues.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLabel = 40;
constexpr qsizetype longestValue = 40; // a longer one is a sentence

/// Where the label ends and where its value begins: behind the first colon or dash that white space
/// follows.
struct Separator {
    qsizetype at;
    qsizetype value;
};

std::optional<Separator> separatorIn(const QString &line) {
    const qsizetype stop = std::min(line.size() - 1, longestLabel + 2);
    for (qsizetype i = 1; i < stop; ++i) {
        if (u":—–−"_s.contains(line.at(i)) && line.at(i + 1).isSpace())
            return Separator{i, i + 2};
    }
    return std::nullopt;
}

/// The label behind a bullet that mark-down does not know: "– Ads", "▪ Ads".
QString withoutBullet(const QString &label) {
    const bool hasBullet =
        label.size() > 2 && u"+–—·▪◦‣→"_s.contains(label.at(0)) && label.at(1) == u' ';
    return hasBullet ? label.sliced(2).trimmed() : label;
}

/// A label and value line; nothing for prose and for lines of another kind.
std::optional<LiftedLine> lineOf(const ProseLine &line) {
    const QStringView text = line.text.trimmed();
    const bool isOther = line.isCode || line.isDeep() || text.contains(u'|') ||
                         text.startsWith(u'#') || text.startsWith(u'>') || listItem(text);
    if (isOther)
        return std::nullopt;
    const QString plain = CanvasEngine::stripInline(text);
    const auto separator = separatorIn(plain);
    if (!separator)
        return std::nullopt;
    LiftedLine lifted{withoutBullet(plain.first(separator->at).trimmed()),
                      plain.sliced(separator->value).trimmed(), std::nullopt};
    const bool named =
        std::any_of(lifted.name.begin(), lifted.name.end(), [](QChar c) { return c.isLetter(); });
    if (!named || lifted.name.size() > longestLabel || !isFigureName(lifted.name) ||
        lifted.text.isEmpty() || lifted.text.size() > longestValue)
        return std::nullopt;
    lifted.figure = measure(lifted.name, lifted.text);
    return lifted;
}

/// Figures are what the lines are about: at least two, and half of them.
bool isOfFigures(const QList<LiftedLine> &lines) {
    const qsizetype figures = figureCount(lines);
    return figures >= 2 && figures * 2 >= lines.size();
}

} // namespace

std::optional<ViewSpec> CanvasEngine::liftKv(const QString &text) {
    const QList<ProseLine> lines = proseLines(text);
    QList<LiftedLine> run;
    qsizetype first = 0;
    for (qsizetype index = 0; index <= lines.size(); ++index) {
        if (index < lines.size() && lines.at(index).isBlank())
            continue;
        const auto lifted = index < lines.size() ? lineOf(lines.at(index)) : std::nullopt;
        if (lifted) {
            if (run.isEmpty())
                first = index;
            run.append(*lifted);
            continue;
        }
        const auto heading = isOfFigures(run) ? headingOver(lines, first) : std::nullopt;
        if (isOfFigures(run) && !areMarks(run, heading)) {
            ViewSpec spec = cards(run);
            spec.title = heading;
            return spec;
        }
        run.clear();
    }
    return std::nullopt;
}

} // namespace kiv::canvas
