#include "ui/shell/AgentLines.h"

#include <algorithm>

namespace kiv::ui {

using namespace Qt::StringLiterals;

void AgentLines::setScope(store::ScopeRoom *scope) {
    if (m_scope)
        m_scope->disconnect(this);
    m_scope = scope;
    connect(scope, &store::ScopeRoom::projectsChanged, this, &AgentLines::arrange);
    connect(scope, &store::ScopeRoom::standaloneAgentsChanged, this, &AgentLines::arrange);
    connect(scope, &store::ScopeRoom::retranslated, this, &AgentLines::arrange);
    arrange();
    Q_EMIT scopeChanged();
}

void AgentLines::setColumns(int columns) {
    const int most = std::max(1, columns);
    if (most == m_columns)
        return;
    m_columns = most;
    if (m_scope)
        arrange();
    Q_EMIT columnsChanged();
}

void AgentLines::arrange() {
    beginResetModel();
    m_lines.clear();
    m_count = 0;
    addCards({{store::RailRow::Kiv, {}, {}, u"KIV"_s, tr("Sees all projects and agents"), {}}});
    const QList<store::Project> projects = m_scope->projects();
    for (const store::Project &project : projects) {
        m_lines.append({project.name, project.meta, project.colorHex, {}, m_count});
        addAgents(project.agents, project);
    }
    const QList<store::Agent> others = m_scope->standaloneAgents();
    if (!others.isEmpty()) {
        m_lines.append({tr("Agents without a project"), {}, {}, {}, m_count});
        addAgents(others, {});
    }
    endResetModel();
    QMetaObject::invokeMethod(this, &AgentLines::arranged, Qt::QueuedConnection);
}

void AgentLines::addAgents(const QList<store::Agent> &agents, const store::Project &project) {
    QList<AgentCard> cards;
    for (const store::Agent &agent : agents) {
        const QString detail =
            project.name.isEmpty() ? agent.role : agent.role + u", "_s + project.name;
        cards.append(
            {store::RailRow::Agent, agent.id, project.id, agent.name, detail, agent.colorHex});
    }
    addCards(cards);
}

void AgentLines::addCards(const QList<AgentCard> &cards) {
    for (qsizetype from = 0; from < cards.size(); from += m_columns) {
        const QList<AgentCard> line = cards.mid(from, m_columns);
        m_lines.append({{}, {}, {}, line, m_count});
        m_count += static_cast<int>(line.size());
    }
}

int AgentLines::lineOf(int card) const {
    const auto found = std::ranges::find_if(m_lines, [card](const Line &line) {
        return card >= line.first && card < line.first + line.cards.size();
    });
    return found == m_lines.end() ? 0 : static_cast<int>(found - m_lines.begin());
}

int AgentLines::moved(int card, int across, int down) const {
    const int reached = std::clamp(card + across, 0, std::max(0, m_count - 1));
    if (down == 0)
        return reached;
    const int line = lineOf(reached);
    const int column = reached - m_lines.at(line).first;
    int next = line + down;
    // Past headings, and past headings of projects that have nobody.
    while (next >= 0 && next < m_lines.size() && m_lines.at(next).cards.isEmpty())
        next += down;
    if (next < 0 || next >= m_lines.size())
        return reached;
    const Line &target = m_lines.at(next);
    return target.first + std::min(column, static_cast<int>(target.cards.size()) - 1);
}

int AgentLines::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QVariant AgentLines::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Line &line = m_lines.at(index.row());
    switch (role) {
    case HeadingRole:
        return line.heading;
    case DetailRole:
        return line.detail;
    case ColorHexRole:
        return line.colorHex;
    case CardsRole:
        return QVariant::fromValue(line.cards);
    case FirstRole:
        return line.first;
    default:
        return {};
    }
}

QHash<int, QByteArray> AgentLines::roleNames() const {
    return {{HeadingRole, "heading"},
            {DetailRole, "detail"},
            {ColorHexRole, "colorHex"},
            {CardsRole, "cards"},
            {FirstRole, "first"}};
}

} // namespace kiv::ui
