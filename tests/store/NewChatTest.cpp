// A new chat: what it takes off the screen stays off, and nothing on its way is lost.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::kivGreeting;
using test::kivPost;
using test::rowJson;
using test::StoreFixture;

class NewChatTest : public QObject {
    Q_OBJECT

    const QByteArray m_before =
        rowJson(3, u"user"_s, u"hello"_s) + "," + rowJson(4, u"assistant"_s, u"Good"_s);

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void staysWithoutWhatWasBefore() {
        StoreFixture f;
        f.history(kivChat, "[" + m_before + "]");
        QVERIFY(f.signIn());
        f.store->chat()->newChat();
        QCOMPARE(f.texts(), QStringList{kivGreeting});
        f.row(4, u"Good morning"_s);
        f.history(kivChat, "[" + m_before + "," + rowJson(5, u"user"_s, u"by phone"_s) + "]");
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.texts(), QStringList{u"by phone"_s});
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), (QStringList{u"hello"_s, u"Good"_s, u"by phone"_s}));
    }

    /// Neither is a row of before taken for the question, nor one for its answer.
    void asksAgain() {
        StoreFixture f;
        f.history(kivChat, "[" + m_before + "]");
        QVERIFY(f.signIn());
        f.store->chat()->newChat();
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.texts(), QStringList{u"hello"_s});
        QCOMPARE(f.deliveryOf(0), Delivery::Pending);
        f.clock.advance(2s);
        QVERIFY(f.store->canvas()->awaitingAnswer());
        f.backend.release(kivPost);
        SOON_COMPARE(f.deliveryOf(0), Delivery::Stored);
        f.row(8, u"Better"_s);
        SOON_COMPARE(f.texts(), (QStringList{u"hello"_s, u"Better"_s}));
        f.clock.advance(2s);
        QVERIFY(!f.store->canvas()->awaitingAnswer());
    }

    void failsOutOfSight() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"error":"The agent is ill."})", 500);
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.store->chat()->newChat();
        QCOMPARE(f.texts(), QStringList{kivGreeting});
        f.backend.release(kivPost);
        SOON_COMPARE(f.texts(), (QStringList{kivGreeting, u"hello"_s, u"The agent is ill."_s}));
        QCOMPARE(f.deliveryOf(1), Delivery::Failed);
    }

    /// The page that is on its way was there before, and what is asked meanwhile was not.
    void begunBeforeTheFirstPage_data() {
        QTest::addColumn<QString>("question");
        QTest::newRow("alone") << QString();
        QTest::newRow("and asked in") << u"And now?"_s;
    }
    void begunBeforeTheFirstPage() {
        QFETCH(QString, question);
        const QString page = u"GET "_s + kivChat;
        StoreFixture f;
        f.backend.hold(page);
        f.store->boot();
        SOON_COMPARE(f.backend.count(page), 1);
        f.store->chat()->newChat();
        QByteArray rows = m_before + "," + rowJson(5, u"assistant"_s, test::reportBlock);
        QStringList expected{kivGreeting};
        if (!question.isEmpty()) {
            const QByteArray row = rowJson(7, u"user"_s, question);
            f.backend.answer(kivPost, R"({"message":)" + row + "}");
            f.store->chat()->send(question);
            SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
            rows += "," + row;
            expected = {question};
        }
        f.history(kivChat, "[" + rows + "]");
        f.backend.release(page);
        QVERIFY(f.streaming(kivChat, 1));
        QCOMPARE(f.texts(), expected);
        QVERIFY(f.store->canvas()->state() != CanvasState::Scene);
    }

    /// What had failed before comes back with the conversation of before.
    void keepsWhatHadFailed() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, "{}", 500);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Failed);
        f.store->chat()->newChat();
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.texts(), QStringList{kivGreeting});
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), QStringList{u"hello"_s});
    }

    void waitsForNothing() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
        f.row(9, u"Half an ans"_s);
        SOON_COMPARE(f.texts().last(), u"Half an ans"_s);
        f.store->chat()->newChat();
        QVERIFY(!f.store->chat()->canStop());
        QVERIFY(!f.store->canvas()->awaitingAnswer());
        f.clock.advance(180s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Empty);
    }

    void streamBringsWhatItTookAway() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.store->chat()->newChat();
        f.row(7, u"hello"_s, u"user"_s);
        SOON_COMPARE(f.texts(), (QStringList{kivGreeting, u"hello"_s}));
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"hello"_s) + "]");
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.texts(), QStringList{u"hello"_s});
        f.backend.release(kivPost);
        f.row(8, u"Good morning"_s);
        SOON_COMPARE(f.texts(), (QStringList{u"hello"_s, u"Good morning"_s}));
    }
};

QTEST_GUILESS_MAIN(NewChatTest)
#include "NewChatTest.moc"
