#include "app/Places.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kiv::app {

/// Where things are kept.
class PlacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            qunsetenv(name);
    }

    void eachKindHasItsFolder() {
        qputenv("XDG_CONFIG_HOME", "/x/config");
        qputenv("XDG_DATA_HOME", "/x/data");
        qputenv("XDG_STATE_HOME", "/x/state");
        const Places places = Places::standard();
        QCOMPARE(places.settingsFile, u"/x/config/kiv/kiv.conf"_s);
        QCOMPARE(places.draftsFile, u"/x/data/kiv/drafts"_s);
        QCOMPARE(places.workspaceDir, u"/x/data/kiv/workspace"_s);
        QCOMPARE(places.stateFile, u"/x/state/kiv/window.conf"_s);
        QCOMPARE(places.logFile, u"/x/state/kiv/kiv.log"_s);
        QCOMPARE(places.profile, QString());
        // A folder that is not named whole does not count.
        qputenv("XDG_STATE_HOME", "state");
        QCOMPARE(Places::standard().logFile, QDir::homePath() + u"/.local/state/kiv/kiv.log"_s);
    }
};

} // namespace kiv::app

QTEST_GUILESS_MAIN(kiv::app::PlacesTest)
#include "PlacesTest.moc"
