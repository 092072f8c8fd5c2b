#include "store/HistoryModel.h"

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

void HistoryModel::amendNewest(HistoryEntry entry) {
    if (m_entries.isEmpty()) {
        record(std::move(entry));
        return;
    }
    m_entries.first() = std::move(entry);
    Q_EMIT dataChanged(index(0), index(0));
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
