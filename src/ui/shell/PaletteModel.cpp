#include "ui/shell/PaletteModel.h"

#include <algorithm>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

/// How well an entry meets the typed words: 0 for a title that begins with them, 1 for one in
/// which a word does, 2 for a match elsewhere; nothing for none.
std::optional<int> rank(const QString &title, const QString &detail, const QStringList &words) {
    const QString folded = title.toCaseFolded();
    const QString all = folded + u' ' + detail.toCaseFolded();
    if (!std::ranges::all_of(words, [&](const QString &word) { return all.contains(word); }))
        return std::nullopt;
    if (words.isEmpty() || folded.startsWith(words.join(u' ')))
        return 0;
    return (u' ' + folded).contains(u' ' + words.first()) ? 1 : 2;
}

} // namespace

void PaletteModel::refresh() {
    m_entries.clear();
    addCommands();
    addPages();
    addScopes();
    addHistory();
    m_query.clear();
    Q_EMIT queryChanged();
    filter();
}

void PaletteModel::addCommands() {
    const QList<MenuDescription> menus = m_commands->menus();
    for (const MenuDescription &menu : menus) {
        for (const MenuEntry &entry : menu.entries) {
            if (!entry.separator() && entry.works() && !isEditing(entry.command))
                m_entries.append(
                    {entry.title, menu.title, u"right"_s, entry.keys(),
                     [this, command = entry.command] { m_commands->perform(command); }});
        }
    }
    if (m_store->scope()->auth() == store::AuthPhase::SignedIn) {
        const auto addNew = [this](const QString &title, Command command) {
            m_entries.append(
                {title, {}, u"plus"_s, {}, [this, command] { m_commands->perform(command); }});
        };
        addNew(tr("New Project"), Command::NewProject);
        addNew(tr("New Agent"), Command::NewAgent);
    }
    m_entries.append({tr("Keyboard Shortcuts"), tr("Help"), u"keyboard"_s, {}, [this] {
                          Q_EMIT shortcutsRequested();
                      }});
}

void PaletteModel::addPages() {
    if (m_store->scope()->auth() != store::AuthPhase::SignedIn)
        return;
    const auto add = [this](const QString &title, const QString &id, const QString &icon) {
        m_entries.append(
            {title, tr("Page"), icon, {}, [this, id] { m_store->canvas()->openPanel(id); }});
    };
    add(tr("Agents"), u"agents"_s, u"agents"_s);
    add(tr("Calls"), u"calls"_s, u"phone"_s);
    add(tr("Events"), u"events"_s, u"events"_s);
}

void PaletteModel::addScopes() {
    store::ScopeRoom *scope = m_store->scope();
    const auto addAgents = [&](const QList<store::Agent> &agents, const QString &project) {
        for (const store::Agent &agent : agents)
            m_entries.append(
                {agent.name, agent.role, u"agents"_s, {}, [scope, project, id = agent.id] {
                     scope->pickEntry(store::RailRow::Agent, project, id);
                 }});
    };
    const QList<store::Project> projects = scope->projects();
    for (const store::Project &project : projects) {
        m_entries.append({project.name, project.meta, u"layers"_s, {}, [scope, id = project.id] {
                              scope->pickEntry(store::RailRow::Project, {}, id);
                          }});
        addAgents(project.agents, project.id);
    }
    addAgents(scope->standaloneAgents(), {});
}

void PaletteModel::addHistory() {
    store::CanvasRoom *canvas = m_store->canvas();
    const store::HistoryModel *history = canvas->history();
    for (int row = 0; row < history->count(); ++row) {
        const store::HistoryEntry &entry = history->at(row);
        m_entries.append({entry.title, entry.query, entry.art.isEmpty() ? u"globe"_s : entry.art,
                          entry.time, [canvas, row] { canvas->openHistory(row); }});
    }
}

void PaletteModel::setQuery(const QString &query) {
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    filter();
}

void PaletteModel::filter() {
    const QStringList words = m_query.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    std::vector<std::pair<int, qsizetype>> found;
    for (qsizetype row = 0; row < m_entries.size(); ++row) {
        if (const auto order = rank(m_entries.at(row).title, m_entries.at(row).detail, words))
            found.emplace_back(*order, row);
    }
    std::ranges::stable_sort(found, {}, &std::pair<int, qsizetype>::first);
    beginResetModel();
    m_shown.clear();
    for (const auto &[order, row] : found)
        m_shown.append(row);
    endResetModel();
    Q_EMIT countChanged();
}

void PaletteModel::choose(int row) {
    if (row < 0 || row >= count())
        return;
    // What is chosen shows in the window.
    m_store->call()->leaveCallScreen();
    m_entries.at(m_shown.at(row)).act();
}

int PaletteModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PaletteModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = m_entries.at(m_shown.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return entry.title;
    case DetailRole:
        return entry.detail;
    case IconRole:
        return entry.icon;
    case KeysRole:
        return entry.keys;
    default:
        return {};
    }
}

QHash<int, QByteArray> PaletteModel::roleNames() const {
    return {{TitleRole, "title"}, {DetailRole, "detail"}, {IconRole, "sign"}, {KeysRole, "keys"}};
}

} // namespace kiv::ui
