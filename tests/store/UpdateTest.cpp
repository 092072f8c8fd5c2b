// The offer of a newer release.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace kiv;
using test::StoreFixture;

class UpdateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneLookAtATime() {
        const QString feed = u"GET downloads/kiv-appcast.xml"_s;
        StoreFixture f;
        store::UpdateRoom *update = f.store->update();
        update->setRunning(AppVersion::of(u"1.4"_s, {}));
        f.backend.answer(feed, "shortVersionString>1.5.0<");
        f.backend.hold(feed);
        update->checkForUpdates();
        update->checkForUpdates();
        QVERIFY(update->checkingUpdate());
        SOON_COMPARE(f.backend.count(feed), 1);
        f.backend.release(feed);
        SOON_VERIFY(!update->checkingUpdate());
        QCOMPARE(f.backend.count(feed), 1);
        QCOMPARE(update->version(), u"1.5.0"_s);
        QCOMPARE(update->page(), QUrl(f.backend.url().toString() + u"/downloads/"_s));

        update->dismiss();
        QVERIFY(!update->offered());
        // The next look offers it again, until the release is there no more.
        update->checkForUpdates();
        SOON_VERIFY(update->offered());
        f.backend.answer(feed, "{}", 500);
        update->checkForUpdates();
        SOON_VERIFY(!update->offered());
    }
};

QTEST_GUILESS_MAIN(UpdateTest)
#include "UpdateTest.moc"
