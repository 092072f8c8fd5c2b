#include "Accounts.h"

#include "Database.h"
#include "Http.h"
#include "Secrets.h"
#include "seed/Seed.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype shortestPassword = 8;
constexpr qsizetype longestPassword = 256;
constexpr qsizetype longestEmail = 254;

void checkEmail(const QString &email) {
    const qsizetype at = email.indexOf(u'@');
    const QStringView domain = QStringView(email).sliced(at + 1);
    const bool blank = std::any_of(email.begin(), email.end(), [](QChar c) { return c.isSpace(); });
    if (at < 1 || blank || email.size() > longestEmail || domain.contains(u'@') ||
        domain.indexOf(u'.') < 1 || domain.endsWith(u'.'))
        throw Refusal(400, u"Enter a valid email address."_s, u"invalid_email"_s);
}

QString storedHash(Sql &sql, const QString &account) {
    const auto row = sql.row(u"SELECT password FROM accounts WHERE id = ?"_s, {account});
    return row ? row->text(0) : QString();
}

/// Handles name people: two that differ in letter case alone are the same.
void checkHandle(Sql &sql, const QString &account, const QString &handle) {
    const QString wanted = handle.trimmed().toLower();
    if (wanted.isEmpty())
        return;
    for (const Row &row : sql.rows(u"SELECT profile FROM accounts WHERE id <> ?"_s, {account})) {
        const QJsonObject profile = QJsonDocument::fromJson(row.text(0).toUtf8()).object();
        if (profile.value(u"handle"_s).toString().trimmed().toLower() == wanted)
            throw Refusal(409, u"This handle is taken."_s, u"handle_taken"_s);
    }
}

QJsonObject readProfile(Sql &sql, const QString &account) {
    const auto row =
        sql.row(u"SELECT email, avatar, profile FROM accounts WHERE id = ?"_s, {account});
    if (!row)
        return {};
    QJsonObject profile = QJsonDocument::fromJson(row->text(2).toUtf8()).object();
    profile.insert(u"id"_s, account);
    profile.insert(u"email"_s, row->text(0));
    profile.insert(u"avatar_url"_s, row->text(1));
    return profile;
}

} // namespace

QString normalisedEmail(const QString &email) {
    return email.trimmed().toLower();
}

void Accounts::checkNewPassword(const QString &password) {
    if (password.size() < shortestPassword)
        throw Refusal(400, u"Password must be at least 8 characters."_s, u"weak_password"_s);
    if (password.size() > longestPassword)
        throw Refusal(400, u"Password must be at most 256 characters."_s, u"weak_password"_s);
}

QString Accounts::create(const QString &email, const QString &password,
                         const QJsonObject &profile) {
    const QString address = normalisedEmail(email);
    checkEmail(address);
    checkNewPassword(password);
    if (!find(address).isEmpty())
        throw Refusal(409, u"An account with this address already exists."_s, u"email_taken"_s);
    const QString hash = QString::fromLatin1(hashPassword(password));
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    m_database.run([&](Sql &sql) {
        const int made = sql.exec(
            u"INSERT OR IGNORE INTO accounts (id, email, password, created_at, as_of, profile)"
            u" VALUES (?, ?, ?, ?, ?, ?)"_s,
            {id, address, hash, now.toString(Qt::ISODateWithMs), now.date().toString(Qt::ISODate),
             QString::fromUtf8(compact(profile))});
        if (made == 0)
            throw Refusal(409, u"An account with this address already exists."_s, u"email_taken"_s);
        seedWorkspace(sql, id, now, m_seed);
    });
    return id;
}

QString Accounts::authenticate(const QString &email, const QString &password) {
    const auto found = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT id, password FROM accounts WHERE email = ?"_s,
                       {normalisedEmail(email)});
    });
    if (!found)
        verifyNobody(password);
    if (!found || !verifyPassword(found->text(1).toLatin1(), password))
        throw Refusal(401, u"Wrong email or password."_s, u"invalid_credentials"_s);
    return found->text(0);
}

QString Accounts::find(const QString &email) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT id FROM accounts WHERE email = ?"_s, {normalisedEmail(email)});
    });
    return row ? row->text(0) : QString();
}

void Accounts::changePassword(const QString &account, const QString &current, const QString &next) {
    const QString stored = m_database.run([&](Sql &sql) { return storedHash(sql, account); });
    if (!verifyPassword(stored.toLatin1(), current))
        throw Refusal(400, u"The current password is wrong."_s, u"wrong_password"_s);
    const QString hash = QString::fromLatin1(hashPassword(next));
    m_database.run([&](Sql &sql) {
        sql.exec(u"UPDATE accounts SET password = ? WHERE id = ?"_s, {hash, account});
    });
}

QJsonObject Accounts::profile(const QString &account) {
    return m_database.run([&](Sql &sql) { return readProfile(sql, account); });
}

QJsonObject Accounts::patchProfile(const QString &account, const QJsonObject &changes) {
    return m_database.run([&](Sql &sql) {
        checkHandle(sql, account, changes.value(u"handle"_s).toString());
        const auto row = sql.row(u"SELECT profile FROM accounts WHERE id = ?"_s, {account});
        QJsonObject stored = QJsonDocument::fromJson(row->text(0).toUtf8()).object();
        for (auto change = changes.begin(); change != changes.end(); ++change)
            stored.insert(change.key(), change.value());
        sql.exec(u"UPDATE accounts SET profile = ? WHERE id = ?"_s,
                 {QString::fromUtf8(compact(stored)), account});
        return readProfile(sql, account);
    });
}

void Accounts::setAvatar(const QString &account, const QString &key) {
    m_database.run([&](Sql &sql) {
        sql.exec(u"UPDATE accounts SET avatar = ? WHERE id = ?"_s, {key, account});
    });
}

} // namespace kiv::sandbox
