#include "app/SystemLook.h"
#include "store/AppearanceRoom.h"
#include "support/PrivateBus.h"

#include <QDBusContext>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kiv::app {

namespace {

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString lookGroup = u"org.freedesktop.appearance"_s;

} // namespace

/// The settings portal of a desktop.
class Portal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QHash<QString, QVariant> settings; ///< by group and key

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key) {
        const QString name = group + u' ' + key;
        if (!settings.contains(name))
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(settings.value(name, QVariant(0u)))));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

/// On a bus of its own.
class SystemLookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (!m_bus.isThere())
            QSKIP("There is no dbus-daemon");
    }
    void cleanup() { m_bus.disconnectAll(); }

    void followsTheDesktop() {
        Portal portal;
        portal.settings.insert(lookGroup + u" color-scheme"_s, 1u);
        offer(portal);
        SystemLook look(m_bus.connection(u"program"_s));
        QSignalSpy changed(&look, &SystemLook::darkChanged);
        look.watch();
        QVERIFY(changed.wait());
        QCOMPARE(changed.takeFirst().first().toBool(), true);

        // Other settings are none of its business.
        Q_EMIT portal.SettingChanged(lookGroup, u"contrast"_s, QDBusVariant(1u));
        Q_EMIT portal.SettingChanged(u"org.example"_s, u"color-scheme"_s, QDBusVariant(1u));
        for (const uint scheme : {2u, 1u, 0u}) {
            Q_EMIT portal.SettingChanged(lookGroup, u"color-scheme"_s, QDBusVariant(scheme));
            QTRY_COMPARE(changed.size(), 1);
            QCOMPARE(changed.takeFirst().first().toBool(), scheme == 1);
        }
    }

    /// Everything that a desktop says arrives in the room of the appearance.
    void tellsTheRoom() {
        Portal portal;
        const QString desktopGroup = u"org.gnome.desktop.interface"_s;
        portal.settings = {{lookGroup + u" contrast"_s, 1u},
                           {lookGroup + u" reduced-motion"_s, 0u},
                           {desktopGroup + u" enable-animations"_s, false},
                           {desktopGroup + u" text-scaling-factor"_s, 1.25}};
        offer(portal);
        QTemporaryDir folder;
        QSettings settings(folder.filePath(u"kiv.conf"_s), QSettings::IniFormat);
        store::AppearanceRoom room(settings);
        SystemLook look(m_bus.connection(u"program"_s));
        look.tell(room);
        look.watch();
        QTRY_VERIFY(room.highContrast());
        QTRY_VERIFY(room.reducedMotion());
        QTRY_COMPARE(room.textScale(), 1.25);
        const auto say = [&](const QString &group, const QString &key, const QVariant &value) {
            Q_EMIT portal.SettingChanged(group, key, QDBusVariant(value));
        };
        say(lookGroup, u"contrast"_s, 0u);
        QTRY_VERIFY(!room.highContrast());
        say(desktopGroup, u"enable-animations"_s, true);
        QTRY_VERIFY(!room.reducedMotion());
        say(lookGroup, u"reduced-motion"_s, 1u);
        QTRY_VERIFY(room.reducedMotion());
        say(desktopGroup, u"text-scaling-factor"_s, -3.0);
        say(desktopGroup, u"text-scaling-factor"_s, 9.0);
        QTRY_COMPARE(room.textScale(), 1.5);
    }

    void saysNothingWithoutOne_data() {
        QTest::addColumn<bool>("bus");
        QTest::addColumn<bool>("portal");
        QTest::newRow("no bus") << false << false;
        QTest::newRow("no portal") << true << false;
        QTest::newRow("a portal that does not know it") << true << true;
    }
    void saysNothingWithoutOne() {
        QFETCH(bool, bus);
        QFETCH(bool, portal);
        Portal old;
        if (portal)
            offer(old);
        SystemLook look(bus ? m_bus.connection(u"program"_s) : test::PrivateBus::noConnection());
        QSignalSpy changed(&look, &SystemLook::darkChanged);
        look.watch();
        QVERIFY(!changed.wait(300));
    }

private:
    void offer(Portal &portal) {
        QDBusConnection desktop = m_bus.connection(u"desktop"_s);
        QVERIFY(desktop.registerObject(portalPath, &portal,
                                       QDBusConnection::ExportAllSlots |
                                           QDBusConnection::ExportAllSignals));
        QVERIFY(desktop.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    test::PrivateBus m_bus;
};

} // namespace kiv::app

QTEST_GUILESS_MAIN(kiv::app::SystemLookTest)
#include "SystemLookTest.moc"
