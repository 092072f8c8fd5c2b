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
    /// The account's id when these are its address and the password above, which opens it also when
    /// somebody has given it another one; otherwise empty.
    QString enter(const QString &email, const QString &password);

private:
    Accounts &m_accounts;
    QString m_password;
    std::mutex m_mutex;
    bool m_made = false;
};

} // namespace kiv::sandbox
