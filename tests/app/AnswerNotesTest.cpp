#include "app/AnswerNotes.h"

#include "store/StoreFixture.h"
#include "support/NotificationServer.h"
#include "support/PrivateBus.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::app {

/// What the person is told while the window is out of sight.
class AnswerNotesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (!m_bus.isThere())
            QSKIP("There is no dbus-daemon");
    }
    void init() {
        m_server = std::make_unique<test::NotificationServer>();
        QVERIFY(m_server->start(m_bus.connection(u"desktop"_s)));
        m_notifier = std::make_unique<desktop::Notifier>(m_bus.connection(u"program"_s));
        m_f = std::make_unique<test::StoreFixture>();
        m_notes = std::make_unique<AnswerNotes>(*m_f->store, *m_notifier);
        m_window = std::make_unique<QWindow>();
        m_notes->setWindow(m_window.get());
        QVERIFY(m_f->signIn());
    }
    void cleanup() {
        m_window.reset();
        m_notes.reset();
        m_f.reset();
        m_notifier.reset();
        m_server.reset();
        m_bus.disconnectAll();
    }

    void firstLines_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("line");
        QTest::newRow("words") << u"All is well.\nSecond line"_s << u"All is well."_s;
        QTest::newRow("mark-up") << u"## **May** was [good](https://a.example) & `dear`"_s
                                 << u"May was good & dear"_s;
        QTest::newRow("list") << u"- one\n- two"_s << u"one"_s;
        QTest::newRow("table") << u"| a | b |\n|---|---|\n| 1 | 2 |"_s << QString();
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("long") << u"word "_s.repeated(40)
                              << u"word "_s.repeated(16).trimmed() + u'…';
        QTest::newRow("tags") << u"<b>5</b>"_s << u"<b>5</b>"_s;
    }
    void firstLines() {
        QFETCH(QString, answer);
        QTEST(AnswerNotes::firstLine(answer), "line");
    }

    void anAnswerThatEnds() {
        ask();
        answer(2, u"Done: **five** ships.\n\nAnd much more that nobody else is to read."_s);
        QTRY_COMPARE(m_server->shown.size(), 1);
        QCOMPARE(m_server->shown[0].title, u"KIV"_s);
        QCOMPARE(m_server->shown[0].text, u"Done: five ships."_s);
        // It goes on after a silence: that is no news.
        answer(2, u"Done: **five** ships.\n\nAnd more, and more."_s);
        ask();
        answer(4, u"Six"_s);
        QTRY_COMPARE(m_server->shown.size(), 2);
        QCOMPARE(m_server->shown[1].text, u"Six"_s);
        QCOMPARE(m_server->shown[1].replaced, 1u);
    }

    void anAnswerThatDoesNotCome_data() {
        QTest::addColumn<bool>("refused");
        QTest::newRow("not sent") << true;
        QTest::newRow("not answered") << false;
    }
    void anAnswerThatDoesNotCome() {
        QFETCH(bool, refused);
        if (refused)
            m_f->backend.answer(test::kivPost, R"({"error":"Broken"})", 500);
        QSignalSpy failed(m_f->store->chat(), &store::ChatRoom::answerFailed);
        ask();
        if (!refused)
            m_f->clock.advance(181s);
        QTRY_COMPARE(failed.size(), 1);
        QTRY_COMPARE(m_server->shown.size(), 1);
        QCOMPARE(m_server->shown[0].text, u"No answer came"_s);
    }

    void whoLooksIsToldNothing() {
        m_window->show();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        ask();
        answer(2, u"Five"_s);
        QVERIFY(nothingSince(0));
    }

    /// Nor who does not want to be told; what is shown goes.
    void notWanted() {
        ask();
        answer(2, u"Five"_s);
        QTRY_COMPARE(m_server->shown.size(), 1);
        // Taken back as soon as the desktop has said which one it is.
        QTRY_COMPARE((m_f->store->notices()->choose(true), m_f->store->notices()->choose(false),
                      m_server->closed),
                     QList<uint>{1});
        ask();
        answer(4, u"Six"_s);
        QVERIFY(nothingSince(1));
        m_f->restart();
        QVERIFY(!m_f->store->notices()->wanted());
    }

    void aClickNamesTheChat() {
        m_f->store->scope()->pickAgent(u"ferry"_s, u"scout"_s);
        const QString chat = u"api/v2/custom-agents/scout/chat"_s;
        SOON_VERIFY(m_f->streaming(chat, 1));
        QSignalSpy clicked(m_notifier.get(), &desktop::Notifier::clicked);
        ask();
        answer(2, u"Five"_s);
        QTRY_COMPARE(m_server->shown.size(), 1);
        // The first is another program's; ours counts once the desktop has said which it is.
        QTRY_VERIFY(
            (m_server->click(42, u"token"_s), m_server->click(1, u"token"_s), !clicked.isEmpty()));
        QCOMPARE(clicked[0], (QVariantList{u"kiv://chat/agent/scout"_s, u"token"_s}));
    }

private:
    void ask() { m_f->store->chat()->send(u"How many?"_s); }
    void answer(qint64 id, const QString &text) {
        m_f->row(id, text);
        QTRY_VERIFY(m_f->store->chat()->msgs()->rowOfServerID(id) >= 0);
        QTRY_VERIFY(m_f->store->chat()->msgs()->messages().last().text == text);
        m_f->clock.advance(1200ms);
        QTest::qWait(20); // the notice goes over the bus
    }

    /// What is shown next is a notice from behind everything that was to be told.
    bool nothingSince(qsizetype shown) {
        m_notifier->show({u"last"_s, u"Last"_s, u"one"_s});
        return QTest::qWaitFor([&] { return m_server->shown.size() > shown; }) &&
               m_server->shown[shown].title == u"Last"_s;
    }

    test::PrivateBus m_bus;
    std::unique_ptr<test::NotificationServer> m_server;
    std::unique_ptr<desktop::Notifier> m_notifier;
    std::unique_ptr<test::StoreFixture> m_f;
    std::unique_ptr<AnswerNotes> m_notes;
    std::unique_ptr<QWindow> m_window;
};

} // namespace kiv::app

QTEST_MAIN(kiv::app::AnswerNotesTest)
#include "AnswerNotesTest.moc"
