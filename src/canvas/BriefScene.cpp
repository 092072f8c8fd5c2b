#include "canvas/SceneBuilders.h"
#include "canvas/SceneText.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct StatusColumn {
    QString status;
    QString name;
    SceneColor color;
};

/// In the order in which work moves; cards without a status stand before what is done.
const QList<StatusColumn> &statusColumns() {
    static const QList<StatusColumn> columns{
        {u"todo"_s, u"To do"_s, SceneColor::Violet},
        {u"doing"_s, u"Doing"_s, SceneColor::Blue},
        {u"blocked"_s, u"Blocked"_s, SceneColor::Red},
        {u"unknown"_s, u"Unknown"_s, SceneColor::Amber},
        {QString(), u"Items"_s, SceneColor::Amber},
        {u"done"_s, u"Done"_s, SceneColor::Green},
    };
    return columns;
}

QString metaOf(const ViewSpec::Point &point, const QString &unit) {
    QStringList parts{point.hint.value_or(QString()).trimmed()};
    // A value that is the status in words is the column already.
    if (point.value || !point.status)
        parts.append(valueText(point, unit));
    parts.removeAll(QString());
    return parts.join(u" · ");
}

QList<BriefCol> columnsByStatus(const ViewSpec &spec) {
    const QString unit = spec.unit.value_or(QString());
    QList<BriefCol> columns;
    for (const auto &[status, name, color] : statusColumns()) {
        BriefCol column{.name = name, .color = color};
        for (const ViewSpec::Point &point : spec.points) {
            const QString label = point.label.trimmed();
            if (!label.isEmpty() && point.status.value_or(QString()) == status)
                column.items.append({label, metaOf(point, unit)});
        }
        column.count = static_cast<int>(column.items.size());
        if (column.count > 0)
            columns.append(column);
    }
    return columns;
}

/// Columns without a card are left out; the others keep the colour of their place.
QList<BriefCol> columnsOfBoard(const QList<ViewSpec::BoardCol> &board) {
    static const QList<SceneColor> colors{SceneColor::Green, SceneColor::Amber, SceneColor::Violet};
    QList<BriefCol> columns;
    for (qsizetype index = 0; index < board.size(); ++index) {
        BriefCol column{.name = board.at(index).name, .color = colors.at(index % colors.size())};
        for (const ViewSpec::Point &card : board.at(index).points) {
            if (!card.label.isEmpty())
                column.items.append({.text = card.label});
        }
        column.count = static_cast<int>(column.items.size());
        if (column.count > 0)
            columns.append(column);
    }
    return columns;
}

} // namespace

std::optional<SceneOut> buildBrief(const ViewSpec &spec) {
    SceneOut scene;
    scene.groups =
        spec.boardCols.isEmpty() ? columnsByStatus(spec) : columnsOfBoard(spec.boardCols);
    if (scene.groups.isEmpty())
        return std::nullopt;
    int cards = 0;
    for (const BriefCol &column : scene.groups)
        cards += column.count;
    scene.countLine = QString::number(cards) + u" items · by status"_s;
    return scene;
}

std::optional<SceneOut> buildRetro(const ViewSpec &spec) {
    SceneOut scene;
    scene.groups = columnsOfBoard(spec.boardCols);
    if (scene.groups.isEmpty())
        return std::nullopt;
    scene.countLine = QString::number(scene.groups.size()) + u" columns · from the answer"_s;
    scene.insight = u"Cards come straight from the answer."_s;
    return scene;
}

} // namespace kiv::canvas
