// The road of one question: the real window, off screen, against the real server process.

#include "app/Application.h"
#include "driver/WindowDriver.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;

namespace {

app::Options optionsFor(const QTemporaryDir &profile) {
    app::Options options;
    options.places = app::Places::below(profile.path());
    return options;
}

/// Follows how the newest answer comes to its text.
struct GrowthWatch {
    explicit GrowthWatch(store::MessageModel *messages) : m_messages(messages) {
        QObject::connect(messages, &QAbstractItemModel::rowsInserted, &m_context,
                         [this](const QModelIndex &, int first, int) { look(first); });
        QObject::connect(messages, &QAbstractItemModel::dataChanged, &m_context,
                         [this](const QModelIndex &from, const QModelIndex &to) {
                             widest = std::max(widest, to.row() - from.row() + 1);
                             look(from.row());
                         });
        QObject::connect(messages, &QAbstractItemModel::modelReset, &m_context,
                         [this] { ++resets; });
        QObject::connect(messages, &QAbstractItemModel::rowsRemoved, &m_context,
                         [this] { ++removals; });
    }

    int row = -1;
    int growths = 0;
    int widest = 0;
    int resets = 0;
    int removals = 0;
    bool appendOnly = true;

private:
    void look(int changed) {
        const store::Msg &message = m_messages->messages().at(changed);
        if (message.who != store::Who::Agent || !message.serverID)
            return;
        if (row >= 0 && row != changed)
            return;
        row = changed;
        appendOnly = appendOnly && message.text.startsWith(m_text);
        if (message.text.size() > m_text.size())
            ++growths;
        m_text = message.text;
    }

    store::MessageModel *m_messages;
    QObject m_context;
    QString m_text;
};

bool processHolds(const QByteArray &library) {
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

} // namespace

class RoadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneQuestion() {
        QTemporaryDir profile;
        {
            app::Application program(optionsFor(profile));
            program.start();
            QVERIFY(program.window());
            store::AppStore &store = program.store();
            driver::WindowDriver person(program.window());
            QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::Anon, 15000);
            QVERIFY(!processHolds("WebEngine"));

            signUp(person, store);
            askForReport(person, store);
            sendFile(person, store, profile.filePath(u"minutes.txt"_s));
            enterProject(person, store);
            askProject(person, store);
        }
        {
            app::Application program(optionsFor(profile));
            program.start();
            store::AppStore &store = program.store();
            QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::SignedIn, 15000);
            QTRY_COMPARE_WITH_TIMEOUT(store.scope()->project(), m_project, 15000);
            QCOMPARE(store.scope()->userEmail(), u"ada@example.org"_s);
            // The chat of before is there, and its newest answer is on the canvas.
            QTRY_VERIFY_WITH_TIMEOUT(store.chat()->msgs()->count() == 2, 15000);
            QTRY_COMPARE(store.canvas()->phase(), store::Phase::Done);
            QCOMPARE(store.canvas()->art(), u"compare"_s);
            QVERIFY(!store.canvas()->animated());
            QCOMPARE(store.canvas()->history()->count(), 0);
        }
    }

