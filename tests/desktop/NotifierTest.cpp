#include "desktop/Notifier.h"
#include "support/NotificationServer.h"
#include "support/PrivateBus.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kiv::desktop {

/// Notices on a bus of their own.
class NotifierTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (!m_bus.isThere())
            QSKIP("There is no dbus-daemon");
    }
    void cleanup() { m_bus.disconnectAll(); }

    void markupIsText_data() {
        QTest::addColumn<QStringList>("abilities");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a server that reads it")
            << QStringList{u"body"_s, u"body-markup"_s}
            << u"&lt;b&gt;5 &amp; 6&lt;/b&gt; &lt;img src=&quot;x&quot;&gt;"_s;
        QTest::newRow("one that does not")
            << QStringList{u"body"_s} << u"<b>5 & 6</b> <img src=\"x\">"_s;
    }
    void markupIsText() {
        QFETCH(QStringList, abilities);
        test::NotificationServer server;
        server.abilities = abilities;
        QVERIFY(server.start(m_bus.connection(u"desktop"_s)));
        Notifier notifier(m_bus.connection(u"program"_s));
        notifier.show({u"kiv://chat/kiv"_s, u"KIV"_s, u"<b>5 & 6</b> <img src=\"x\">"_s});
        QTRY_COMPARE(server.shown.size(), 1);
        QTEST(server.shown[0].text, "shown");
        QCOMPARE(server.shown[0].title, u"KIV"_s);
        QCOMPARE(server.shown[0].icon, u"ai.kiv.Desktop"_s);
        QCOMPARE(server.shown[0].hints.value(u"desktop-entry"_s).toString(), u"ai.kiv.Desktop"_s);
        QCOMPARE(server.shown[0].actions.value(0), u"default"_s);
    }

    void newerTakesThePlaceOfOlder() {
        test::NotificationServer server;
        QVERIFY(server.start(m_bus.connection(u"desktop"_s)));
        Notifier notifier(m_bus.connection(u"program"_s));
        QSignalSpy clicked(&notifier, &Notifier::clicked);
        const auto show = [&](const QString &topic, qsizetype count) {
            notifier.show({topic, u"KIV"_s, u"5"_s});
            QTRY_COMPARE(server.shown.size(), count);
            QTest::qWait(20); // the server's answer is on its way
        };
        show(u"a"_s, 1);
        show(u"b"_s, 2);
        show(u"a"_s, 3);
        QCOMPARE(server.shown[1].replaced, 0u);
        QCOMPARE(server.shown[2].replaced, 1u);

        // Clicks on notices of others, and other buttons, are none of its business.
        server.click(17);
        server.click(3, {}, u"elsewhere"_s);
        server.click(2, u"token"_s);
        QTRY_COMPARE(clicked.size(), 1);
        QCOMPARE(clicked[0], (QVariantList{u"b"_s, u"token"_s}));
        show(u"a"_s, 4);
        QCOMPARE(server.shown[3].replaced, 0u);
        notifier.withdraw();
        QTRY_COMPARE(server.closed, QList<uint>{4});
    }

    /// The server has not said the number of the first one yet.
    void shownInQuickSuccession() {
        test::NotificationServer server;
        QVERIFY(server.start(m_bus.connection(u"desktop"_s)));
        Notifier notifier(m_bus.connection(u"program"_s));
        notifier.show({u"x"_s, u"KIV"_s, u"0"_s});
        QTRY_COMPARE(server.shown.size(), 1); // from now on its abilities are known
        QTest::qWait(20);
        notifier.withdraw();
        QTRY_COMPARE(server.closed, QList<uint>{1});

        for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
            notifier.show({u"a"_s, u"KIV"_s, text});
        QTRY_COMPARE(server.shown.size(), 3);
        QCOMPARE(server.shown[2].text, u"3"_s);
        QCOMPARE(server.shown[2].replaced, 2u);
        QTest::qWait(20);
        notifier.show({u"b"_s, u"KIV"_s, u"4"_s});
        notifier.withdraw();
        QTRY_COMPARE(server.closed.size(), 3);
        QVERIFY(server.closed.contains(server.shown.size()));
    }

    void nothingWithoutAServer_data() {
        QTest::addColumn<bool>("bus");
        QTest::newRow("no bus") << false;
        QTest::newRow("no server") << true;
    }
    void nothingWithoutAServer() {
        QFETCH(bool, bus);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        Notifier notifier(bus ? m_bus.connection(u"program"_s) : test::PrivateBus::noConnection());
        QElapsedTimer time;
        time.start();
        notifier.show({u"a"_s, u"KIV"_s, u"5"_s});
        notifier.withdraw();
        QVERIFY(time.elapsed() < 5000);
        if (!bus)
            return;
        // One that comes later is used from then on.
        QTest::qWait(100);
        test::NotificationServer server;
        QVERIFY(server.start(m_bus.connection(u"desktop"_s)));
        notifier.show({u"a"_s, u"KIV"_s, u"6"_s});
        QTRY_COMPARE(server.shown.size(), 1);
    }

private:
    test::PrivateBus m_bus;
};

} // namespace kiv::desktop

QTEST_GUILESS_MAIN(kiv::desktop::NotifierTest)
#include "NotifierTest.moc"
