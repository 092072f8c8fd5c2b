#include "Workspace.h"

#include "Database.h"
#include "Http.h"
#include "base/Text.h"

#include <QDateTime>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype longestName = 80;
constexpr qsizetype longestText = 4000;

QString checkedName(const QString &name, const QString &what) {
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        throw Refusal(400, u"%1 needs a name."_s.arg(what), u"name_missing"_s);
    if (characterCount(trimmed) > longestName)
        throw Refusal(400, u"The name is longer than %1 characters."_s.arg(longestName),
                      u"name_too_long"_s);
    return trimmed;
}

QString checkedText(const QString &text, const QString &what, qsizetype longest) {
    const QString trimmed = text.trimmed();
    if (characterCount(trimmed) > longest)
        throw Refusal(400, u"The %1 is longer than %2 characters."_s.arg(what).arg(longest),
                      u"text_too_long"_s);
    return trimmed;
}

/// Letters a-z and digits joined by hyphens; a name in another script gives a word of its own.
QString slugOf(const QString &label) {
    QString slug;
    for (QChar c : label.normalized(QString::NormalizationForm_D).toLower()) {
        if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9'))
            slug += c;
        else if (!slug.isEmpty() && !slug.endsWith(u'-') && !c.isMark())
            slug += u'-';
    }
    while (slug.endsWith(u'-'))
        slug.chop(1);
    return slug.isEmpty() ? u"project"_s : slug;
}

bool hasProject(Sql &sql, const QString &account, const QString &slug) {
    return sql.row(u"SELECT 1 FROM projects WHERE account = ? AND slug = ?"_s, {account, slug})
        .has_value();
}

QString freeSlug(Sql &sql, const QString &account, const QString &label) {
    const QString base = slugOf(label);
    QString slug = base;
    for (int n = 2; hasProject(sql, account, slug); ++n)
        slug = u"%1-%2"_s.arg(base).arg(n);
    return slug;
}

void addEvent(Sql &sql, const QString &account, const QString &slug, const QString &kind,
              const QString &title, const QString &detail) {
    sql.exec(u"INSERT INTO events (account, slug, kind, title, detail, created_at)"
             u" VALUES (?, ?, ?, ?, ?, ?)"_s,
             {account, slug, kind, title, detail,
              QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)});
}

int nextPosition(Sql &sql, const QString &table, const QString &account) {
    const auto row = sql.row(
        u"SELECT COALESCE(MAX(position), 0) + 1 FROM %1 WHERE account = ?"_s.arg(table), {account});
    return static_cast<int>(row->whole(0));
}

QJsonObject projectObject(const Row &row) {
    return {{u"slug"_s, row.text(0)},
            {u"label"_s, row.text(1)},
            {u"name"_s, row.text(1)},
            {u"status"_s, row.text(2)},
            {u"agents_count"_s, row.whole(3)}};
}

QJsonObject agentObject(const Row &row) {
    return {{u"id"_s, row.text(0)},
            {u"name"_s, row.text(1)},
            {u"role"_s, row.text(2)},
            {u"status"_s, row.text(3)}};
}

const QString projectColumns =
    u"SELECT slug, label, status, (SELECT COUNT(*) FROM members m JOIN agents a ON a.id = m.agent"
    u" WHERE m.account = p.account AND m.slug = p.slug AND m.kind = 'agent'"
    u" AND a.status <> 'archived') FROM projects p WHERE account = ?"_s;

} // namespace

Scope scopeOf(const QString &account, const AgentRecord &agent) {
    if (agent.kind == u"orchestrator"_s)
        return {account, {}, u"KIV"_s, {}};
    return {account, agent.slug, agent.name, agent.name};
}

QJsonArray Workspace::projects(const QString &account) {
    const auto rows = m_database.run(
        [&](Sql &sql) { return sql.rows(projectColumns + u" ORDER BY position"_s, {account}); });
    QJsonArray list;
    for (const Row &row : rows)
        list.append(projectObject(row));
    return list;
}

QJsonObject Workspace::createProject(const QString &account, const QString &label,
                                     const QString &brief) {
    const QString name = checkedName(label, u"A project"_s);
    const QString goal = checkedText(brief, u"brief"_s, longestText);
    return m_database.run([&](Sql &sql) {
        const QString slug = freeSlug(sql, account, name);
        sql.exec(u"INSERT INTO projects (account, slug, label, brief, status, position)"
                 u" VALUES (?, ?, ?, ?, 'active', ?)"_s,
                 {account, slug, name, goal, nextPosition(sql, u"projects"_s, account)});
        addEvent(sql, account, slug, u"project_created"_s, u"Project created"_s, name);
        return projectObject(*sql.row(projectColumns + u" AND slug = ?"_s, {account, slug}));
    });
}

