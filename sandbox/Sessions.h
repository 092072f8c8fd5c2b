#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>

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
    /// How often sessions were closed: whether one is still open is asked only after that grew.
    quint64 closings() const { return m_closings; }

private:
    Database &m_database;
    std::atomic<quint64> m_closings = 0;
};

} // namespace kiv::sandbox
