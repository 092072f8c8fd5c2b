#include "ui/controls/Toasts.h"

namespace kiv::ui {

void Toasts::show(const QString &words, const QString &action, const QUrl &target) {
    if (m_toasts.size() >= limit)
        dismiss(0);
    const auto end = static_cast<int>(m_toasts.size());
    beginInsertRows({}, end, end);
    m_toasts.append({words, action, target});
    endInsertRows();
}

void Toasts::dismiss(int row) {
    if (row < 0 || row >= m_toasts.size())
        return;
    beginRemoveRows({}, row, row);
    m_toasts.removeAt(row);
    endRemoveRows();
}

int Toasts::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_toasts.size());
}

QVariant Toasts::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Toast &toast = m_toasts.at(index.row());
    switch (role) {
    case WordsRole:
        return toast.words;
    case ActionRole:
        return toast.action;
    case TargetRole:
        return toast.target;
    default:
        return {};
    }
}

QHash<int, QByteArray> Toasts::roleNames() const {
    return {{WordsRole, "words"}, {ActionRole, "action"}, {TargetRole, "target"}};
}

} // namespace kiv::ui
