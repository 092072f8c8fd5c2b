#include "desktop/KeychainStore.h"

#include "desktop/DesktopId.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <qt6keychain/keychain.h>

namespace kiv::desktop {

using namespace Qt::StringLiterals;

namespace {

SecretStore::Outcome outcomeOf(const QKeychain::Job &job) {
    switch (job.error()) {
    case QKeychain::NoError:
        return SecretStore::Outcome::Done;
    case QKeychain::EntryNotFound:
        return SecretStore::Outcome::NotFound;
    default:
        return SecretStore::Outcome::Failed;
    }
}

/// A chain that is locked and cannot be unlocked now finds nothing. Whether it has something all
/// the same is told by the desktop's service for secrets; where there is none, nothing it is.
void askWhetherLocked(const QString &entry, QObject *owner, const SecretStore::Answer &answer) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    QDBusMessage question =
        QDBusMessage::createMethodCall(u"org.freedesktop.secrets"_s, u"/org/freedesktop/secrets"_s,
                                       u"org.freedesktop.Secret.Service"_s, u"SearchItems"_s);
    const QMap<QString, QString> attributes{{u"user"_s, entry}, {u"server"_s, desktopId}};
    question << QVariant::fromValue(attributes);
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, answer] {
        watcher->deleteLater();
        const QDBusPendingReply<QList<QDBusObjectPath>, QList<QDBusObjectPath>> found = *watcher;
        const bool isLocked = !found.isError() && !found.argumentAt<1>().isEmpty();
        answer(isLocked ? SecretStore::Outcome::Failed : SecretStore::Outcome::NotFound, {});
    });
}

} // namespace

void KeychainStore::read(Answer answer) {
    auto *job = new QKeychain::ReadPasswordJob(desktopId, &m_jobs);
    job->setKey(m_entry);
    QObject::connect(job, &QKeychain::Job::finished, &m_jobs,
                     [this, job, answer = std::move(answer)] {
                         const Outcome outcome = outcomeOf(*job);
                         if (outcome == Outcome::NotFound)
                             askWhetherLocked(m_entry, &m_jobs, answer);
                         else
                             answer(outcome, job->binaryData());
                     });
    job->start();
}

void KeychainStore::write(const QByteArray &secret, Answer answer) {
    auto *job = new QKeychain::WritePasswordJob(desktopId, &m_jobs);
    job->setKey(m_entry);
    job->setBinaryData(secret);
    QObject::connect(job, &QKeychain::Job::finished, &m_jobs,
                     [job, answer = std::move(answer)] { answer(outcomeOf(*job), {}); });
    job->start();
}

void KeychainStore::remove() {
    auto *job = new QKeychain::DeletePasswordJob(desktopId, &m_jobs);
    job->setKey(m_entry);
    job->start();
}

} // namespace kiv::desktop