QString Workspace::projectLabel(const QString &account, const QString &slug) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT label FROM projects WHERE account = ? AND slug = ?"_s,
                       {account, slug});
    });
    if (!row)
        throw Refusal(404, u"There is no such project."_s, u"not_found"_s);
    return row->text(0);
}

QJsonArray Workspace::members(const QString &account, const QString &slug) {
    projectLabel(account, slug);
    const auto rows = m_database.run([&](Sql &sql) {
        return sql.rows(u"SELECT a.id, a.name, a.role, a.status, m.kind FROM members m"
                        u" JOIN agents a ON a.id = m.agent WHERE m.account = ? AND m.slug = ?"
                        u" ORDER BY m.position"_s,
                        {account, slug});
    });
    QJsonArray roster;
    for (const Row &row : rows)
        roster.append(QJsonObject{{u"member_kind"_s, row.text(4)}, {u"agent"_s, agentObject(row)}});
    return roster;
}

QJsonArray Workspace::events(const QString &account, const QString &slug, int limit) {
    projectLabel(account, slug);
    const auto rows = m_database.run([&](Sql &sql) {
        return sql.rows(u"SELECT id, kind, title, detail, created_at FROM events"
                        u" WHERE account = ? AND slug = ? ORDER BY created_at DESC, id DESC"
                        u" LIMIT ?"_s,
                        {account, slug, limit});
    });
    QJsonArray list;
    for (const Row &row : rows)
        list.append(QJsonObject{{u"id"_s, row.whole(0)},
                                {u"kind"_s, row.text(1)},
                                {u"title"_s, row.text(2)},
                                {u"detail"_s, row.text(3)},
                                {u"created_at"_s, row.text(4)}});
    return list;
}

QJsonArray Workspace::agents(const QString &account) {
    const auto rows = m_database.run([&](Sql &sql) {
        return sql.rows(u"SELECT id, name, role, status FROM agents"
                        u" WHERE account = ? AND kind <> 'team' ORDER BY position"_s,
                        {account});
    });
    QJsonArray list;
    for (const Row &row : rows)
        list.append(agentObject(row));
    return list;
}

QJsonObject Workspace::createAgent(const QString &account, const AgentDraft &draft) {
    const QString name = checkedName(draft.name, u"An agent"_s);
    const QString role = checkedText(draft.role, u"role"_s, longestName);
    const QString description = checkedText(draft.description, u"description"_s, longestText);
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return m_database.run([&](Sql &sql) {
        sql.exec(u"INSERT INTO agents (id, account, name, role, description, status, kind,"
                 u" position) VALUES (?, ?, ?, ?, ?, ?, 'agent', ?)"_s,
                 {id, account, name, role, description, draft.status,
                  nextPosition(sql, u"agents"_s, account)});
        QJsonArray warnings;
        if (!draft.slug.isEmpty() && hasProject(sql, account, draft.slug)) {
            sql.exec(u"INSERT INTO members (account, slug, agent, kind, position)"
                     u" VALUES (?, ?, ?, 'agent', ?)"_s,
                     {account, draft.slug, id, nextPosition(sql, u"members"_s, account)});
            addEvent(sql, account, draft.slug, u"agent_added"_s, u"%1 joined"_s.arg(name), role);
        } else if (!draft.slug.isEmpty()) {
            warnings.append(u"project %1 (not found)"_s.arg(draft.slug));
        }
        return QJsonObject{{u"id"_s, id},
                           {u"agent"_s, QJsonObject{{u"id"_s, id},
                                                    {u"name"_s, name},
                                                    {u"role"_s, role},
                                                    {u"status"_s, draft.status}}},
                           {u"project_warnings"_s, warnings}};
    });
}

AgentRecord Workspace::agent(const QString &account, const QString &id) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT a.name, a.status, a.kind, COALESCE(m.slug, '') FROM agents a"
                       u" LEFT JOIN members m ON m.agent = a.id"
                       u" WHERE a.account = ? AND a.id = ?"_s,
                       {account, id});
    });
    if (!row || row->text(2) == u"team"_s)
        throw Refusal(404, u"There is no such agent."_s, u"not_found"_s);
    return {id, row->text(0), row->text(1), row->text(2), row->text(3)};
}

QString Workspace::orchestrator(const QString &account) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT id FROM agents WHERE account = ? AND kind = 'orchestrator'"_s,
                       {account});
    });
    return row ? row->text(0) : QString();
}

} // namespace kiv::sandbox
