#pragma once

#include "soak/Ledger.h"

#include <QJsonObject>
#include <QList>

#include <optional>

namespace kiv::soak {

/// A row as the server has it.
struct Stored {
    qint64 id = 0;
    bool isOurs = false;
    QString text;
    qsizetype files = 0;
};

/// A session of the run's own, by which it asks the server what it has. Waits for the answers while
/// the program goes on.
class Witness {
public:
    explicit Witness(int port) : m_port(port) {}

    /// Makes an account.
    bool signUp(const QString &email, const QString &password);
    /// The newest rows of a chat, oldest first; nothing when the server does not answer.
    std::optional<QList<Stored>> rows(const QString &email, const QString &password,
                                      const QString &path);
    QJsonObject profile(const QString &email, const QString &password);

private:
    QJsonObject get(const QString &email, const QString &password, const QString &path);

    const int m_port;
    QHash<QString, std::string> m_cookies; ///< by the person's address
};

} // namespace kiv::soak
