#include "desktop/Instance.h"

#include "base/PrivateFile.h"
#include "desktop/DesktopId.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>

namespace kiv::desktop {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString interface = u"org.freedesktop.Application"_s;
const QString tokenKey = u"activation-token"_s;
const QString startupKey = u"desktop-startup-id"_s;
/// Of one call: nobody has more chats to open at once.
constexpr qsizetype mostLinks = 16;
constexpr auto betweenTries = 50ms;
/// A lock of this age may be one that a killed program has left. Who is alive holds the system's
/// lock on the file, too.
constexpr int staleAfter = 1000;

/// The object of the interface, as the name of the desktop file gives it.
QString objectPath() {
    return u'/' + QString(desktopId).replace(u'.', u'/');
}

QString tokenOf(const QVariantMap &platform) {
    const QString token = platform.value(tokenKey).toString();
    return token.isEmpty() ? platform.value(startupKey).toString() : token;
}

QVariantMap platformOf(const QString &token) {
    if (token.isEmpty())
        return {};
    return {{tokenKey, token}, {startupKey, token}};
}

/// The one that held the name has gone, or is going.
bool isGone(const QDBusMessage &reply) {
    const QString error = reply.errorName();
    return error == u"org.freedesktop.DBus.Error.ServiceUnknown"_s ||
           error == u"org.freedesktop.DBus.Error.NameHasNoOwner"_s ||
           error == u"org.freedesktop.DBus.Error.UnknownObject"_s ||
           error == u"org.freedesktop.DBus.Error.NoReply"_s ||
           error == u"org.freedesktop.DBus.Error.Disconnected"_s;
}

} // namespace

QString Instance::nameFor(const QString &profile) {
    if (profile.isEmpty())
        return desktopId;
    // The same folder is the same profile, whichever way leads to it.
    const QFileInfo folder(profile);
    const QString path = folder.exists() ? folder.canonicalFilePath() : folder.absoluteFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().first(16);
    return desktopId + u".Profile"_s + QString::fromLatin1(digest);
}

Instance::Instance(const QDBusConnection &bus, const QString &profile, const QString &lockFile)
    : m_bus(bus), m_name(nameFor(profile)), m_lockFile(lockFile) {
    // Before anything else that is done at the end: nobody is to hand over to what is ending.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Instance::leave);
}

Instance::~Instance() {
    leave();
}

void Instance::leave() {
    if (!std::exchange(m_isOnBus, false))
        return;
    m_bus.interface()->unregisterService(m_name);
    m_bus.unregisterObject(objectPath());
}

/// Whether the name is ours from now on.
bool Instance::take() {
    // Whoever finds the name must find the object.
    m_bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots);
    const auto reply =
        m_bus.interface()->registerService(m_name, QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    m_isOnBus = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!m_isOnBus)
        m_bus.unregisterObject(objectPath());
    return m_isOnBus;
}

/// A place where no file can be made is no reason not to start.
Instance::Place Instance::lock(std::chrono::milliseconds patience) {
    if (m_lockFile.isEmpty())
        return Place::First;
    PrivateFile::makeFolderOf(m_lockFile);
    m_lock = std::make_unique<QLockFile>(m_lockFile);
    m_lock->setStaleLockTime(staleAfter);
    const bool isTaken = !m_lock->tryLock(static_cast<int>(patience.count())) &&
                         m_lock->error() == QLockFile::LockFailedError;
    return isTaken ? Place::NoAnswer : Place::First;
}

Instance::Place Instance::claim(const QStringList &links, const QString &token,
                                std::chrono::milliseconds patience) {
    if (!m_bus.isConnected())
        return lock(patience);
    const QDeadlineTimer deadline(patience);
    for (;; QThread::msleep(betweenTries.count())) {
        if (take()) {
            const Place place = lock(patience);
            if (place != Place::First)
                leave();
            return place;
        }
        QDBusMessage call = QDBusMessage::createMethodCall(
            m_name, objectPath(), interface, links.isEmpty() ? u"Activate"_s : u"Open"_s);
        call.setAutoStartService(false);
        if (!links.isEmpty())
            call << links;
        call << platformOf(token);
        const QDBusMessage reply =
            m_bus.call(call, QDBus::Block, std::max(1, static_cast<int>(deadline.remainingTime())));
        if (reply.type() == QDBusMessage::ReplyMessage)
            return Place::HandedOver;
        if (!isGone(reply) || deadline.hasExpired())
            return Place::NoAnswer;
    }
}

void Instance::Activate(const QVariantMap &platform) {
    Q_EMIT activated(tokenOf(platform));
}

void Instance::Open(const QStringList &links, const QVariantMap &platform) {
    Q_EMIT activated(tokenOf(platform));
    for (const QString &link : links.first(std::min(links.size(), mostLinks)))
        Q_EMIT linkOpened(link);
}

void Instance::ActivateAction(const QString &action, const QVariantList &,
                              const QVariantMap &platform) {
    Q_EMIT activated(tokenOf(platform));
    Q_EMIT actionChosen(action);
}

} // namespace kiv::desktop
