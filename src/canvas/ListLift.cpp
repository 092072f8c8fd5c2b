#include "canvas/FigureLift.h"
#include "canvas/FigureName.h"
#include "canvas/ProseLifts.h"
#include "canvas/ProseLines.h"
#include "canvas/TextCues.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// "[ ] Test: 3 cases" is something to do, not a figure.
bool isTask(const QString &item) {
    return item.startsWith(u"[ ]") || item.startsWith(u"[x]", Qt::CaseInsensitive);
}

/// The figure behind the name. A dash may set a remark off from it: "$1,200 — mostly search".
LiftedLine valueOf(const QString &name, const QString &text) {
    LiftedLine line{name, text, measure(name, text)};
    for (const QString &dash : {u" — "_s, u" – "_s}) {
        const qsizetype at = line.figure ? -1 : text.indexOf(dash);
        if (at <= 0)
            continue;
        line.text = text.first(at).trimmed();
        line.figure = measure(name, line.text);
        if (line.figure && line.figure->remark.isEmpty())
            line.figure->remark = text.sliced(at + dash.size()).trimmed();
    }
    return line;
}

LiftedLine lineOf(QStringView item) {
    const QString plain = CanvasEngine::stripInline(item);
    if (isTask(plain))
        return {plain, {}, {}};
    for (const QString &separator : {u" — "_s, u" – "_s, u": "_s, u" - "_s}) {
        const qsizetype at = plain.indexOf(separator);
        if (at <= 0)
            continue;
        const QString name = plain.first(at).trimmed();
        LiftedLine line = valueOf(name, plain.sliced(at + separator.size()).trimmed());
        if (line.figure && isFigureName(name))
            return line;
    }
    return {plain, {}, {}};
}

/// A list and the index behind it. Deeper items and continued lines belong to their item.
struct List {
    QList<LiftedLine> items;
    qsizetype end;
};

List listAt(const QList<ProseLine> &lines, qsizetype first) {
    List list{{}, first};
    for (; list.end < lines.size(); ++list.end) {
        const ProseLine &line = lines.at(list.end);
        if (line.isCode)
            break;
        if (line.isBlank() || line.indent() > lines.at(first).indent() + 1)
            continue;
        const auto item = listItem(line.text);
        if (!item)
            break;
        list.items.append(lineOf(*item));
    }
    return list;
}

/// Figures are what the list is about: at least two, and two of three items.
bool isOfFigures(const QList<LiftedLine> &items) {
    const qsizetype figures = figureCount(items);
    return figures >= 2 && figures * 3 >= items.size() * 2;
}

} // namespace

std::optional<ViewSpec> CanvasEngine::liftList(const QString &text) {
    const QList<ProseLine> lines = proseLines(text);
    qsizetype index = 0;
    while (index < lines.size()) {
        const ProseLine &line = lines.at(index);
        if (line.isCode || line.isDeep() || !listItem(line.text)) {
            ++index;
            continue;
        }
        const List list = listAt(lines, index);
        const auto heading = headingOver(lines, index);
        if (isOfFigures(list.items) && !areMarks(list.items, heading)) {
            ViewSpec spec = barsOrCards(list.items);
            spec.title = heading;
            return spec;
        }
        index = list.end;
    }
    return std::nullopt;
}

} // namespace kiv::canvas
