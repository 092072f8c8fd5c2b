#include "voice/CallStore.h"

#include "Database.h"
#include "Http.h"
#include "Secrets.h"

#include <QDateTime>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr int secondsForSocket = 60;
constexpr int secondsForReturn = 30;
constexpr int snippetLength = 120;

QString written(const QDateTime &at) {
    return at.toString(Qt::ISODateWithMs);
}

QString inSeconds(int seconds) {
    return written(QDateTime::currentDateTimeUtc().addSecs(seconds));
}

QString now() {
    return inSeconds(0);
}

void finishIn(Sql &sql, const QString &call, const QDateTime &at) {
    sql.exec(u"UPDATE calls SET ended_at = CASE state WHEN 'live' THEN ? ELSE ended_at END,"
             u" state = CASE state WHEN 'waiting' THEN 'missed' ELSE 'done' END"
             u" WHERE id = ? AND state IN ('waiting', 'live', 'dropped')"_s,
             {written(at), call});
}

void dropIn(Sql &sql, const QString &call, const QDateTime &at) {
    sql.exec(u"UPDATE calls SET state = 'dropped', ended_at = ?, free_at = ?"
             u" WHERE id = ? AND state = 'live'"_s,
             {written(at), written(at.addSecs(secondsForReturn)), call});
}

Refusal noSuchCall() {
    return Refusal(404, u"There is no such call."_s, u"not_found"_s);
}

const QString callColumns =
    u"SELECT id, state, started_at, ended_at,"
    u" COALESCE((SELECT text FROM call_lines WHERE call = calls.id"
    u" ORDER BY role = 'user' DESC, id LIMIT 1), ''), agent FROM calls WHERE account = ?"_s;

QJsonObject callObject(const Row &row) {
    const QDateTime started = QDateTime::fromString(row.text(2), Qt::ISODateWithMs);
    const QDateTime ended = row.isNull(3) ? QDateTime::currentDateTimeUtc()
                                          : QDateTime::fromString(row.text(3), Qt::ISODateWithMs);
    const QString first = row.text(4);
    const bool isOpen = row.text(1) == u"live"_s || row.text(1) == u"dropped"_s;
    return {
        {u"id"_s, row.text(0)},
        {u"agent_id"_s, row.text(5)},
        {u"status"_s, isOpen ? u"in_progress"_s : u"done"_s},
        {u"started_at"_s, row.text(2)},
        {u"duration_secs"_s, started.secsTo(ended)},
        {u"snippet"_s, first.size() > snippetLength ? first.first(snippetLength) + u'…' : first},
        {u"has_transcript"_s, !first.isEmpty()}};
}

} // namespace

CallStore::CallStore(Database &database) : m_database(database) {
    m_database.run([](Sql &sql) {
        sql.exec(u"UPDATE calls SET ended_at = COALESCE(ended_at, strftime('%Y-%m-%dT%H:%M:%fZ',"
                 u" started_at, '+' || COALESCE((SELECT MAX(second) FROM call_lines"
                 u" WHERE call = calls.id), 0) || ' seconds')),"
                 u" state = CASE WHEN started_at IS NULL THEN 'missed' ELSE 'done' END"
                 u" WHERE state IN ('waiting', 'live', 'dropped')"_s);
    });
}

bool CallStore::attempt(const std::function<void(Sql &)> &job) {
    try {
        m_database.run(job);
        return true;
    } catch (const DatabaseError &error) {
        qCritical("A call cannot be written down: %s", error.what());
        return false;
    }
}

/// What is owed is written down. Calls that have waited long enough are over, at the time at which
/// their socket was last there.
void CallStore::settle() {
    const std::lock_guard lock(m_mutex);
    const bool isWritten = attempt([this](Sql &sql) {
        for (const Ending &ending : m_owed)
            ending.write(sql, ending.call, ending.at);
        sql.exec(u"UPDATE calls SET state = CASE state WHEN 'waiting' THEN 'missed' ELSE 'done' END"
                 u" WHERE state IN ('waiting', 'dropped') AND free_at < ?"_s,
                 {now()});
    });
    if (isWritten)
        m_owed.clear();
}

void CallStore::writeDown(const Ending &ending) {
    if (attempt([&](Sql &sql) { ending.write(sql, ending.call, ending.at); }))
        return;
    const std::lock_guard lock(m_mutex);
    m_owed.append(ending);
}

