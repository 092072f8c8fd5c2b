#include "SampleAccount.h"

#include "Accounts.h"
#include "Secrets.h"
#include "base/PrivateFile.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qint64 longestKept = 256;

/// What an earlier start has made; empty when there is nothing of ours.
QString readPassword(const QString &path) {
    const QByteArray kept = PrivateFile::read(path, longestKept).value_or(QByteArray()).trimmed();
    return isToken(kept) ? QString::fromLatin1(kept) : QString();
}

QString makePassword(const QString &path) {
    if (QFileInfo::exists(path)) {
        qWarning("The sample account's password cannot be read; it gets a new one.");
        PrivateFile::setAside(path);
    }
    const QByteArray made = randomToken();
    const QString failure = PrivateFile::exchange(path, made + '\n');
    if (!failure.isEmpty())
        qWarning("The sample account's password cannot be kept: %s", qUtf8Printable(failure));
    return QString::fromLatin1(made);
}

} // namespace

SampleAccount::SampleAccount(const QString &dataDir, Accounts &accounts) : m_accounts(accounts) {
    const QString path = dataDir + u"/sample-password"_s;
    m_password = readPassword(path);
    if (m_password.isEmpty())
        m_password = makePassword(path);
}

QString SampleAccount::email() const {
    return u"olive@sample.example"_s;
}

void SampleAccount::ensure(const QString &address) {
    if (normalisedEmail(address) != email())
        return;
    const std::lock_guard lock(m_mutex);
    if (!m_made && m_accounts.find(email()).isEmpty()) {
        const QString zone = QString::fromLatin1(QTimeZone::systemTimeZoneId());
        m_accounts.create(email(), m_password,
                          {{u"full_name"_s, u"Olive Lindqvist"_s},
                           {u"company_name"_s, u"Lantern Works"_s},
                           {u"jobTitle"_s, u"Head of operations"_s},
                           {u"time_zone"_s, zone}});
    }
    m_made = true;
}

QString SampleAccount::enter(const QString &address, const QString &password) {
    ensure(address);
    const bool isOffered = normalisedEmail(address) == email() &&
                           tokenHash(password.toUtf8()) == tokenHash(m_password.toUtf8());
    return isOffered ? m_accounts.find(email()) : QString();
}

} // namespace kiv::sandbox
