// The program used by keys alone, ended, and started again: what comes back as it was.

#include "app/Application.h"
#include "driver/WindowDriver.h"
#include "support/Processes.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace kiv;

namespace {

constexpr QRect frame(130, 90, 1200, 760);

app::Options optionsFor(const QTemporaryDir &profile) {
    app::Options options;
    options.places = app::Places::below(profile.path());
    return options;
}

} // namespace

class RestartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas() {
        QTemporaryDir profile;
        {
            app::Application program(optionsFor(profile));
            program.start();
            program.window()->setGeometry(frame);
            const driver::WindowDriver person(program.window());
            signUpByKeys(person, program.store());
            askByKeys(person, program.store());
            // What is set and typed at the very end is kept too.
            person.press(Qt::Key_K, Qt::ControlModifier);
            person.type(u"half a thought"_s);
            program.store().layout()->dragRail(420);
            program.store().layout()->dragNavigator(0.25);
            program.store().appearance()->chooseTheme(store::Theme::Dark);
        }
        {
            app::Application program(optionsFor(profile));
            program.start();
            store::AppStore &store = program.store();
            QCOMPARE(program.window()->geometry(), frame);
            QCOMPARE(store.layout()->railW(), 420.0);
            QCOMPARE(store.layout()->navigatorShare(), 0.25);
            QVERIFY(store.appearance()->dark());
            QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::SignedIn, 15000);
            QTRY_COMPARE_WITH_TIMEOUT(store.chat()->draft(), u"half a thought"_s, 15000);
            program.window()->showMaximized();
            QTRY_VERIFY(program.window()->width() > frame.width());
        }
        {
            app::Application program(optionsFor(profile));
            program.start();
            QTRY_COMPARE(program.window()->visibility(), QWindow::Maximized);
            // The frame of before is still there when it no longer fills the screen.
            program.window()->showNormal();
            QTRY_COMPARE(program.window()->visibility(), QWindow::Windowed);
        }
        app::Application program(optionsFor(profile));
        program.start();
        QCOMPARE(program.window()->visibility(), QWindow::Windowed);
    }

    /// The workspace server ends in the middle of an answer. It is started again, and what the
    /// person does meanwhile waits for it.
    void serverComesBack() {
        QTemporaryDir profile;
        app::Application program(optionsFor(profile));
        program.start();
        store::AppStore &store = program.store();
        const driver::WindowDriver person(program.window());
        signUpByKeys(person, store);
        person.press(Qt::Key_K, Qt::ControlModifier);
        person.type(u"Weekly report"_s);
        person.press(Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(!store.chat()->msgs()->growing().isNull(), 15000);
        for (const int round : {1, 2}) {
            killServer();
            QTRY_VERIFY(store.connection()->serverDown());
            const QString text = u"Hello, for the %1. time"_s.arg(round);
            person.type(text);
            person.press(Qt::Key_Return);
            person.type(u"half a thought"_s);
            const auto isSent = [&](const store::Msg &message) {
                return message.text == text && message.serverID;
            };
            QTRY_VERIFY_WITH_TIMEOUT(store.chat()->msgs()->find(isSent) >= 0, 15000);
            QVERIFY(!store.connection()->serverDown());
            QTRY_VERIFY_WITH_TIMEOUT(store.chat()->msgs()->messages().last().who ==
                                             store::Who::Agent &&
                                         store.chat()->msgs()->messages().last().serverID,
                                     15000);
            QCOMPARE(store.chat()->draft(), u"half a thought"_s);
            store.chat()->setDraft(QString());
        }
        QCOMPARE(store.scope()->auth(), store::AuthPhase::SignedIn);
    }

private:
    static void killServer() {
        for (const qint64 process : test::family(getpid())) {
            if (test::processFile(process, u"cmdline"_s).contains("kiv-sandbox"))
                ::kill(static_cast<pid_t>(process), SIGKILL);
        }
    }

    void signUpByKeys(const driver::WindowDriver &person, store::AppStore &store) {
        QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::Anon, 15000);
        person.press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(person.waitForItem(u"emailField"_s));
        person.type(u"ada@example.org"_s);
        person.press(Qt::Key_Tab);
        person.type(u"difference engine"_s);
        person.press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::SignedIn, 15000);
        QTRY_VERIFY_WITH_TIMEOUT(store.scope()->chatTarget() && store.chat()->msgs()->count() == 1,
                                 15000);
    }

    void askByKeys(const driver::WindowDriver &person, store::AppStore &store) {
        person.press(Qt::Key_K, Qt::ControlModifier);
        person.type(u"Weekly report"_s);
        person.press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(store.canvas()->state(), store::CanvasState::Scene, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!store.canvas()->awaitingAnswer(), 20000);
        QCOMPARE(store.canvas()->art(), u"report"_s);
        QCOMPARE(store.chat()->draft(), QString());
    }
};

/// On a screen that has room for the window beside its edges.
int main(int argc, char **argv) {
    const QTemporaryDir folder;
    QFile screens(folder.filePath(u"screens.json"_s));
    if (!screens.open(QIODevice::WriteOnly))
        return 1;
    screens.write(R"({"screens":[{"name":"one","x":0,"y":0,"width":1920,"height":1080,
                      "logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    QGuiApplication application(argc, argv);
    RestartTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RestartTest.moc"
