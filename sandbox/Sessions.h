#pragma once

#include <QByteArray>
#include <QString>

namespace kiv::sandbox {

class Database;

/// Who is signed in. A session is a random cookie, of which only the hash is stored.
class Sessions {
public:
    explicit Sessions(Database &database) : m_database(database) {}

    /// Starts a session; the result is the cookie's value.
    QByteArray open(const QString &account);
    /// The account of a valid session; empty when there is none.
    QString account(const QByteArray &token);
    void close(const QByteArray &token);
    /// Signs the account out everywhere but under `kept`.
    void closeOthers(const QString &account, const QByteArray &kept);

private:
    Database &m_database;
};

} // namespace kiv::sandbox
