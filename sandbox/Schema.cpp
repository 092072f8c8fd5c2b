#include "Schema.h"

#include "Database.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// Every row belongs to an account; days are ISO dates, times ISO 8601 in UTC.
const char16_t *const tables[] = {
    u"accounts (id TEXT PRIMARY KEY, email TEXT NOT NULL UNIQUE, password TEXT NOT NULL,"
    u" created_at TEXT NOT NULL, as_of TEXT NOT NULL, avatar TEXT NOT NULL DEFAULT '',"
    u" profile TEXT NOT NULL DEFAULT '{}')",
    u"sessions (token BLOB PRIMARY KEY, account TEXT NOT NULL, created_at TEXT NOT NULL,"
    u" expires_at TEXT NOT NULL)",
    u"projects (account TEXT NOT NULL, slug TEXT NOT NULL, label TEXT NOT NULL,"
    u" brief TEXT NOT NULL, status TEXT NOT NULL, position INTEGER NOT NULL,"
    u" PRIMARY KEY (account, slug))",
    u"agents (id TEXT PRIMARY KEY, account TEXT NOT NULL, name TEXT NOT NULL,"
    u" role TEXT NOT NULL, description TEXT NOT NULL, status TEXT NOT NULL,"
    u" kind TEXT NOT NULL, position INTEGER NOT NULL)",
    u"members (account TEXT NOT NULL, slug TEXT NOT NULL, agent TEXT NOT NULL,"
    u" kind TEXT NOT NULL, position INTEGER NOT NULL, PRIMARY KEY (account, slug, agent))",
    u"events (id INTEGER PRIMARY KEY AUTOINCREMENT, account TEXT NOT NULL, slug TEXT NOT NULL,"
    u" kind TEXT NOT NULL, title TEXT NOT NULL, detail TEXT NOT NULL, created_at TEXT NOT NULL)",
    u"messages (id INTEGER PRIMARY KEY AUTOINCREMENT, account TEXT NOT NULL,"
    u" chat TEXT NOT NULL, role TEXT NOT NULL, content TEXT NOT NULL, metadata TEXT NOT NULL,"
    u" request_id TEXT, created_at TEXT NOT NULL, UNIQUE (account, chat, request_id))",
    u"files (key TEXT PRIMARY KEY, account TEXT NOT NULL, name TEXT NOT NULL,"
    u" mime TEXT NOT NULL, size INTEGER NOT NULL, created_at TEXT NOT NULL)",
    u"calls (id TEXT PRIMARY KEY, account TEXT NOT NULL, agent TEXT NOT NULL,"
    u" token BLOB NOT NULL UNIQUE, origin TEXT NOT NULL, host TEXT NOT NULL,"
    u" longest INTEGER NOT NULL, state TEXT NOT NULL, created_at TEXT NOT NULL,"
    u" free_at TEXT NOT NULL, started_at TEXT, ended_at TEXT)",
    u"call_lines (id INTEGER PRIMARY KEY AUTOINCREMENT, call TEXT NOT NULL, role TEXT NOT NULL,"
    u" second INTEGER NOT NULL, text TEXT NOT NULL)",
    u"beacons (account TEXT NOT NULL, name TEXT NOT NULL, count INTEGER NOT NULL,"
    u" PRIMARY KEY (account, name))",

    // What the agents answer from.
    u"weekly (account TEXT NOT NULL, slug TEXT NOT NULL, week INTEGER NOT NULL,"
    u" revenue INTEGER NOT NULL, releases INTEGER NOT NULL, reply_minutes INTEGER NOT NULL,"
    u" PRIMARY KEY (account, slug, week))",
    u"tasks (id INTEGER PRIMARY KEY AUTOINCREMENT, account TEXT NOT NULL, slug TEXT NOT NULL,"
    u" agent TEXT NOT NULL, title TEXT NOT NULL, state TEXT NOT NULL, created TEXT NOT NULL,"
    u" due TEXT NOT NULL, closed TEXT)",
    u"progress (account TEXT NOT NULL, slug TEXT NOT NULL, done INTEGER NOT NULL,"
    u" target INTEGER NOT NULL, note TEXT NOT NULL, PRIMARY KEY (account, slug))",
    u"spend (account TEXT NOT NULL, slug TEXT NOT NULL, line TEXT NOT NULL,"
    u" position INTEGER NOT NULL, plan INTEGER NOT NULL, actual INTEGER NOT NULL)",
    u"hosting (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" name TEXT NOT NULL, price INTEGER NOT NULL, uptime REAL NOT NULL,"
    u" latency INTEGER NOT NULL, backups TEXT NOT NULL)",
    u"stages (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" name TEXT NOT NULL, count INTEGER NOT NULL)",
    u"unit_parts (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" name TEXT NOT NULL, cents INTEGER NOT NULL)",
    u"criteria (account TEXT NOT NULL, slug TEXT NOT NULL, question TEXT NOT NULL,"
    u" option_a TEXT NOT NULL, option_b TEXT NOT NULL, position INTEGER NOT NULL,"
    u" name TEXT NOT NULL, a INTEGER NOT NULL, b INTEGER NOT NULL)",
    u"retro (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" column_name TEXT NOT NULL, card TEXT NOT NULL)",
    u"cash (account TEXT NOT NULL, position INTEGER NOT NULL, month TEXT NOT NULL,"
    u" money_in INTEGER NOT NULL, money_out INTEGER NOT NULL)",
    u"key_results (account TEXT NOT NULL, position INTEGER NOT NULL, goal TEXT NOT NULL,"
    u" owner TEXT NOT NULL, name TEXT NOT NULL, value INTEGER NOT NULL, target INTEGER NOT NULL)",
    u"capacity (account TEXT NOT NULL, position INTEGER NOT NULL, person TEXT NOT NULL,"
    u" place TEXT NOT NULL, planned INTEGER NOT NULL, available INTEGER NOT NULL)",
    u"plan (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" agent TEXT NOT NULL, title TEXT NOT NULL, state TEXT NOT NULL)",
    u"highlights (account TEXT NOT NULL, slug TEXT NOT NULL, position INTEGER NOT NULL,"
    u" text TEXT NOT NULL)",
};

const char16_t *const indexes[] = {
    u"messages_of_chat ON messages (account, chat, id)",
    u"tasks_of_project ON tasks (account, slug)",
    u"agents_of_account ON agents (account, position)",
    u"calls_of_agent ON calls (account, agent, started_at)",
    u"lines_of_call ON call_lines (call, id)",
};

} // namespace

void createSchema(Sql &sql) {
    sql.exec(u"BEGIN"_s);
    for (const char16_t *table : tables)
        sql.exec(u"CREATE TABLE IF NOT EXISTS "_s + QString::fromUtf16(table));
    for (const char16_t *index : indexes)
        sql.exec(u"CREATE INDEX IF NOT EXISTS "_s + QString::fromUtf16(index));
    sql.exec(u"COMMIT"_s);
}

} // namespace kiv::sandbox
