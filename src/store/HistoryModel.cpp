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

bool HistoryModel::amend(const QUuid &id, HistoryEntry entry) {
    const auto found = std::ranges::find(m_entries, id, &HistoryEntry::id);
    if (found == m_entries.end())
        return false;
    entry.id = id;
    *found = std::move(entry);
    const QModelIndex changed = index(static_cast<int>(found - m_entries.begin()));
    Q_EMIT dataChanged(changed, changed);
    return true;
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
