#include "SampleAccount.h"

#include "Accounts.h"
#include "Secrets.h"

#include <QFile>
#include <QJsonObject>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

QString readOrMake(const QString &path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray stored = file.readAll().trimmed();
        if (!stored.isEmpty()) {
            return QString::fromLatin1(stored);
        }
        file.close();
    }
    const QByteArray made = randomToken();
    if (!file.open(QIODevice::WriteOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(made + '\n') < 0) {
        qWarning("The sample account's password cannot be kept: %s", qPrintable(path));
    }
    return QString::fromLatin1(made);
}

} // namespace

SampleAccount::SampleAccount(const QString &dataDir, Accounts &accounts)
    : m_accounts(accounts), m_password(readOrMake(dataDir + u"/sample-password"_s)) {}

QString SampleAccount::email() const {
    return u"olive@sample.example"_s;
}

void SampleAccount::ensure(const QString &address) {
    if (normalizedEmail(address) != email()) {
        return;
    }
    const std::lock_guard lock(m_mutex);
    if (!m_made && !m_accounts.exists(email())) {
        const QString zone = QString::fromLatin1(QTimeZone::systemTimeZoneId());
        m_accounts.create(email(), m_password,
                          {{u"full_name"_s, u"Olive Lindqvist"_s},
                           {u"company_name"_s, u"Lantern Works"_s},
                           {u"jobTitle"_s, u"Head of operations"_s},
                           {u"time_zone"_s, zone}});
    }
    m_made = true;
}

} // namespace kiv::sandbox
