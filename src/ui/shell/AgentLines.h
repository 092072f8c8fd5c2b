#pragma once

#include "store/ScopeRoom.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace kiv::ui {

/// KIV or an agent, as the page of agents shows it.
struct AgentCard {
    Q_GADGET
    QML_VALUE_TYPE(agentCard)
    Q_PROPERTY(int kind READ kindNumber)
    Q_PROPERTY(QString entryId MEMBER id)
    Q_PROPERTY(QString projectId MEMBER projectId)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString colorHex MEMBER colorHex)
public:
    store::RailRow kind = store::RailRow::Agent;
    QString id;
    QString projectId;
    QString name;
    QString detail; ///< the role, and the project if there is one
    QString colorHex;

    int kindNumber() const { return static_cast<int>(kind); }
    friend bool operator==(const AgentCard &, const AgentCard &) = default;
};

/// Everybody there is to talk to, as lines of cards: KIV, then the agents of each project below its
/// heading, then those of no project. Cards are counted from 0 over all lines.
class AgentLines : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::ScopeRoom *scope READ scope WRITE setScope NOTIFY scopeChanged REQUIRED)
    /// How many cards fit into a line.
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY columnsChanged REQUIRED)
public:
    enum Role {
        HeadingRole = Qt::UserRole + 1, ///< empty for a line of cards
        DetailRole,
        ColorHexRole, ///< of a project; empty above the agents of none
        CardsRole,
        FirstRole, ///< the number of the first card of the line
    };

    using QAbstractListModel::QAbstractListModel;

    store::ScopeRoom *scope() const { return m_scope; }
    void setScope(store::ScopeRoom *scope);
    int columns() const { return m_columns; }
    void setColumns(int columns);

    /// The line of a card; the first one for a card that is not there.
    Q_INVOKABLE int lineOf(int card) const;
    /// The card that keys reach from `card`, `across` cards to the right or `down` lines below.
    Q_INVOKABLE int moved(int card, int across, int down) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void scopeChanged();
    void columnsChanged();
    /// The cards are new ones; said once their views are there.
    void arranged();

private:
    struct Line {
        QString heading;
        QString detail;
        QString colorHex;
        QList<AgentCard> cards;
        int first = 0;
    };
    void arrange();
    void addCards(const QList<AgentCard> &cards);
    void addAgents(const QList<store::Agent> &agents, const store::Project &project);

    store::ScopeRoom *m_scope = nullptr;
    int m_columns = 1;
    int m_count = 0; ///< of cards
    QList<Line> m_lines;
};

} // namespace kiv::ui
