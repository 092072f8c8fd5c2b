#pragma once

#include <QString>

#include <mutex>

namespace kiv::sandbox {

class Accounts;

/// The account behind "Try the sample workspace". Its random password is kept beside the database
/// in a file that only its owner can read; the account is made when somebody first signs in to it.
class SampleAccount {
public:
    SampleAccount(const QString &dataDir, Accounts &accounts);

    QString email() const;
    QString password() const { return m_password; }
    /// Makes the account when `email` is its address and it is not there yet.
    void ensure(const QString &email);

private:
    Accounts &m_accounts;
    QString m_password;
    bool m_isNew = false; ///< the account, if it is there, has another one
    std::mutex m_mutex;
    bool m_made = false;
};

} // namespace kiv::sandbox
