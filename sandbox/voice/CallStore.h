#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <mutex>
#include <optional>

namespace kiv::sandbox {

class Database;
class Sql;

/// A call that has been agreed on: its id, and the secret that opens its socket.
struct MintedCall {
    QString id;
    QByteArray token;
};

/// A call whose socket is open.
struct OpenCall {
    QString id;
    QString account;
    QString agent;
    int longestSeconds = 0;
    int secondsSoFar = 0;
    bool isResumed = false; ///< the socket takes up a call whose earlier one broke
};

/// Where the one socket of a call may come from.
struct CallDoor {
    QString origin; ///< the page that asked for the call
    QString host;   ///< the host that the socket's address names
};

/// Calls on disk, past and present. An account has one call at a time. A call waits a minute for
/// its socket; one whose socket broke can be taken up again for half a minute. Safe on every
/// thread. What a call in progress writes is complained about and left out when the disk does not
/// take it: it comes from an event loop, out of which nothing may be thrown.
class CallStore {
public:
    /// Calls that an earlier run of the server left open are over.
    explicit CallStore(Database &database);

    /// Throws Refusal ("call_in_progress") while another call of the account is open.
    MintedCall mint(const QString &account, const QString &agent, const CallDoor &door,
                    int longestSeconds);
    /// Nothing for a token that is unknown, in use or used up, that comes from another door, or
    /// when the disk is full.
    std::optional<OpenCall> open(const QByteArray &token, const CallDoor &door);
    /// The socket is gone without a goodbye. What cannot be written down now is as soon as it can,
    /// with the time of now; so it is with finish.
    void drop(const QString &call);
    void finish(const QString &call);
    /// Finishes the account's call; throws Refusal (404) when it has no such call.
    void end(const QString &account, const QString &call);

    /// `role` is "user" or "agent". The result is the line's id, 0 for none.
    qint64 addLine(const QString &call, const QString &role, int second, const QString &text);
    void correctLine(qint64 line, const QString &text);

    /// The account's calls with the agent that came about, newest first, as they go out.
    QJsonArray list(const QString &account, const QString &agent, int limit);
    /// One call with its transcript; throws Refusal (404) when the account has no such call.
    QJsonObject detail(const QString &account, const QString &call);

private:
    /// How and when the socket of a call went.
    struct Ending {
        QString call;
        void (*write)(Sql &sql, const QString &call, const QDateTime &at);
        QDateTime at;
    };

    bool attempt(const std::function<void(Sql &)> &job);
    void settle();
    void writeDown(const Ending &ending);

    Database &m_database;
    std::mutex m_mutex;
    QList<Ending> m_owed; ///< what the disk has not taken, the earliest first
};

} // namespace kiv::sandbox
