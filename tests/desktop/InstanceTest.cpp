#include "desktop/Instance.h"
#include "support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::desktop {

/// Starts of the program on a bus of their own.
class InstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (!m_bus.isThere())
            QSKIP("There is no dbus-daemon");
    }
    void cleanup() { m_bus.disconnectAll(); }

    void aSecondStartHandsOver_data() {
        QTest::addColumn<QStringList>("links");
        QTest::addColumn<QString>("token");
        QTest::newRow("to raise the window") << QStringList() << QString();
        QTest::newRow("with the leave to") << QStringList() << u"token_TIME7"_s;
        QTest::newRow("with a link") << QStringList{u"kiv://chat/kiv"_s} << u"t"_s;
        QTest::newRow("with whatever it was given")
            << QStringList{u"file:///etc/passwd"_s, u"kiv://chat/agent/scout"_s} << QString();
        QTest::newRow("with more links than anybody opens")
            << QStringList(1000, u"kiv://chat/kiv"_s) << QString();
    }
    void aSecondStartHandsOver() {
        QFETCH(QStringList, links);
        QFETCH(QString, token);
        Instance first(m_bus.connection(u"first"_s), {});
        QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        QSignalSpy activated(&first, &Instance::activated);
        QSignalSpy opened(&first, &Instance::linkOpened);
        QCOMPARE(startAgain({}, links, token), Instance::Place::HandedOver);
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated.first().first().toString(), token);
        QStringList got;
        for (const QList<QVariant> &call : opened)
            got.append(call.first().toString());
        QCOMPARE(got, links.first(std::min<qsizetype>(links.size(), 16)));
    }

    void aProfileIsAPlaceOfItsOwn() {
        const QTemporaryDir profile;
        Instance first(m_bus.connection(u"first"_s), {});
        QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        QCOMPARE(startAgain(profile.path(), {}, {}), Instance::Place::First);
    }

    void thePlaceIsFreeAgainAfterwards() {
        {
            Instance first(m_bus.connection(u"first"_s), {});
            QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        }
        Instance second(m_bus.connection(u"first"_s), {});
        QCOMPARE(second.claim({}, {}, 1s), Instance::Place::First);
    }

    void oneThatIsStuckIsNotWaitedForLong() {
        Instance first(m_bus.connection(u"first"_s), {});
        QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        Instance::Place place = Instance::Place::First;
        QElapsedTimer time;
        time.start();
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            Instance second(m_bus.connection(u"second"_s), {});
            place = second.claim({u"kiv://chat/kiv"_s}, {}, 300ms);
        }));
        thread->start();
        QVERIFY(thread->wait(10000)); // meanwhile the first one does nothing
        QCOMPARE(place, Instance::Place::NoAnswer);
        QVERIFY(time.elapsed() < 5000);
    }

    /// On whichever bus they are, or on none.
    void oneProgramAProfile_data() {
        QTest::addColumn<bool>("isFirstOnBus");
        QTest::addColumn<bool>("isSecondOnBus");
        QTest::newRow("neither on a bus") << false << false;
        QTest::newRow("the first on a bus") << true << false;
        QTest::newRow("the second on a bus") << false << true;
    }
    void oneProgramAProfile() {
        QFETCH(bool, isFirstOnBus);
        QFETCH(bool, isSecondOnBus);
        const QTemporaryDir folder;
        const QString lock = folder.filePath(u"state/lock"_s);
        const auto bus = [&](bool isOnBus, const QString &name) {
            return isOnBus ? m_bus.connection(name) : test::PrivateBus::noConnection();
        };
        auto first = std::make_unique<Instance>(bus(isFirstOnBus, u"first"_s), QString(), lock);
        QCOMPARE(first->claim({}, {}, 1s), Instance::Place::First);
        Instance second(bus(isSecondOnBus, u"second"_s), {}, lock);
        QCOMPARE(second.claim({}, {}, 100ms), Instance::Place::NoAnswer);
        first.reset();
        QCOMPARE(second.claim({}, {}, 1s), Instance::Place::First);
    }

    void oneThatEndsIsWaitedFor() {
        const QTemporaryDir folder;
        const QString lock = folder.filePath(u"lock"_s);
        auto first = std::make_unique<Instance>(m_bus.connection(u"first"_s), QString(), lock);
        QCOMPARE(first->claim({}, {}, 1s), Instance::Place::First);
        first->leave();
        QTimer::singleShot(200, this, [&] { first.reset(); });
        QCOMPARE(startAgain({}, {u"kiv://chat/kiv"_s}, {}, lock), Instance::Place::First);
        QVERIFY(!first);
    }

    void theDesktopStartsActions() {
        Instance first(m_bus.connection(u"first"_s), {});
        QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        QSignalSpy chosen(&first, &Instance::actionChosen);
        QDBusMessage call =
            QDBusMessage::createMethodCall(u"ai.kiv.Desktop"_s, u"/ai/kiv/Desktop"_s,
                                           u"org.freedesktop.Application"_s, u"ActivateAction"_s);
        call << u"ask-kiv"_s << QVariantList() << QVariantMap();
        m_bus.connection(u"desktop"_s).asyncCall(call);
        QVERIFY(chosen.wait());
        QCOMPARE(chosen.first().first().toString(), u"ask-kiv"_s);
    }

    /// Nothing of the program is on the bus but the calls of the desktop's interface: no signal,
    /// which everybody would hear, tells of a link.
    void nothingElseIsOnTheBus() {
        Instance first(m_bus.connection(u"first"_s), {});
        QCOMPARE(first.claim({}, {}, 1s), Instance::Place::First);
        const QDBusPendingReply<QString> reply =
            m_bus.connection(u"desktop"_s)
                .asyncCall(QDBusMessage::createMethodCall(u"ai.kiv.Desktop"_s, u"/ai/kiv/Desktop"_s,
                                                          u"org.freedesktop.DBus.Introspectable"_s,
                                                          u"Introspect"_s));
        QTRY_VERIFY(reply.isFinished());
        QStringList offered;
        QXmlStreamReader xml(reply.value());
        for (QString interface; !xml.atEnd(); xml.readNext()) {
            const QString name = xml.attributes().value("name"_L1).toString();
            if (xml.name() == "interface"_L1)
                interface = name;
            const bool isOffer = xml.isStartElement() && xml.name() != "arg"_L1 &&
                                 xml.name() != "annotation"_L1 && name != interface;
            if (isOffer && !interface.startsWith("org.freedesktop.DBus."_L1))
                offered.append(name);
        }
        offered.sort();
        QCOMPARE(offered, QStringList({u"Activate"_s, u"ActivateAction"_s, u"Open"_s}));
    }

    void names() {
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        QVERIFY(dir.mkdir(u"one"_s) && dir.mkdir(u"two"_s));
        QVERIFY(QFile::link(dir.filePath(u"one"_s), dir.filePath(u"other way"_s)));
        const QString one = Instance::nameFor(dir.filePath(u"one"_s));
        QCOMPARE(Instance::nameFor({}), u"ai.kiv.Desktop"_s);
        for (const QString &way : {u"one/"_s, u"./two/../one"_s, u"other way"_s})
            QCOMPARE(Instance::nameFor(dir.filePath(way)), one);
        QVERIFY(Instance::nameFor(dir.filePath(u"two"_s)) != one);
        QVERIFY(Instance::nameFor(dir.filePath(u"none"_s)) != one);
        // Every element of a name on the bus begins with no figure.
        QVERIFY(QRegularExpression(u"^ai\\.kiv\\.Desktop\\.Profile[0-9a-f]{16}$"_s)
                    .match(one)
                    .hasMatch());
    }

private:
    /// What a start finds while this one goes on.
    Instance::Place startAgain(const QString &profile, const QStringList &links,
                               const QString &token, const QString &lock = {}) {
        Instance::Place place = Instance::Place::NoAnswer;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            Instance second(m_bus.connection(u"second"_s), profile, lock);
            place = second.claim(links, token, 5s);
        }));
        QSignalSpy done(thread.get(), &QThread::finished);
        thread->start();
        if (!thread->isFinished())
            done.wait(10000);
        thread->wait();
        return place;
    }

    test::PrivateBus m_bus;
};

} // namespace kiv::desktop

QTEST_GUILESS_MAIN(kiv::desktop::InstanceTest)
#include "InstanceTest.moc"
