// Panels: limits, what is saved of them and when.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::StoreFixture;

class LayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void savedWidths_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("saved");
        QTest::addColumn<double>("width");
        const QString rail = u"zandor.railW"_s;
        const QString dock = u"zandor.dockW"_s;
        QTest::newRow("rail") << rail << QVariant(400) << 400.0;
        QTest::newRow("rail too wide") << rail << QVariant(1000) << 640.0;
        QTest::newRow("rail too narrow") << rail << QVariant(100) << 280.0;
        QTest::newRow("rail is no number") << rail << QVariant(u"wide"_s) << 360.0;
        QTest::newRow("rail is infinite") << rail << QVariant(u"inf"_s) << 360.0;
        QTest::newRow("rail is nan") << rail << QVariant(u"nan"_s) << 360.0;
        QTest::newRow("dock too wide") << dock << QVariant(2000) << 1100.0;
        QTest::newRow("dock too narrow") << dock << QVariant(1) << 480.0;
        QTest::newRow("dock missing") << u"other"_s << QVariant(1) << 760.0;
    }
    void savedWidths() {
        QFETCH(QString, key);
        QFETCH(QVariant, saved);
        StoreFixture f;
        f.settings->setValue(key, saved);
        f.restart();
        const LayoutRoom *layout = f.store->layout();
        QTEST(key == u"zandor.railW"_s ? layout->railW() : layout->dockW(), "width");
    }

    void widthsAreSavedOnceTheyRest() {
        StoreFixture f;
        LayoutRoom *layout = f.store->layout();
        layout->dragRail(300);
        f.clock.advance(150ms);
        layout->dragRail(310);
        f.clock.advance(199ms);
        QVERIFY(!f.settings->contains(u"zandor.railW"_s));
        f.clock.advance(1ms);
        QCOMPARE(f.settings->value(u"zandor.railW"_s).toDouble(), 310.0);
        // What rests no more before the end is saved at the end.
        layout->dragRail(320);
        f.restart();
        layout = f.store->layout();
        QCOMPARE(layout->railW(), 320.0);
        layout->dragRail(9999);
        QCOMPARE(layout->railW(), 640.0);
        layout->dragDock(qQNaN());
        QCOMPARE(layout->dockW(), 760.0);
    }

    void togglesAreSavedAtOnce() {
        StoreFixture f;
        f.store->layout()->toggleDock();
        QVERIFY(f.settings->value(u"zandor.dockOpen"_s).toBool());
        f.store->layout()->toggleRail();
        QVERIFY(f.settings->value(u"zandor.railCollapsed"_s).toBool());
        QVERIFY(!f.settings->value(u"zandor.dockOpen"_s).toBool());
        f.restart();
        QVERIFY(f.store->layout()->railCollapsed());
        f.store->layout()->dockToRail();
        QVERIFY(!f.store->layout()->railCollapsed());
    }

    void narrowWindow_data() {
        QTest::addColumn<double>("window");
        QTest::addColumn<bool>("dockOpen");
        QTest::addColumn<bool>("railShown");
        QTest::addColumn<double>("rail");
        QTest::addColumn<double>("dock");
        QTest::newRow("wide") << 1440.0 << false << true << 600.0 << 480.0;
        QTest::newRow("rail gives way") << 900.0 << false << true << 540.0 << 480.0;
        QTest::newRow("rail at its least") << 640.0 << false << true << 280.0 << 480.0;
        QTest::newRow("rail folds") << 639.0 << false << false << 280.0 << 480.0;
        QTest::newRow("all fit") << 1720.0 << true << true << 600.0 << 760.0;
        QTest::newRow("dock gives way first") << 1600.0 << true << true << 600.0 << 640.0;
        QTest::newRow("dock at its least") << 1440.0 << true << true << 600.0 << 480.0;
        QTest::newRow("then the rail") << 1200.0 << true << true << 360.0 << 480.0;
        QTest::newRow("both at their least") << 1120.0 << true << true << 280.0 << 480.0;
        QTest::newRow("rail folds beside the dock") << 1119.0 << true << false << 280.0 << 703.0;
        QTest::newRow("least window") << 1024.0 << true << false << 280.0 << 608.0;
    }
    void narrowWindow() {
        QFETCH(double, window);
        QFETCH(bool, dockOpen);
        StoreFixture f;
        LayoutRoom *layout = f.store->layout();
        layout->dragRail(600);
        if (dockOpen)
            layout->toggleDock();
        f.clock.advance(1s);
        const QStringList saved = f.settings->allKeys();
        layout->setWindowWidth(window);
        QTEST(layout->railShown(), "railShown");
        QTEST(layout->shownRailW(), "rail");
        QTEST(layout->shownDockW(), "dock");
        // What the window does by itself is not what the person set.
        f.clock.advance(1s);
        QCOMPARE(layout->railW(), 600.0);
        QCOMPARE(layout->dockW(), 760.0);
        QVERIFY(!layout->railCollapsed());
        QCOMPARE(f.settings->allKeys(), saved);
    }

    /// The rail that folded beside the dock is not one that the person has collapsed.
    void foldedRailComesBack() {
        StoreFixture f;
        LayoutRoom *layout = f.store->layout();
        layout->setWindowWidth(1024);
        layout->toggleDock();
        QVERIFY(!layout->railShown());
        layout->toggleRail();
        QVERIFY(layout->railShown() && !layout->railCollapsed() && !layout->dockOpen());
        layout->toggleRail();
        QVERIFY(!layout->railShown() && layout->railCollapsed());
    }

    void navigatorShareIsKept() {
        StoreFixture f;
        f.store->layout()->dragNavigator(0.3);
        f.clock.advance(200ms);
        f.restart();
        LayoutRoom *layout = f.store->layout();
        QCOMPARE(layout->navigatorShare(), 0.3);
        layout->dragNavigator(2);
        QCOMPARE(layout->navigatorShare(), LayoutRoom::navigatorMaxShare);
        layout->dragNavigator(qInf());
        QCOMPARE(layout->navigatorShare(), LayoutRoom::navigatorMaxShare);
        f.settings->setValue(u"zandor.navigatorShare"_s, u"much"_s);
        f.restart();
        QCOMPARE(f.store->layout()->navigatorShare(), LayoutRoom::navigatorMaxShare);
    }

    void onePopoverAtATime() {
        StoreFixture f;
        LayoutRoom *layout = f.store->layout();
        layout->toggleHist();
        layout->toggleTopScope();
        QVERIFY(layout->topScopeOpen() && !layout->histOpen());
        layout->toggleTopScope();
        QVERIFY(!layout->topScopeOpen());
        layout->toggleProfile();
        f.store->scope()->pickGlobal();
        layout->closePopovers();
        QVERIFY(!layout->profileOpen());
    }
};

QTEST_GUILESS_MAIN(LayoutTest)
#include "LayoutTest.moc"
