#include "canvas/TableText.h"

#include "base/Regex.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// A spreadsheet runs a cell that begins with = + - @ as a formula, and an answer may hold what
/// others wrote. What would be one gets an apostrophe in front, which makes it a text; so does what
/// stands behind a tab, a line break or the semicolon, which separates cells where the comma is the
/// decimal sign. A signed figure stays as it is, with its unit and the words behind it ("-12",
/// "+6.2% on last week", "-$1,200.50"): without an operator, a bracket or a name in front there is
/// nothing in it to run. So does a sign alone, the dash of a missing value.
QString guarded(const QString &cell) {
    static const Regex formula(
        u"(^|[;\\t\\r\\n])(?=[=+\\-@\uff1d\uff0b\uff0d\uff20])"
        u"(?![+\\-](?: ?\\p{Sc})? ?\\d[\\p{L}\\d\\p{Sc}\\p{Zs}.,%‰°'’]*(?:[;\\t\\r\\n]|$))"
        u"(?![+\\-]+(?:[;\\t\\r\\n]|$))");
    return formula.replaceAll(cell, u"$1'"_s);
}

QString written(const QString &cell, QChar separator) {
    const bool isPlain = std::ranges::none_of(
        cell, [&](QChar c) { return c == separator || c == u'"' || c == u'\r' || c == u'\n'; });
    return isPlain ? cell : u'"' + QString(cell).replace(u'"', u"\"\""_s) + u'"';
}

/// Of all rows; 0 where filling them up to it would take too many cells.
qsizetype widthOf(const QList<AnswerTable> &tables) {
    qsizetype width = 0;
    qsizetype rows = 0;
    for (const AnswerTable &table : tables) {
        width = std::max(width, table.columns.size());
        rows += table.rows.size();
        for (const QStringList &row : table.rows)
            width = std::max(width, row.size());
    }
    return width * rows <= mostCells ? width : 0;
}

QString delimited(const QList<AnswerTable> &tables, QChar separator, const QString &lineEnd) {
    const qsizetype width = widthOf(tables);
    QString text;
    const auto writeRow = [&](const QStringList &row) {
        for (qsizetype cell = 0; cell < std::max(width, row.size()); ++cell) {
            if (cell > 0)
                text += separator;
            text += written(guarded(row.value(cell)), separator);
        }
        text += lineEnd;
    };
    for (qsizetype i = 0; i < tables.size(); ++i) {
        if (i > 0)
            writeRow({});
        if (!tables.at(i).columns.isEmpty())
            writeRow(tables.at(i).columns);
        std::ranges::for_each(tables.at(i).rows, writeRow);
    }
    return text;
}

} // namespace

QString csvText(const QList<AnswerTable> &tables) {
    return delimited(tables, u',', u"\r\n"_s);
}

QString tsvText(const QList<AnswerTable> &tables) {
    return delimited(tables, u'\t', u"\n"_s);
}

} // namespace kiv::canvas