private:
    void signUp(const driver::WindowDriver &person, store::AppStore &store) {
        QVERIFY(person.click(u"signInButton"_s));
        QVERIFY(person.click(u"switchAuthMode"_s));
        QVERIFY(person.click(u"emailField"_s));
        person.type(u"ada@example.org"_s);
        person.press(Qt::Key_Tab);
        person.type(u"short"_s);
        person.press(Qt::Key_Return);
        QCOMPARE(store.session()->authError(),
                 u"Enter a valid email and a password of at least 8 characters."_s);
        person.type(u" no more"_s);
        person.press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::SignedIn, 15000);
        QTRY_COMPARE(store.session()->authSheet(), store::AuthSheetMode::Closed);
        QTRY_VERIFY_WITH_TIMEOUT(store.scope()->chatTarget() && store.chat()->msgs()->count() == 1,
                                 15000);
        QCOMPARE(store.chat()->msgs()->messages().first().text,
                 u"KIV here. I see all projects and every agent under them."_s);
        QVERIFY(!store.scope()->projects().isEmpty());
    }

    void askForReport(const driver::WindowDriver &person, store::AppStore &store) {
        GrowthWatch growth(store.chat()->msgs());
        QVERIFY(person.click(u"askField"_s));
        person.type(u"Weekly report"_s);
        QCOMPARE(store.chat()->draft(), u"Weekly report"_s);
        person.press(Qt::Key_Return);
        QCOMPARE(store.canvas()->phase(), store::Phase::Thinking);
        QVERIFY(store.chat()->draft().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(store.canvas()->phase(), store::Phase::Done, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!store.canvas()->awaitingAnswer(), 20000);

        QCOMPARE(store.canvas()->art(), u"report"_s);
        QVERIFY(store.canvas()->artScene().kpiCards.size() >= 2);
        QCOMPARE(store.canvas()->history()->count(), 1);
        // Greeting, question, answer: the question confirmed in place, the answer one growing row.
        QCOMPARE(store.chat()->msgs()->count(), 3);
        QVERIFY(store.chat()->msgs()->messages().at(1).serverID);
        QCOMPARE(growth.row, 2);
        QVERIFY2(growth.growths >= 10, qPrintable(QString::number(growth.growths)));
        QVERIFY(growth.appendOnly);
        QCOMPARE(growth.widest, 1);
        QCOMPARE(growth.resets + growth.removals, 0);
        // The block that became the scene is not shown as text.
        QVERIFY(!store.chat()->msgs()->messages().at(2).shown.contains(u"```"_s));
    }

    void sendFile(const driver::WindowDriver &person, store::AppStore &store, const QString &path) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Nothing was decided.") > 0);
        file.close();
        store.attachments()->uploadChatFiles({QUrl::fromLocalFile(path)});
        QTRY_COMPARE_WITH_TIMEOUT(store.attachments()->chatFiles()->attached(), 1, 15000);
        QVERIFY(person.click(u"sendButton"_s));
        QTRY_VERIFY_WITH_TIMEOUT(
            store.chat()->msgs()->messages().last().text.contains(u"minutes.txt"_s), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!store.canvas()->awaitingAnswer(), 20000);
        const store::Msg &sent = store.chat()->msgs()->messages().at(3);
        QVERIFY(sent.serverID);
        QCOMPARE(sent.files.size(), 1);
        QVERIFY(person.waitForItem(u"file:minutes.txt"_s));
        QNetworkAccessManager network;
        const auto reply = std::unique_ptr<QNetworkReply>(
            network.get(QNetworkRequest(QUrl(sent.files.first().url))));
        QSignalSpy finished(reply.get(), &QNetworkReply::finished);
        QVERIFY(finished.wait(15000));
        QCOMPARE(reply->readAll(), "Nothing was decided."_ba);
    }

    void enterProject(const driver::WindowDriver &person, store::AppStore &store) {
        for (const store::Project &project : store.scope()->projects()) {
            if (project.name == u"Glasshouse"_s)
                m_project = project.id;
        }
        QVERIFY(person.click(u"railRow:"_s + m_project));
        QTRY_COMPARE(store.scope()->project(), m_project);
        QVERIFY(store.canvas()->state() != store::CanvasState::Scene);
        QTRY_COMPARE_WITH_TIMEOUT(store.chat()->msgs()->count(), 1, 15000);
    }

    void askProject(const driver::WindowDriver &person, store::AppStore &store) {
        QVERIFY(person.click(u"askField"_s));
        person.type(u"Compare the hosting options"_s);
        person.press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(store.canvas()->art(), u"compare"_s, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!store.canvas()->awaitingAnswer(), 20000);
        QVERIFY(store.canvas()->artScene().cpRows.size() >= 2);
    }

    QString m_project;
};

QTEST_MAIN(RoadTest)
#include "RoadTest.moc"
