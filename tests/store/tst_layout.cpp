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
        QTest::addColumn<double>("rail");
        QTest::addColumn<bool>("shown");
        QTest::newRow("wide") << 1440.0 << 600.0 << true;
        QTest::newRow("rail gives way") << 900.0 << 540.0 << true;
        QTest::newRow("rail at its least") << 640.0 << 280.0 << true;
        QTest::newRow("rail folds by itself") << 639.0 << 280.0 << false;
    }
    void narrowWindow() {
        QFETCH(double, window);
        StoreFixture f;
        f.store->layout()->dragRail(600);
        f.store->layout()->setWindowWidth(window);
        QTEST(f.store->layout()->shownRailW(), "rail");
        QTEST(f.store->layout()->railShown(), "shown");
        // What the window does by itself is not what the person set.
        QCOMPARE(f.store->layout()->railW(), 600.0);
        QVERIFY(!f.store->layout()->railCollapsed());
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
#include "tst_layout.moc"
