#pragma once

#include "base/SecretStore.h"

#include <QObject>
#include <QString>

namespace kiv::desktop {

/// The key chain of the desktop, as QtKeychain reaches it.
class KeychainStore : public SecretStore {
public:
    /// `entry` names the secret among those of this program.
    explicit KeychainStore(QString entry) : m_entry(std::move(entry)) {}

    void read(Answer answer) override;
    void write(const QByteArray &secret, Answer answer) override;
    void remove() override;

private:
    QString m_entry;
    QObject m_jobs; ///< owner of what is under way
};

} // namespace kiv::desktop
