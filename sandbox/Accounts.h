#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace kiv::sandbox {

class Database;

/// Who has an account, and the profile that belongs to it.
class Accounts {
public:
    Accounts(Database &database, quint64 seed) : m_database(database), m_seed(seed) {}

    /// Makes an account with its seeded workspace and returns its id. Throws Refusal when the
    /// address is invalid or taken or the password is too short.
    QString create(const QString &email, const QString &password, const QJsonObject &profile);
    /// The account's id; throws Refusal when address and password do not belong together.
    QString authenticate(const QString &email, const QString &password);
    /// The id of the account with this address; empty when there is none.
    QString find(const QString &email);

    /// Throws Refusal when the password is too short or too long to be taken.
    static void checkNewPassword(const QString &password);
    /// Throws Refusal when `current` is wrong. `next` has been checked.
    void changePassword(const QString &account, const QString &current, const QString &next);

    /// Every stored field under its wire key, "id", "email" and "avatar_url" (a key) included.
    QJsonObject profile(const QString &account);
    /// Stores `changes` (checked by checkedProfile) and returns the whole profile. Throws Refusal
    /// when the handle belongs to somebody else.
    QJsonObject patchProfile(const QString &account, const QJsonObject &changes);
    /// `key` names an uploaded file.
    void setAvatar(const QString &account, const QString &key);

private:
    Database &m_database;
    quint64 m_seed;
};

/// Trimmed and lower-cased: what tells accounts apart.
QString normalisedEmail(const QString &email);

/// Throws Refusal when a field is of the wrong type or out of bounds. Unknown keys are left out of
/// the result.
QJsonObject checkedProfile(const QJsonObject &changes);

} // namespace kiv::sandbox
