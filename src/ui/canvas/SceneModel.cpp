#include "ui/canvas/SceneModel.h"

#include <algorithm>

namespace kiv::ui {

namespace {

constexpr int rowRole = Qt::UserRole;

} // namespace

void SceneModel::setRows(const QVariant &list) {
    const auto rows = list.value<QVariantList>();
    if (m_rows == rows)
        return;
    const qsizetype kept = std::min(m_rows.size(), rows.size());
    if (rows.size() < m_rows.size()) {
        beginRemoveRows({}, static_cast<int>(kept), count() - 1);
        m_rows.resize(kept);
        endRemoveRows();
    }
    for (qsizetype i = 0; i < kept; ++i) {
        if (m_rows.at(i) == rows.at(i))
            continue;
        m_rows[i] = rows.at(i);
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed, {rowRole});
    }
    if (rows.size() > kept) {
        beginInsertRows({}, static_cast<int>(kept), static_cast<int>(rows.size()) - 1);
        m_rows += rows.mid(kept);
        endInsertRows();
    }
    Q_EMIT rowsChanged();
}

int SceneModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant SceneModel::data(const QModelIndex &index, int role) const {
    return role == rowRole ? m_rows.value(index.row()) : QVariant();
}

QHash<int, QByteArray> SceneModel::roleNames() const {
    return {{rowRole, "modelData"}};
}

} // namespace kiv::ui
