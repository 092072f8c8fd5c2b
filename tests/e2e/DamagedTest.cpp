// Whole starts of the program where its files are damaged, its disk is full or nothing can be
// written: what comes up, what is said, and what is still there afterwards.

#include "app/Application.h"
#include "driver/WindowDriver.h"
#include "support/Damage.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;

namespace {

constexpr auto writable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr auto readOnly = QFile::ReadOwner | QFile::ExeOwner;

app::Options optionsFor(const QString &profile) {
    app::Options options;
    options.places = app::Places::below(profile);
    return options;
}

/// One run of the program on a profile.
struct Run {
    explicit Run(const QString &profile) : program(optionsFor(profile)) { program.start(); }

    store::AppStore &store() { return program.store(); }
    driver::WindowDriver person() { return driver::WindowDriver(program.window()); }
    /// What the window says about its files or its server; empty when it says nothing.
    QString said(const QString &banner) {
        const QQuickItem *item = person().find(banner);
        return item ? item->property("text").toString() : QString();
    }
    bool isThere() {
        return person().waitFor([this] { return store().scope()->auth() != Phase::Unknown; });
    }
    bool enterSample() {
        if (!person().waitFor([this] { return store().session()->sampleOffered(); }))
            return false;
        store().session()->trySample();
        return isEntered();
    }
    bool isEntered() {
        return person().waitFor([this] {
            return store().scope()->auth() == Phase::SignedIn && store().scope()->chatTarget() &&
                   !store().session()->isEntering() && !store().chat()->historyLoading();
        });
    }

    using Phase = store::AuthPhase;
    app::Application program;
};

} // namespace

class DamagedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        Run run(m_used.path());
        QVERIFY(run.enterSample());
        run.store().chat()->setDraft(u"half a thought"_s);
        run.store().layout()->dragRail(420);
        run.store().appearance()->chooseTheme(store::Theme::Dark);
    }

    void everyFile_data() {
        QTest::addColumn<int>("damage");
        for (int i = 0; i < test::damages().size(); ++i)
            QTest::newRow(test::damages().at(i).name) << i;
    }
    /// All files at once: the window comes up and says which, each is kept beside its successor,
    /// and the start after it has nothing to say.
    void everyFile() {
        QFETCH(int, damage);
        const QTemporaryDir profile;
        QCOMPARE(QProcess::execute(u"cp"_s, {u"-a"_s, m_used.path() + u"/."_s, profile.path()}), 0);
        const app::Places places = app::Places::below(profile.path());
        const QString database = places.workspaceDir + u"/workspace.sqlite"_s;
        const QByteArray name = test::damages().at(damage).name;
        QStringList files{places.settingsFile, places.stateFile, places.cookieFile,
                          places.draftsFile, places.logFile};
        if (name != "not to be read") // which is told in another way
            files.append(database);
        for (const QString &file : files) {
            QVERIFY2(QFileInfo::exists(file), qPrintable(file));
            test::damages().at(damage).strike(file);
        }
        {
            Run run(profile.path());
            QVERIFY(run.isThere());
            QCOMPARE(run.store().scope()->auth(), store::AuthPhase::Anon);
            QTRY_VERIFY(!run.said(u"damageBanner"_s).isEmpty());
            QStringList words{u"what was being typed"_s, u"the session"_s};
            if (name != "emptied" && name != "cut short") // which settings may be
                words.append(u"the settings"_s);
            for (const QString &word : words)
                QVERIFY2(run.said(u"damageBanner"_s).contains(word),
                         qPrintable(run.said(u"damageBanner"_s)));
            QCOMPARE(run.said(u"damageBanner"_s).contains(u"the workspace"_s),
                     files.contains(database));
            for (const QString &file : {places.cookieFile, places.draftsFile})
                QVERIFY2(QFileInfo::exists(file + u".damaged"_s), qPrintable(file));
            QVERIFY(run.enterSample());
            run.store().chat()->setDraft(u"another thought"_s);
            run.store().layout()->dragRail(400);
        }
        Run run(profile.path());
        QVERIFY(run.isEntered());
        QCOMPARE(run.store().chat()->draft(), u"another thought"_s);
        QCOMPARE(run.store().layout()->railW(), 400.0);
        QCOMPARE(run.said(u"damageBanner"_s), QString());
    }

    void absurdSettings_data() {
        QTest::addColumn<QByteArray>("value");
        for (const char *value :
             {"-1", "nan", "inf", "-1e309", "1000000000", "2147483647", "-2147483648",
              "99999999999999999999", "0", "\xff\xfe\x80", "a, b, c", "@Variant(\\0\\0\\0\\xff)",
              "@ByteArray(\\0)", "@Invalid()", "@Rect(0 0 -1 x)", "\"", "true"})
            QTest::newRow(value) << QByteArray(value);
    }
    /// Whatever a setting says, the window is one that can be used.
    void absurdSettings() {
        QFETCH(QByteArray, value);
        const QTemporaryDir profile;
        const app::Places places = app::Places::below(profile.path());
        QByteArray settings = "[General]\n";
        for (const char *key : {"railW", "dockW", "navigatorShare", "railCollapsed", "dockOpen",
                                "theme", "language", "textSize", "microphone", "project", "agent"})
            settings += "zandor." + QByteArray(key) + '=' + value + '\n';
        test::putContent(places.settingsFile, settings);
        test::putContent(places.stateFile, "[General]\nNSWindow%20Frame%20ZandorMain=" + value +
                                               ' ' + value + ' ' + value + ' ' + value +
                                               "\nzandor.windowMaximized=" + value + '\n');
        Run run(profile.path());
        const QQuickWindow *window = run.program.window();
        QVERIFY(window && window->isVisible());
        const store::LayoutRoom *layout = run.store().layout();
        QVERIFY(layout->railW() >= store::LayoutRoom::railMinW &&
                layout->railW() <= store::LayoutRoom::railMaxW);
        QVERIFY(layout->dockW() >= store::LayoutRoom::dockMinW &&
                layout->dockW() <= store::LayoutRoom::dockMaxW);
        const store::AppearanceRoom *look = run.store().appearance();
        QVERIFY(look->textScale() >= 0.8 && look->textScale() <= 1.5);
        // Beside its frame, on a screen that may be smaller than what is meant.
        const QSize room = window->screen()->availableSize() - QSize(16, 16);
        QVERIFY(window->width() >= std::min(800, room.width()) && window->width() <= 10'000);
        QVERIFY(window->height() >= std::min(600, room.height()) && window->height() <= 10'000);
    }

    /// The server cannot start: the window says why, and the start is tried again when asked.
    void serverThatCannotStart() {
        const QTemporaryDir profile;
        const QString folder = app::Places::below(profile.path()).workspaceDir;
        QVERIFY(QDir().mkpath(folder));
        QFile::setPermissions(folder, readOnly);
        Run run(profile.path());
        QVERIFY(run.isThere());
        QTRY_VERIFY(
            run.said(u"failureBanner"_s).contains(u"the data folder cannot be written to"_s));
        const auto logged = test::contentOf(app::Places::below(profile.path()).logFile);
        QVERIFY2(logged.contains("kiv-sandbox: the data folder cannot be written to"), logged);
        QVERIFY(run.person().click(u"bannerAction"_s));
        QTRY_VERIFY(!run.said(u"failureBanner"_s).isEmpty());

        QFile::setPermissions(folder, writable);
        QVERIFY(run.person().click(u"bannerAction"_s));
        QVERIFY(run.enterSample());
        QCOMPARE(run.said(u"failureBanner"_s), QString());
    }

    /// Nothing can be written anywhere: there is a window, it says so, and it can be left.
    void everythingReadOnly() {
        const QTemporaryDir profile;
        QFile::setPermissions(profile.path(), readOnly);
        {
            Run run(profile.path());
            QVERIFY(run.isThere());
            QTRY_VERIFY(!run.said(u"failureBanner"_s).isEmpty());
            run.store().appearance()->chooseTheme(store::Theme::Dark);
            QTRY_VERIFY(run.said(u"troubleBanner"_s).startsWith(u"Settings cannot be saved"_s));
            QVERIFY(run.store().appearance()->dark());
        }
        QFile::setPermissions(profile.path(), writable);
    }

    /// The person is in, and knows what comes of it.
    void sessionThatCannotBeSaved() {
        const QTemporaryDir profile;
        const app::Places places = app::Places::below(profile.path());
        const QString folder = QFileInfo(places.cookieFile).path();
        QVERIFY(QDir().mkpath(places.workspaceDir));
        QFile::setPermissions(folder, readOnly);
        {
            Run run(profile.path());
            QVERIFY(run.enterSample());
            QTRY_VERIFY(
                run.said(u"troubleBanner"_s).startsWith(u"You will have to sign in again"_s));
        }
        QFile::setPermissions(folder, writable);
    }

    /// What is typed and asked stays in the window, the person is told, and room helps.
    void fullDisk() {
        if (test::smallDisk().isEmpty())
            QSKIP("This system lets nobody make a disk of their own");
        const QString profile = test::smallDisk() + u"/profile"_s;
        QString typed = u"typed on a full disk "_s;
        {
            Run run(profile);
            QVERIFY(run.enterSample());
            test::fillDisk();
            run.store().chat()->send(u"What is new? "_s.repeated(500));
            QVERIFY(run.person().waitFor([&] {
                const auto &messages = run.store().chat()->msgs()->messages();
                return std::any_of(messages.begin(), messages.end(),
                                   [](const store::Msg &message) { return message.failed; });
            }));
            run.store().chat()->setDraft(typed.repeated(500));
            QTRY_VERIFY(run.said(u"troubleBanner"_s).startsWith(u"What you type is kept only"_s));
            QCOMPARE(run.store().chat()->draft(), typed.repeated(500));
            test::clearDisk();
            QVERIFY(run.person().click(u"bannerAction"_s));
            QTRY_COMPARE(run.said(u"troubleBanner"_s), QString());
        }
        Run run(profile);
        QVERIFY(run.isEntered());
        // With what could not be sent.
        QVERIFY(run.store().chat()->draft().contains(typed.repeated(500).trimmed()));
        QVERIFY(run.store().chat()->draft().contains(u"What is new? "_s.repeated(500).trimmed()));
    }

    void oddSurroundings_data() {
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QByteArray>("complaint"); // of the program, which goes on
        const QStringList noFolders{u"XDG_CONFIG_HOME="_s, u"XDG_DATA_HOME="_s,
                                    u"XDG_STATE_HOME="_s};
        QTest::newRow("a home that cannot be made")
            << noFolders + QStringList{u"HOME=/proc/none"_s} << "the data folder cannot be made"_ba;
        QTest::newRow("folders that cannot be made")
            << QStringList{u"XDG_CONFIG_HOME=/proc/none/c"_s, u"XDG_DATA_HOME=/proc/none/d"_s,
                           u"XDG_STATE_HOME=/proc/none/s"_s}
            << "the data folder cannot be made"_ba;
        QTest::newRow("no place for temporary files")
            << noFolders + QStringList{u"HOME=%1"_s, u"TMPDIR=/proc/none"_s} << ""_ba;
        QTest::newRow("folders that are not there yet")
            << noFolders + QStringList{u"HOME=%1/not/there/yet"_s} << ""_ba;
    }
    void oddSurroundings() {
        QFETCH(QStringList, environment);
        QFETCH(QByteArray, complaint);
        const QTemporaryDir home;
        QProcess program;
        start(program, environment.replaceInStrings(u"%1"_s, home.path()), {});
        QByteArray said;
        const auto isUp = [&] {
            said += program.readAllStandardError();
            return complaint.isEmpty() ? hasChild(program.processId()) : said.contains(complaint);
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isUp(), said, 15000);
        QTest::qWait(300);
        QCOMPARE(program.state(), QProcess::Running);
        program.terminate();
        QVERIFY(program.waitForFinished());
    }

    /// Two programs would write over each other's drafts and session: where no bus tells the second
    /// of the first, a file does. One that was left behind is none.
    void twoProgramsOnOneProfile() {
        const QTemporaryDir profile;
        const QStringList arguments{u"--profile"_s, profile.path()};
        QProcess first;
        start(first, {}, arguments);
        QTRY_VERIFY_WITH_TIMEOUT(hasChild(first.processId()), 15000);
        QProcess second;
        start(second, {}, arguments);
        QVERIFY(second.waitForFinished(15000));
        QCOMPARE(second.exitCode(), 3);
        QVERIFY(second.readAllStandardError().contains("already running"));
        first.kill();
        QVERIFY(first.waitForFinished());
        QProcess third;
        start(third, {}, arguments);
        QTRY_VERIFY_WITH_TIMEOUT(hasChild(third.processId()), 15000);
        third.terminate();
        QVERIFY(third.waitForFinished());
    }

private:
    static void start(QProcess &program, const QStringList &variables,
                      const QStringList &arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/proc/none"_s);
        for (const QString &variable : variables) {
            const QString value = variable.section(u'=', 1);
            if (value.isEmpty())
                environment.remove(variable.section(u'=', 0, 0));
            else
                environment.insert(variable.section(u'=', 0, 0), value);
        }
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(KIV_PROGRAM), arguments);
        QVERIFY(program.waitForStarted());
    }
    static bool hasChild(qint64 process) {
        const QString path = u"/proc/%1/task/%1/children"_s.arg(process);
        return !test::contentOf(path).trimmed().isEmpty();
    }

    const QTemporaryDir m_used;
};

int main(int argc, char **argv) {
    test::becomeOrdinaryUser(16 * 1024);
    if (!QFileInfo(QStringLiteral(KIV_PROGRAM)).isExecutable()) {
        qInfo("This user may not run %s: nothing is tested", KIV_PROGRAM);
        return 0;
    }
    QGuiApplication application(argc, argv);
    DamagedTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DamagedTest.moc"
