#include "app/SystemLook.h"

#include "store/AppearanceRoom.h"

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
const QString desktopGroup = u"org.gnome.desktop.interface"_s;
constexpr uint preferDark = 1;
constexpr uint preferContrast = 1;
constexpr uint preferStill = 1;

/// What of the desktop's settings counts.
const QList<std::pair<QString, QString>> settings{{lookGroup, u"color-scheme"_s},
                                                  {lookGroup, u"contrast"_s},
                                                  {lookGroup, u"reduced-motion"_s},
                                                  {desktopGroup, u"enable-animations"_s},
                                                  {desktopGroup, u"text-scaling-factor"_s}};

} // namespace

void SystemLook::tell(store::AppearanceRoom &room) {
    using store::AppearanceRoom;
    connect(this, &SystemLook::darkChanged, &room, &AppearanceRoom::setSystemDark);
    connect(this, &SystemLook::contrastChanged, &room, &AppearanceRoom::setHighContrast);
    connect(this, &SystemLook::motionChanged, &room, &AppearanceRoom::setReducedMotion);
    connect(this, &SystemLook::textScaleChanged, &room, &AppearanceRoom::setSystemTextScale);
}

void SystemLook::watch() {
    if (!m_bus.isConnected())
        return;
    // A change comes from another thread, which hands over known types only.
    qRegisterMetaType<QDBusVariant>();
    m_bus.connect(service, path, interface, u"SettingChanged"_s, this,
                  SLOT(take(QString, QString, QDBusVariant)));
    for (const auto &[group, key] : settings)
        ask(group, key);
}

void SystemLook::ask(const QString &group, const QString &key) {
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    question << group << key;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, group, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take(group, key, reply.value());
    });
}

void SystemLook::take(const QString &group, const QString &key, const QDBusVariant &wrapped) {
    // The answer to a question is wrapped once more than the news of a change.
    QVariant value = wrapped.variant();
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    if (group == lookGroup && key == u"color-scheme"_s) {
        Q_EMIT darkChanged(value.toUInt() == preferDark);
    } else if (group == lookGroup && key == u"contrast"_s) {
        Q_EMIT contrastChanged(value.toUInt() == preferContrast);
    } else if (group == lookGroup && key == u"reduced-motion"_s) {
        m_prefersStill = value.toUInt() == preferStill;
        Q_EMIT motionChanged(m_prefersStill || m_hasNoAnimations);
    } else if (group == desktopGroup && key == u"enable-animations"_s) {
        m_hasNoAnimations = !value.toBool();
        Q_EMIT motionChanged(m_prefersStill || m_hasNoAnimations);
    } else if (group == desktopGroup && key == u"text-scaling-factor"_s) {
        if (const double scale = value.toDouble(); scale > 0)
            Q_EMIT textScaleChanged(scale);
    }
}

} // namespace kiv::app
