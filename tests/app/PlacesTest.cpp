#include "app/Places.h"
#include "app/WindowFrame.h"

#include "base/SettingsFile.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kiv::app {

namespace {

void put(const QString &path, const QByteArray &content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray earlierSettings = "[General]\n"
                                   "NSWindow%20Frame%20ZandorMain=130 90 1200 760 0 0 1920 1080\n"
                                   "zandor.windowMaximized=true\n"
                                   "zandor.railW=420\n";

} // namespace

/// Where things are kept, and that what was kept elsewhere is found there.
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

    void anEarlierProfileIsTakenOver() {
        const QTemporaryDir folder;
        const auto in = [&](const QString &name) { return folder.filePath(name); };
        put(in(u"kiv.conf"_s), earlierSettings);
        put(in(u"cookies"_s), "[1]");
        put(in(u"drafts"_s), "[2]");
        put(in(u"workspace/kiv.db"_s), "3");
        put(in(u"workspace/files/a"_s), "4");
        const Places places = Places::below(folder.path());
        // Twice: the second time there is nothing left to do.
        for (int start = 0; start < 2; ++start) {
            adopt(places);
            QCOMPARE(contentOf(places.cookieFile), "[1]"_ba);
            QCOMPARE(contentOf(places.draftsFile), "[2]"_ba);
            QCOMPARE(contentOf(places.workspaceDir + u"/kiv.db"_s), "3"_ba);
            QCOMPARE(contentOf(places.workspaceDir + u"/files/a"_s), "4"_ba);
            checkFrame(places);
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{u"config"_s, u"data"_s, u"state"_s}));
        constexpr auto others = QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(in(u"data"_s)) & others, QFile::Permissions());
    }

    void theUsersFrameIsTakenOver() {
        const QTemporaryDir folder;
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            qputenv(name, folder.filePath(QString::fromLatin1(name)).toUtf8());
        const Places places = Places::standard();
        put(places.settingsFile, earlierSettings);
        put(places.cookieFile, "[1]");
        adopt(places);
        checkFrame(places);
        QCOMPARE(contentOf(places.cookieFile), "[1]"_ba);
    }

    void whatIsThereIsNotReplaced() {
        const QTemporaryDir folder;
        const Places places = Places::below(folder.path());
        put(folder.filePath(u"drafts"_s), "old");
        put(places.draftsFile, "new");
        put(folder.filePath(u"kiv.conf"_s), earlierSettings);
        put(places.stateFile, "[General]\nzandor.windowMaximized=false\n");
        adopt(places);
        QCOMPARE(contentOf(places.draftsFile), "new"_ba);
        QCOMPARE(contentOf(folder.filePath(u"drafts"_s)), "old"_ba);
        QSettings state(places.stateFile, QSettings::IniFormat);
        QCOMPARE(state.value(u"zandor.windowMaximized"_s).toBool(), false);
    }

    void nothingIsMadeWhereThereWasNothing() {
        const QTemporaryDir folder;
        adopt(Places::below(folder.path()));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

private:
    /// As a start does.
    static void adopt(const Places &places) {
        places.adoptEarlier();
        SettingsFile settings(places.settingsFile);
        SettingsFile state(places.stateFile);
        WindowFrame::moveFrame(settings, state);
    }
    static void checkFrame(const Places &places) {
        test::ManualClock clock;
        QSettings state(places.stateFile, QSettings::IniFormat);
        const WindowFrame frame(state, clock);
        QVERIFY(frame.restored().has_value());
        QVERIFY(frame.wasMaximized());
        QSettings settings(places.settingsFile, QSettings::IniFormat);
        QCOMPARE(settings.allKeys(), QStringList{u"zandor.railW"_s});
        QCOMPARE(settings.value(u"zandor.railW"_s).toInt(), 420);
    }
};

} // namespace kiv::app

QTEST_MAIN(kiv::app::PlacesTest)
#include "PlacesTest.moc"
