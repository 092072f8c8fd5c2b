#include "base/JVal.h"
#include "base/Regex.h"
#include "canvas/AnswerTable.h"
#include "canvas/FigureLift.h"
#include "canvas/ProseFigure.h"
#include "canvas/ProseLifts.h"
#include "canvas/ProseLines.h"
#include "canvas/SceneFigures.h"
#include "canvas/TextCues.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct Table {
    QStringList columns;
    QList<QStringList> rows;
    qsizetype first = 0; ///< lines of the answer, from the header
    qsizetype last = 0;  ///< to behind the last row
};

/// Split at every bar that is not escaped; those at both ends only frame the row.
QStringList cellsOf(QStringView line) {
    QStringView row = line.trimmed();
    if (row.startsWith(u'|'))
        row = row.sliced(1);
    if (row.endsWith(u'|') && !row.endsWith(u"\\|"))
        row.chop(1);
    QStringList cells{QString()};
    for (qsizetype i = 0; i < row.size(); ++i) {
        if (row.at(i) == u'\\' && i + 1 < row.size() && row.at(i + 1) == u'|')
            cells.last() += row.at(++i);
        else if (row.at(i) == u'|')
            cells.append(QString());
        else
            cells.last() += row.at(i);
    }
    for (QString &cell : cells)
        cell = CanvasEngine::stripInline(cell.replace(u"<br>"_s, u" "_s, Qt::CaseInsensitive));
    return cells;
}

bool isDivider(const QString &cell) {
    const QStringView dashes = QStringView(cell).sliced(cell.startsWith(u':') ? 1 : 0);
    const QStringView bare = dashes.endsWith(u':') ? dashes.chopped(1) : dashes;
    return !bare.isEmpty() &&
           std::all_of(bare.begin(), bare.end(), [](QChar c) { return c == u'-'; });
}

bool isRow(const ProseLine &line) {
    return !line.isCode && line.text.contains(u'|');
}

/// A line that only draws, such as a further divider among the rows.
bool isRule(const ProseLine &line) {
    return line.text.contains(u"---") && std::ranges::all_of(line.text, [](QChar c) {
               return c.isSpace() || c == u'|' || c == u'-' || c == u':';
           });
}

/// A header and the divider under it with as many cells.
std::optional<QStringList> headerAt(const QList<ProseLine> &lines, qsizetype index) {
    static const Regex dividerStart(u"^\\|?\\s*:?-{3,}");
    const ProseLine &header = lines.at(index);
    const ProseLine &divider = lines.at(index + 1);
    if (header.isCode || divider.isCode || header.isDeep() || !header.text.contains(u'|') ||
        !dividerStart.contains(divider.text.trimmed()))
        return std::nullopt;
    const QStringList marks = cellsOf(divider.text);
    if (!std::all_of(marks.begin(), marks.end(), isDivider))
        return std::nullopt;
    const QStringList names = cellsOf(header.text);
    return names.size() == marks.size() && names.size() > 1 ? std::optional(names) : std::nullopt;
}

/// Rows take the header's width: missing cells are empty, those beyond it are dropped.
Table tableOf(const QStringList &columns, const QList<ProseLine> &lines, qsizetype first,
              qsizetype last) {
    Table table{columns, {}, first, last};
    for (qsizetype i = first + 2; i < last; ++i) {
        if (isRule(lines.at(i)))
            continue;
        QStringList row = cellsOf(lines.at(i).text).mid(0, columns.size());
        while (row.size() < columns.size())
            row.append(QString());
        table.rows.append(row);
    }
    return table;
}

/// The first table with rows. One of very many cells, most of which may not even be written, stays
/// in the chat.
std::optional<Table> firstTable(const QList<ProseLine> &lines) {
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        const auto columns = headerAt(lines, i);
        if (!columns)
            continue;
        const qsizetype rows = i + 2;
        qsizetype end = rows;
        while (end < lines.size() && isRow(lines.at(end)))
            ++end;
        if ((end - rows) * columns->size() <= mostCells) {
            Table table = tableOf(*columns, lines, i, end);
            if (!table.rows.isEmpty())
                return table;
        }
        i = end - 1;
    }
    return std::nullopt;
}

/// The figures of a column when every cell is one and all share a unit.
std::optional<QList<ProseFigure>> figuresOf(const Table &table, qsizetype column) {
    QList<ProseFigure> figures;
    for (const QStringList &row : table.rows) {
        const auto figure = proseFigure(row.at(column));
        if (!figure || (!figures.isEmpty() && figure->unitKey() != figures.first().unitKey()))
            return std::nullopt;
        figures.append(*figure);
    }
    return figures;
}

/// Whether a column holds figures, as far as it holds any: marks and years are texts.
bool measures(const Table &table, qsizetype column) {
    const QString &name = table.columns.at(column);
    return std::any_of(table.rows.begin(), table.rows.end(), [&](const QStringList &row) {
        const auto figure = measure(name, row.at(column));
        return figure && !figure->mayBeDate();
    });
}

