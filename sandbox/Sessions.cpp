#include "Sessions.h"

#include "Database.h"
#include "Secrets.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qint64 daysOfSession = 365;

} // namespace

QByteArray Sessions::open(const QString &account) {
    const QByteArray token = randomToken();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    m_database.run([&](Sql &sql) {
        sql.exec(u"DELETE FROM sessions WHERE expires_at < ?"_s, {now.toString(Qt::ISODate)});
        sql.exec(u"INSERT INTO sessions (token, account, created_at, expires_at)"
                 u" VALUES (?, ?, ?, ?)"_s,
                 {tokenHash(token), account, now.toString(Qt::ISODate),
                  now.addDays(daysOfSession).toString(Qt::ISODate)});
    });
    return token;
}

QString Sessions::account(const QByteArray &token) {
    if (token.isEmpty())
        return {};
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT account FROM sessions WHERE token = ? AND expires_at >= ?"_s,
                       {tokenHash(token), now});
    });
    return row ? row->text(0) : QString();
}

void Sessions::close(const QByteArray &token) {
    m_database.run(
        [&](Sql &sql) { sql.exec(u"DELETE FROM sessions WHERE token = ?"_s, {tokenHash(token)}); });
    ++m_closings;
}

void Sessions::closeOthers(const QString &account, const QByteArray &kept) {
    m_database.run([&](Sql &sql) {
        sql.exec(u"DELETE FROM sessions WHERE account = ? AND token <> ?"_s,
                 {account, tokenHash(kept)});
    });
    ++m_closings;
}

} // namespace kiv::sandbox
