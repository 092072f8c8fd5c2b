#pragma once

#include "store/Enums.h"
#include "store/Scope.h"

#include <QAbstractListModel>
#include <QSet>
#include <QSortFilterProxyModel>

namespace kiv::store {

/// Everything a person can talk to, one row each: KIV, then the projects with their agents below
/// them, the current one first, then the agents of no project, with a label row before each
/// section.
class RailModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
public:
    enum Role {
        KindRole = Qt::UserRole + 1, ///< RailRow, as `kind`
        EntryIdRole,                 ///< project slug or agent id, as `entryId`
        ProjectIdRole,               ///< the project an agent belongs to, or empty
        NameRole,
        DetailRole, ///< a project's subtitle, an agent's role
        ColorHexRole,
        SelectedRole,
        ExpandedRole, ///< a project whose agents are listed
    };

    explicit RailModel(QObject *parent = nullptr);

    void setEntries(const QList<Project> &projects, const QList<Agent> &standaloneAgents);
    /// Marks the current scope; the selected project and the project of the selected agent open and
    /// come before the others, which keep their order.
    void select(const QString &project, const QString &agent);
    void toggleExpanded(const QString &project);

    /// The language has changed.
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Row {
        RailRow kind = RailRow::Kiv;
        QString id;
        QString project;
        QString name;
        QString detail;
        QString colorHex;
        friend bool operator==(const Row &, const Row &) = default;
    };
    bool isSelected(const Row &row) const;
    static QString nameOf(const Row &row);
    void place(const QString &project, qsizetype at);

    QList<Row> m_rows;
    QList<Row> m_ordered; ///< the same with every project in its own place
    QSet<QString> m_expanded;
    QString m_project;
    QString m_agent;
};

/// The row of a list of rail entries that is `by` selectable rows away from `row`, or the last one
/// in that direction; labels are passed over.
int selectableRow(const QAbstractItemModel &rows, int row, int by);

/// The rows of the rail that show: agents only below an expanded project.
class RailView : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
public:
    explicit RailView(RailModel *rail, QObject *parent = nullptr);
    /// The row of the current scope; -1 while the rail has none.
    Q_INVOKABLE int selectedRow() const;
    /// As selectableRow().
    Q_INVOKABLE int stepped(int row, int by) const { return selectableRow(*this, row, by); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    RailModel *m_rail;
};

/// The rows of the scope popover: every entry whose name holds the typed words.
class ScopeChoices : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
public:
    explicit ScopeChoices(RailModel *rail, QObject *parent = nullptr);
    QString query() const { return m_query; }
    void setQuery(const QString &query);
    /// As selectableRow().
    Q_INVOKABLE int stepped(int row, int by) const { return selectableRow(*this, row, by); }

Q_SIGNALS:
    void queryChanged();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QString m_query;
};

} // namespace kiv::store