/// The unit that a column's name gives to its plain numbers: "Hours, %", "Cost ($)". One of
/// thousands is taken whole, "$k"; where it does not stand apart, the heading alone tells it.
QString unitNamed(const QString &column) {
    static const Regex apart(u"[,(]\\s*([^,()]{1,20})\\)?\\s*$");
    static const Regex multiplier(u"\\b(?:thousands?|millions?|billions?|bn|mln)\\b|"
                                  u"(?:^|[^\\p{L}])[km](?![\\p{L}²³/])|тыс|млн|млрд",
                                  Regex::CaseInsensitive);
    const auto tail = apart.find(column);
    const QString unit = tail ? tail->captured(1).trimmed().toString() : QString();
    const QString sign = CanvasEngine::unitToken(column);
    if (!multiplier.contains(column))
        return sign;
    return multiplier.contains(unit) ? unit : QString();
}

/// The only column of figures of a narrow table; the first column names the rows.
std::optional<qsizetype> soleFigures(const Table &table) {
    constexpr qsizetype widest = 3;
    if (table.columns.size() > widest || table.rows.size() < 2 || table.rows.size() > mostBars)
        return std::nullopt;
    std::optional<qsizetype> sole;
    for (qsizetype column = 1; column < table.columns.size(); ++column) {
        const bool someFigure = measures(table, column);
        if (someFigure && (sole || !figuresOf(table, column)))
            return std::nullopt;
        if (someFigure)
            sole = column;
    }
    const bool named = std::none_of(table.rows.begin(), table.rows.end(),
                                    [](const QStringList &row) { return row.first().isEmpty(); });
    static const QStringList counters{u"#"_s, u"№"_s, u"no"_s, u"no."_s, u"id"_s};
    return named && !counters.contains(table.columns.first().toLower()) ? sole : std::nullopt;
}

QList<ViewSpec::Point> barsOf(const Table &table, qsizetype column) {
    QList<ViewSpec::Point> points;
    for (const QStringList &row : table.rows) {
        const auto figure = proseFigure(row.at(column));
        ViewSpec::Point point{
            .label = row.first(), .value = figure->value, .display = row.at(column)};
        const QString other = row.value(column == 1 ? 2 : 1);
        if (!other.isEmpty())
            point.hint = other;
        points.append(point);
    }
    return points;
}

/// Two options scored by criteria: plain figures up to ten, or figures written as parts of a whole,
/// under a first column that speaks of criteria or is not named.
bool scoresTwoOptions(const Table &table) {
    static const Regex criteria(u"^$|criteri|factor|aspect|score|dimension|критери|фактор|аспект|"
                                u"оценк|параметр",
                                Regex::CaseInsensitive);
    if (table.columns.size() != 3 || table.rows.size() < 2 || table.columns.at(1).isEmpty() ||
        table.columns.at(2).isEmpty())
        return false;
    bool ofWhole = true;
    for (const QStringList &row : table.rows) {
        for (const qsizetype column : {1, 2}) {
            const auto score = proseFigure(row.at(column));
            const bool part = score && score->unit.startsWith(u'/');
            ofWhole = ofWhole && part;
            constexpr double highest = 10;
            const bool plain = score && score->unit.isEmpty() && score->value >= 0 &&
                               (score->value <= highest || isTotalName(row.first()));
            if (!part && !plain)
                return false;
        }
    }
    return ofWhole || criteria.contains(table.columns.first());
}

ViewSpec specOf(const Table &table) {
    ViewSpec spec;
    spec.columns = table.columns;
    spec.rows = table.rows;
    if (scoresTwoOptions(table)) {
        spec.kind = u"compare"_s;
    } else if (const auto column = soleFigures(table)) {
        spec.kind = u"hbar"_s;
        spec.points = barsOf(table, *column);
        const QString unit = figuresOf(table, *column)->first().unit;
        spec.unit = unit.isEmpty() ? unitNamed(table.columns.at(*column)) : unit;
        if (!table.columns.at(*column).isEmpty())
            spec.title = table.columns.at(*column);
    } else {
        spec.kind = u"table"_s;
    }
    if (spec.unit && spec.unit->isEmpty())
        spec.unit.reset();
    return spec;
}

QString keyOf(const ViewSpec &spec) {
    JVal::Array lines{JVal::str(spec.kind)};
    for (const QStringList &row : QList<QStringList>{spec.columns} + spec.rows) {
        JVal::Array cells;
        for (const QString &cell : row)
            cells.append(JVal::str(cell));
        lines.append(JVal::arr(cells));
    }
    return JVal::arr(lines).canonical();
}

} // namespace

CanvasEngine::DrawableAnswer CanvasEngine::liftGfmTable(const QString &text) {
    if (!text.contains(u"---"_s) || !text.contains(u'|'))
        return {text, std::nullopt};
    const QList<ProseLine> lines = proseLines(text);
    const auto table = firstTable(lines);
    if (!table)
        return {text, std::nullopt};
    ViewSpec spec = specOf(*table);
    if (const auto heading = headingOver(lines, table->first))
        spec.title = *heading;
    spec.jsonKey = keyOf(spec);
    const QString left =
        text.first(lines.at(table->first).start) + text.sliced(lines.at(table->last - 1).end);
    return {closedUp(left), spec};
}

} // namespace kiv::canvas