MintedCall CallStore::mint(const QString &account, const QString &agent, const CallDoor &door,
                           int longestSeconds) {
    const MintedCall call{QUuid::createUuid().toString(QUuid::WithoutBraces), randomToken()};
    settle();
    m_database.run([&](Sql &sql) {
        if (sql.row(u"SELECT 1 FROM calls WHERE account = ?"
                    u" AND state IN ('waiting', 'live', 'dropped')"_s,
                    {account}))
            throw Refusal(409, u"A call is already in progress."_s, u"call_in_progress"_s);
        sql.exec(u"INSERT INTO calls (id, account, agent, token, origin, host, longest, state,"
                 u" created_at, free_at) VALUES (?, ?, ?, ?, ?, ?, ?, 'waiting', ?, ?)"_s,
                 {call.id, account, agent, tokenHash(call.token), door.origin, door.host,
                  longestSeconds, now(), inSeconds(secondsForSocket)});
    });
    return call;
}

std::optional<OpenCall> CallStore::open(const QByteArray &token, const CallDoor &door) {
    settle();
    std::optional<OpenCall> opened;
    const bool isWritten = attempt([&](Sql &sql) {
        const auto row = sql.row(u"SELECT id, account, agent, longest, state, started_at FROM calls"
                                 u" WHERE token = ? AND origin = ? AND host = ?"
                                 u" AND state IN ('waiting', 'dropped')"_s,
                                 {tokenHash(token), door.origin, door.host});
        if (!row)
            return;
        sql.exec(u"UPDATE calls SET state = 'live', ended_at = NULL,"
                 u" started_at = COALESCE(started_at, ?) WHERE id = ?"_s,
                 {now(), row->text(0)});
        OpenCall call{row->text(0), row->text(1), row->text(2), static_cast<int>(row->whole(3))};
        if (row->text(4) == u"dropped"_s) {
            const QDateTime started = QDateTime::fromString(row->text(5), Qt::ISODateWithMs);
            call.secondsSoFar = static_cast<int>(started.secsTo(QDateTime::currentDateTimeUtc()));
            call.isResumed = true;
        }
        opened = call;
    });
    return isWritten ? opened : std::nullopt;
}

void CallStore::drop(const QString &call) {
    writeDown({call, dropIn, QDateTime::currentDateTimeUtc()});
}

void CallStore::finish(const QString &call) {
    writeDown({call, finishIn, QDateTime::currentDateTimeUtc()});
}

void CallStore::end(const QString &account, const QString &call) {
    m_database.run([&](Sql &sql) {
        if (!sql.row(u"SELECT 1 FROM calls WHERE account = ? AND id = ?"_s, {account, call}))
            throw noSuchCall();
        finishIn(sql, call, QDateTime::currentDateTimeUtc());
    });
}

qint64 CallStore::addLine(const QString &call, const QString &role, int second,
                          const QString &text) {
    qint64 line = 0;
    const bool isWritten = attempt([&](Sql &sql) {
        line = sql.insert(u"INSERT INTO call_lines (call, role, second, text)"
                          u" VALUES (?, ?, ?, ?)"_s,
                          {call, role, second, text});
    });
    return isWritten ? line : 0;
}

void CallStore::correctLine(qint64 line, const QString &text) {
    attempt([&](Sql &sql) {
        sql.exec(u"UPDATE call_lines SET text = ? WHERE id = ?"_s, {text, line});
    });
}

QJsonArray CallStore::list(const QString &account, const QString &agent, int limit) {
    settle();
    const auto rows = m_database.run([&](Sql &sql) {
        return sql.rows(callColumns + u" AND agent = ? AND started_at IS NOT NULL"
                                      u" ORDER BY started_at DESC LIMIT ?"_s,
                        {account, agent, limit});
    });
    QJsonArray list;
    for (const Row &row : rows)
        list.append(callObject(row));
    return list;
}

QJsonObject CallStore::detail(const QString &account, const QString &call) {
    return m_database.run([&](Sql &sql) {
        const auto row =
            sql.row(callColumns + u" AND id = ? AND started_at IS NOT NULL"_s, {account, call});
        if (!row)
            throw noSuchCall();
        QJsonArray transcript;
        for (const Row &line :
             sql.rows(u"SELECT role, second, text FROM call_lines WHERE call = ? ORDER BY id"_s,
                      {call})) {
            transcript.append(QJsonObject{
                {u"role"_s, line.text(0)}, {u"t"_s, line.whole(1)}, {u"text"_s, line.text(2)}});
        }
        QJsonObject object = callObject(*row);
        object.insert(u"transcript"_s, transcript);
        return object;
    });
}

} // namespace kiv::sandbox
