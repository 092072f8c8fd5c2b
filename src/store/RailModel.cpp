#include "store/RailModel.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString projectLabel = u"project"_s;
constexpr qsizetype firstProject = 2; ///< below KIV and the label

} // namespace

RailModel::RailModel(QObject *parent) : QAbstractListModel(parent) {
    setEntries({}, {});
}

void RailModel::setEntries(const QList<Project> &projects, const QList<Agent> &standaloneAgents) {
    QList<Row> rows{{RailRow::Kiv, {}, {}, u"KIV"_s, {}, {}}};
    // Also without any: the first one is made from its label.
    rows.append({RailRow::SectionLabel, projectLabel, {}, {}, {}, {}});
    for (const Project &project : projects) {
        rows.append({RailRow::Project, project.id, project.id, project.name, project.meta,
                     project.colorHex});
        for (const Agent &agent : project.agents)
            rows.append(
                {RailRow::Agent, agent.id, project.id, agent.name, agent.role, agent.colorHex});
    }
    if (!standaloneAgents.isEmpty())
        rows.append({RailRow::SectionLabel, u"agent"_s, {}, {}, {}, {}});
    for (const Agent &agent : standaloneAgents)
        rows.append({RailRow::Agent, agent.id, {}, agent.name, agent.role, agent.colorHex});
    // A rail that comes as it was leaves its rows in peace, and who presses one.
    if (rows == m_ordered)
        return;
    beginResetModel();
    m_ordered = rows;
    m_rows = std::move(rows);
    std::stable_partition(m_rows.begin() + firstProject, m_rows.end(), [this](const Row &row) {
        return !m_project.isEmpty() && row.project == m_project;
    });
    endResetModel();
}

/// Moves a project's rows to where they are to begin.
void RailModel::place(const QString &project, qsizetype at) {
    const auto first = std::ranges::find(m_rows, project, &Row::project);
    const qsizetype from = first - m_rows.begin();
    const qsizetype count = std::ranges::count(m_rows, project, &Row::project);
    if (count == 0 || from == at)
        return;
    const QList<Row> moved = m_rows.sliced(from, count);
    beginRemoveRows({}, static_cast<int>(from), static_cast<int>(from + count - 1));
    m_rows.remove(from, count);
    endRemoveRows();
    beginInsertRows({}, static_cast<int>(at), static_cast<int>(at + count - 1));
    for (qsizetype row = 0; row < count; ++row)
        m_rows.insert(at + row, moved.at(row));
    endInsertRows();
}

void RailModel::select(const QString &project, const QString &agent) {
    const QString before = std::exchange(m_project, project);
    m_agent = agent;
    if (!project.isEmpty())
        m_expanded.insert(project);
    if (project != before) {
        if (!before.isEmpty())
            place(before, std::ranges::find(m_ordered, before, &Row::project) - m_ordered.begin());
        if (!project.isEmpty())
            place(project, firstProject);
    }
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {SelectedRole, ExpandedRole});
}

void RailModel::toggleExpanded(const QString &project) {
    if (!m_expanded.remove(project))
        m_expanded.insert(project);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {ExpandedRole});
}

void RailModel::retranslate() {
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {NameRole, DetailRole});
}

QString RailModel::nameOf(const Row &row) {
    if (row.kind != RailRow::SectionLabel)
        return row.name;
    return row.id == projectLabel ? tr("Projects") : tr("Agents");
}

bool RailModel::isSelected(const Row &row) const {
    switch (row.kind) {
    case RailRow::Kiv:
        return m_project.isEmpty() && m_agent.isEmpty();
    case RailRow::Project:
        return m_agent.isEmpty() && row.id == m_project;
    case RailRow::Agent:
        return row.id == m_agent && row.project == m_project;
    case RailRow::SectionLabel:
        break;
    }
    return false;
}

int RailModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RailModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case KindRole:
        return QVariant::fromValue(row.kind);
    case EntryIdRole:
        return row.id;
    case ProjectIdRole:
        return row.project;
    case Qt::DisplayRole:
    case NameRole:
        return nameOf(row);
    case DetailRole:
        return row.kind == RailRow::Kiv ? tr("Sees all projects and agents") : row.detail;
    case ColorHexRole:
        return row.colorHex;
    case SelectedRole:
        return isSelected(row);
    case ExpandedRole:
        return !row.project.isEmpty() && m_expanded.contains(row.project);
    default:
        return {};
    }
}

QHash<int, QByteArray> RailModel::roleNames() const {
    return {{KindRole, "kind"},         {EntryIdRole, "entryId"},  {ProjectIdRole, "projectId"},
            {NameRole, "name"},         {DetailRole, "detail"},    {ColorHexRole, "colorHex"},
            {SelectedRole, "selected"}, {ExpandedRole, "expanded"}};
}

int selectableRow(const QAbstractItemModel &rows, int row, int by) {
    const int step = by < 0 ? -1 : 1;
    int left = by * step;
    int reached = row;
    for (int next = row + step; left > 0 && next >= 0 && next < rows.rowCount(); next += step) {
        const RailRow kind = rows.index(next, 0).data(RailModel::KindRole).value<RailRow>();
        if (kind == RailRow::SectionLabel)
            continue;
        reached = next;
        --left;
    }
    return reached;
}

RailView::RailView(RailModel *rail, QObject *parent) : QSortFilterProxyModel(parent), m_rail(rail) {
    setSourceModel(rail);
}

int RailView::selectedRow() const {
    for (int row = 0; row < rowCount(); ++row) {
        if (index(row, 0).data(RailModel::SelectedRole).toBool())
            return row;
    }
    return -1;
}

bool RailView::filterAcceptsRow(int row, const QModelIndex &) const {
    const QModelIndex index = m_rail->index(row);
    const bool belowProject = index.data(RailModel::KindRole).value<RailRow>() == RailRow::Agent &&
                              !index.data(RailModel::ProjectIdRole).toString().isEmpty();
    return !belowProject || index.data(RailModel::ExpandedRole).toBool();
}

ScopeChoices::ScopeChoices(RailModel *rail, QObject *parent) : QSortFilterProxyModel(parent) {
    setSourceModel(rail);
}

void ScopeChoices::setQuery(const QString &query) {
    if (query == m_query)
        return;
    m_query = query;
    invalidateFilter();
    Q_EMIT queryChanged();
}

bool ScopeChoices::filterAcceptsRow(int row, const QModelIndex &) const {
    const QModelIndex index = sourceModel()->index(row, 0);
    if (index.data(RailModel::KindRole).value<RailRow>() == RailRow::SectionLabel)
        return m_query.trimmed().isEmpty();
    const QString words = index.data(RailModel::NameRole).toString() + u' ' +
                          index.data(RailModel::DetailRole).toString();
    return words.contains(m_query.trimmed(), Qt::CaseInsensitive);
}

} // namespace kiv::store
