// The account pages and the create wizard in the real window, against the real server: what it
// keeps, what it refuses, and what its faults leave of what was entered.

#include "app/Application.h"
#include "driver/WindowDriver.h"
#include "sandbox/Client.h"

#include <QImage>
#include <QQuickWindow>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using driver::WindowDriver;

namespace {

const QString email = u"ada@example.org"_s;
const QString password = u"difference engine"_s;

/// Picks what the test says.
class OneFile : public store::FileChooser {
public:
    void choose(const QString &, const QStringList &, Chosen chosen) override { chosen({file}); }
    QUrl file;
};

/// A program whose window is used by mouse and keys, signed up on its own embedded server.
class Seat {
public:
    Seat() : program(options()), person(start()) {}

    bool signUp() {
        if (!person.waitFor([this] { return store().scope()->auth() == store::AuthPhase::Anon; }))
            return false;
        store().session()->openAuthSheet(store::AuthSheetMode::Signup);
        store().session()->submitAuth(email, password, true);
        if (!person.waitFor([this] {
                return store().chat()->msgs()->count() == 1 && !person.find(u"emailField"_s);
            }))
            return false;
        server = std::make_unique<test::Client>(program.store().net().baseUrl().port());
        server->keepSession(server->post(u"/api/v2/auth/login"_s,
                                         {{u"email"_s, email}, {u"password"_s, password}}));
        return true;
    }
    store::AppStore &store() { return program.store(); }
    /// How the server fails from now on.
    void faults(const QJsonArray &faults) {
        QCOMPARE(server->post(u"/_control/faults"_s, {{u"faults"_s, faults}}).status, 200);
    }
    /// What the server keeps, asked from elsewhere.
    QJsonValue kept(const QString &key) {
        return server->get(u"/api/v2/user/profile"_s).json().value(key);
    }
    QString text(const QString &item) {
        QQuickItem *found = person.find(item);
        return found ? found->property("text").toString() : QString();
    }
    /// Types in place of what the field holds, and leaves it.
    void enter(const QString &field, const QString &words) {
        QVERIFY2(person.click(field), qPrintable(field));
        person.press(Qt::Key_A, Qt::ControlModifier);
        person.type(words);
        person.press(Qt::Key_Tab);
    }

private:
    app::Options options() {
        app::Options options;
        options.places = app::Places::below(profile.path());
        options.sandboxArguments = {u"--control"_s, u"--answer-speed"_s, u"0.1"_s};
        return options;
    }
    QQuickWindow *start() {
        program.start();
        return program.window();
    }

public:
    QTemporaryDir profile;
    app::Application program;
    WindowDriver person;
    std::unique_ptr<test::Client> server; ///< the person's second session
};

} // namespace

class AccountTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void faultsLeaveWhatWasEntered_data() {
        QTest::addColumn<QJsonArray>("faults");
        const QString where = u",path=/user/profile,method=PATCH,times=1"_s;
        QTest::newRow("refused") << QJsonArray{u"status=503"_s + where};
        QTest::newRow("a page instead of JSON") << QJsonArray{u"html=502"_s + where};
        QTest::newRow("connection lost") << QJsonArray{u"close"_s + where};
    }

    void faultsLeaveWhatWasEntered() {
        QFETCH(QJsonArray, faults);
        Seat seat;
        QVERIFY(seat.signUp());
        seat.person.press(Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(seat.person.waitForItem(u"handle"_s));
        seat.enter(u"handle"_s, u"first"_s);
        QTRY_COMPARE_WITH_TIMEOUT(seat.kept(u"handle"_s), u"first"_s, 5000);
        seat.faults(faults);
        seat.enter(u"handle"_s, u"second"_s);
        QVERIFY(seat.person.waitForItem(u"retrySave"_s));
        QVERIFY(!seat.text(u"errorLine"_s).isEmpty());
        QCOMPARE(seat.text(u"handle"_s), u"second"_s);
        QCOMPARE(seat.kept(u"handle"_s), u"first"_s);
        QVERIFY(seat.person.click(u"retrySave"_s));
        QTRY_COMPARE_WITH_TIMEOUT(seat.kept(u"handle"_s), u"second"_s, 5000);
        QTRY_VERIFY(!seat.person.find(u"errorLine"_s));
    }

    void refusals() {
        Seat seat;
        QVERIFY(seat.signUp());
        test::Client other(seat.server->port());
        other.signUp(u"grace@example.org"_s);
        QCOMPARE(other.patch(u"/api/v2/user/profile"_s, {{u"handle"_s, u"grace"_s}}).status, 200);

        seat.person.press(Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(seat.person.waitForItem(u"handle"_s));
        seat.enter(u"handle"_s, u"Grace"_s);
        QTRY_COMPARE(seat.text(u"errorLine"_s), u"This handle is taken."_s);
        QCOMPARE(seat.text(u"handle"_s), u"Grace"_s);
        QVERIFY(seat.person.click(u"handle"_s));
        seat.person.press(Qt::Key_Escape);
        QCOMPARE(seat.text(u"handle"_s), QString());

        QVERIFY(seat.person.click(u"securityTab"_s));
        seat.enter(u"currentPassword"_s, u"a guess or two"_s);
        seat.enter(u"newPassword"_s, u"analytical engine"_s);
        seat.enter(u"repeatedPassword"_s, u"analytical engine"_s);
        QVERIFY(seat.person.click(u"changePassword"_s));
        QTRY_COMPARE(seat.text(u"passwordError"_s), u"The current password is wrong."_s);
        seat.enter(u"currentPassword"_s, password);
        QVERIFY(seat.person.click(u"changePassword"_s));
        QTRY_COMPARE(seat.text(u"passwordNote"_s),
                     u"Password changed. Other sessions were signed out."_s);
        QCOMPARE(seat.server->get(u"/api/v2/user/profile"_s).status, 401);
    }

    void picture() {
        Seat seat;
        OneFile chooser;
        QVERIFY(seat.signUp());
        seat.store().account()->setChooser(&chooser);
        seat.person.press(Qt::Key_Comma, Qt::ControlModifier);
        // Sixteen megabytes: what is sent is cut and scaled first.
        chooser.file = QUrl::fromLocalFile(noise(seat.profile.filePath(u"huge.png"_s), 2300));
        seat.faults({u"close,path=/user/avatar,times=1"_s});
        QVERIFY(seat.person.click(u"changePicture"_s));
        QVERIFY(seat.person.click(u"usePicture"_s));
        QVERIFY(seat.person.click(u"retryPicture"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!seat.kept(u"avatar_url"_s).toString().isEmpty(), 15000);
        QTRY_VERIFY(!seat.person.find(u"errorLine"_s));
        // It is the picture beside the name, cut round.
        const QQuickItem *avatar = seat.person.waitForItem(u"accountPicture"_s);
        const QPoint corner = avatar->mapToScene(QPointF()).toPoint();
        const auto isNoise = [&] {
            const QImage shown = seat.person.picture();
            QSet<QRgb> colours;
            for (int x = 20; x < 44; ++x)
                colours.insert(shown.pixel(corner + QPoint(x, 32)));
            return colours.size() > 12 &&
                   shown.pixel(corner + QPoint(1, 1)) == shown.pixel(corner + QPoint(63, 1));
        };
        QVERIFY(seat.person.waitFor(isNoise));
    }

    /// A failed creation keeps everything; what is created is in the rail and answers.
    void wizard() {
        Seat seat;
        QVERIFY(seat.signUp());
        QVERIFY(seat.person.click(u"railCreate:agent"_s));
        QVERIFY(seat.person.click(u"template:researcher"_s));
        QVERIFY(seat.person.click(u"wizardNext"_s));
        QVERIFY(seat.person.click(u"createName"_s));
        seat.person.press(Qt::Key_A, Qt::ControlModifier);
        seat.person.type(u"Heron"_s);
        for (int page = 0; page < 2; ++page)
            QVERIFY(seat.person.click(u"wizardNext"_s));
        seat.faults({u"status=500,path=/custom-agents,method=POST,times=1"_s});
        QVERIFY(seat.person.click(u"wizardNext"_s));
        QVERIFY(seat.person.waitForItem(u"createNews"_s));
        QCOMPARE(seat.store().create()->name(), u"Heron"_s);
        QVERIFY(seat.person.click(u"wizardNext"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!seat.store().create()->isOpen(), 15000);
        const QString agent = seat.store().scope()->agent();
        QVERIFY(!agent.isEmpty());
        QVERIFY(seat.person.waitForItem(u"railRow:"_s + agent));
        const QJsonArray agents =
            seat.server->get(u"/api/v2/custom-agents"_s).json().value(u"agents"_s).toArray();
        const auto heron = std::find_if(agents.begin(), agents.end(), [&](const QJsonValue &each) {
            return each[u"id"_s] == agent;
        });
        QVERIFY2(heron != agents.end(), qPrintable(agent));
        QCOMPARE(heron->toObject().value(u"name"_s), u"Heron"_s);

        QTRY_COMPARE_WITH_TIMEOUT(seat.store().chat()->msgs()->count(), 1, 15000); // its greeting
        seat.person.press(Qt::Key_K, Qt::ControlModifier);
        seat.person.type(u"What can you do?"_s);
        seat.person.press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(seat.store().chat()->msgs()->count(), 3, 15000);
        QTRY_VERIFY_WITH_TIMEOUT(!seat.store().canvas()->awaitingAnswer(), 15000);
        QVERIFY(!seat.store().chat()->msgs()->messages().last().text.isEmpty());
    }

    /// Closing the window waits for a save under way, and asks about a document.
    void closingTheWindow() {
        Seat seat;
        QVERIFY(seat.signUp());
        seat.person.press(Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(seat.person.click(u"memoryTab"_s));
        QVERIFY(seat.person.click(u"goals_md"_s));
        QVERIFY(seat.person.waitForItem(u"documentText"_s));
        QTRY_VERIFY(seat.person.find(u"documentText"_s)->hasActiveFocus());
        seat.person.type(u"Ship it."_s);
        QVERIFY(!seat.program.window()->close());
        QVERIFY(seat.person.click(u"stayHere"_s));
        QTRY_VERIFY(!seat.person.find(u"stayHere"_s));
        QVERIFY(seat.program.window()->isVisible());
        QVERIFY(seat.person.click(u"saveDocument"_s));
        QTRY_COMPARE_WITH_TIMEOUT(seat.kept(u"goals_md"_s), u"Ship it."_s, 5000);

        QVERIFY(seat.person.click(u"profileTab"_s));
        seat.faults({u"latency=500,path=/user/profile,method=PATCH,times=1"_s});
        QVERIFY(seat.person.click(u"handle"_s));
        seat.person.type(u"ada"_s);
        QVERIFY(!seat.program.window()->close());
        QTRY_VERIFY_WITH_TIMEOUT(!seat.program.window()->isVisible(), 5000);
        QCOMPARE(seat.kept(u"handle"_s), u"ada"_s);
    }

private:
    /// A square PNG that compression makes no smaller: three bytes a pixel.
    static QString noise(const QString &path, int side) {
        QImage picture(side, side, QImage::Format_RGB32);
        quint32 word = 1;
        for (int y = 0; y < picture.height(); ++y) {
            auto *line = reinterpret_cast<quint32 *>(picture.scanLine(y));
            for (int x = 0; x < picture.width(); ++x)
                line[x] = word = word * 1664525 + 1013904223;
        }
        return picture.save(path) ? path : QString();
    }
};

QTEST_MAIN(AccountTest)
#include "AccountTest.moc"
