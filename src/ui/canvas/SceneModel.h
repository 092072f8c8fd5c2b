#pragma once

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQmlIntegration>

namespace kiv::ui {

/// The rows of a scene as a model, each as the role `modelData`. Other rows change it in place:
/// what is shown of a row that stays is kept, so that its marks can move to their new lengths.
class SceneModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant rows READ rows WRITE setRows NOTIFY rowsChanged REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY rowsChanged)
public:
    using QAbstractListModel::QAbstractListModel;

    QVariant rows() const { return m_rows; }
    /// A list of any kind of row.
    void setRows(const QVariant &list);
    int count() const { return static_cast<int>(m_rows.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void rowsChanged();

private:
    QVariantList m_rows;
};

} // namespace kiv::ui
