#include "store/HistoryModel.h"

#include <algorithm>

namespace kiv::store {

void HistoryModel::record(HistoryEntry entry) {
    beginInsertRows({}, 0, 0);
    m_entries.prepend(std::move(entry));
    endInsertRows();
    if (m_entries.size() > limit) {
        beginRemoveRows({}, limit, count() - 1);
        m_entries.resize(limit);
        endRemoveRows();
    }
    Q_EMIT countChanged();
}

int HistoryModel::rowOf(const QUuid &id) const {
    const auto found = std::ranges::find(m_entries, id, &HistoryEntry::id);
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

bool HistoryModel::amend(const QUuid &id, HistoryEntry entry) {
    const int row = rowOf(id);
    if (row < 0)
        return false;
    entry.id = id;
    m_entries[row] = std::move(entry);
    Q_EMIT dataChanged(index(row), index(row));
    return true;
}

void HistoryModel::setSource(const QUuid &id, const SceneSource &source) {
    const int row = rowOf(id);
    if (row >= 0)
        m_entries[row].source = source;
}

void HistoryModel::clear() {
    beginResetModel();
    m_entries.clear();
    endResetModel();
    Q_EMIT countChanged();
}

int HistoryModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const HistoryEntry &entry = m_entries.at(index.row());
    switch (role) {
    case ArtRole:
        return entry.art;
    case Qt::DisplayRole:
    case TitleRole:
        return entry.title;
    case QueryRole:
        return entry.query;
    case TimeRole:
        return entry.time;
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryModel::roleNames() const {
    return {{ArtRole, "art"}, {TitleRole, "title"}, {QueryRole, "query"}, {TimeRole, "time"}};
}

} // namespace kiv::store
