#include "app/SystemLook.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString lookGroup = u"org.freedesktop.appearance"_s;
const QString schemeKey = u"color-scheme"_s;
constexpr uint preferDark = 1;

} // namespace

void SystemLook::watch() {
    if (!m_bus.isConnected())
        return;
    // A change comes from another thread, which hands over known types only.
    qRegisterMetaType<QDBusVariant>();
    m_bus.connect(service, path, interface, u"SettingChanged"_s, this,
                  SLOT(take(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    question << lookGroup << schemeKey;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take(lookGroup, schemeKey, reply.value());
    });
}

void SystemLook::take(const QString &group, const QString &key, const QDBusVariant &value) {
    if (group != lookGroup || key != schemeKey)
        return;
    // The answer to a question is wrapped once more than the news of a change.
    QVariant scheme = value.variant();
    if (scheme.metaType() == QMetaType::fromType<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    Q_EMIT darkChanged(scheme.toUInt() == preferDark);
}

} // namespace kiv::app
