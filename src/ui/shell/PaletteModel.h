#pragma once

#include "store/AppStore.h"
#include "ui/shell/Commands.h"

#include <QAbstractListModel>

namespace kiv::ui {

/// Everything that the command palette can find: commands, pages, projects, agents and
/// drawn canvases.
class PaletteModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::AppStore *store MEMBER m_store REQUIRED)
    Q_PROPERTY(kiv::ui::Commands *commands MEMBER m_commands REQUIRED)
    Q_PROPERTY(QString query MEMBER m_query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole + 1,
        DetailRole, ///< the menu of a command, the role of an agent, the question of a canvas
        IconRole,
        KeysRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int count() const { return static_cast<int>(m_shown.size()); }
    /// Shows what holds every typed word, in any case; the best matches first.
    void setQuery(const QString &query);
    /// Takes up what there is now, with nothing typed.
    Q_INVOKABLE void refresh();
    /// Carries out or opens what a row stands for.
    Q_INVOKABLE void choose(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void queryChanged();
    void countChanged();
    void shortcutsRequested();

private:
    struct Entry {
        QString title;
        QString detail;
        QString icon;
        QString keys;
        std::function<void()> act;
    };
    void addCommands();
    void addPages();
    void addScopes();
    void addHistory();
    void filter();

    store::AppStore *m_store = nullptr;
    Commands *m_commands = nullptr;
    QString m_query;
    QList<Entry> m_entries;
    QList<qsizetype> m_shown; ///< rows of the entries
};

} // namespace kiv::ui
