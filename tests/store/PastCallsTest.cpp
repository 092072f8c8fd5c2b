// Calls of before: their list, their transcripts, and their lines in the conversation.

#include "CallFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::CallFixture;

namespace {

const QString calls = u"GET api/v2/voice/calls"_s;
const QByteArray twoCalls = R"({"calls":[
    {"id":"a","status":"done","duration_secs":192.7,"started_at":"2026-03-02T09:30:00Z",
     "snippet":"Where are we?","has_transcript":true},
    {"id":"b","status":"missed","started_at":"2026-03-02T09:41:59Z"}]})";
const QByteArray transcript = R"({"call":{"transcript":[
    {"role":"user","t":1.9,"text":"Where are we?"},{"role":"agent","t":4,"text":" On plan. "},
    {"role":"agent","t":5,"text":" "},{"text":"No more"}]}})";

QByteArray rowAt(int id, const QByteArray &time) {
    return R"({"id":)" + QByteArray::number(id) + R"(,"role":"user","content":"row )" +
           QByteArray::number(id) + R"(","created_at":"2026-03-02T)" + time + R"(Z"})";
}

} // namespace

class PastCallsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inTheConversation() {
        CallFixture f;
        f.backend.answer(calls, twoCalls);
        f.backend.answer(calls + u"/a"_s, transcript);
        f.history(test::kivChat, "[" + rowAt(1, "09:20:00") + "," + rowAt(2, "09:40:00") + "]");
        QVERIFY(f.signIn());
        SOON_COMPARE(f.texts(),
                     (QStringList{u"row 1"_s, u"Call · 3:12"_s, u"row 2"_s, u"Call · missed"_s}));
        QCOMPARE(f.backend.requests(calls).last().query, u"agent_id=kiv&limit=50"_s);
        QCOMPARE(f.store->chat()->unseenMsgs(), 0);
        const auto role = [&](int row, int which) { return f.msgs().index(row).data(which); };
        QCOMPARE(role(1, MessageModel::CallIdRole), u"a"_s);
        QCOMPARE(role(0, MessageModel::CallIdRole), QString());

        f.call()->toggleCallLines(u"b"_s); // has none
        f.call()->toggleCallLines(u"a"_s);
        const QStringList open{
            u"row 1"_s,   u"Call · 3:12"_s, u"Where are we?"_s, u" On plan. "_s.trimmed(),
            u"No more"_s, u"row 2"_s,       u"Call · missed"_s};
        SOON_COMPARE(f.texts(), open);
        QVERIFY(role(1, MessageModel::CallOpenRole).toBool());
        QVERIFY(role(2, MessageModel::FromCallRole).toBool());
        QCOMPARE(role(2, MessageModel::WhoRole).value<Who>(), Who::You);
        QCOMPARE(role(3, MessageModel::WhoRole).value<Who>(), Who::Agent);
        QCOMPARE(f.store->chat()->lastPrompt(), u"row 2"_s);
        // They stay when the history comes anew, and close again.
        QVERIFY(f.reconnect(test::kivChat));
        SOON_COMPARE(f.backend.count(calls), 2);
        QCOMPARE(f.texts(), open);
        f.call()->toggleCallLines(u"a"_s);
        QCOMPARE(f.texts().size(), 4);
        f.call()->toggleCallLines(u"a"_s);
        QCOMPARE(f.texts(), open);
        QCOMPARE(f.backend.count(calls + u"/a"_s), 1);
    }

    void afterACall() {
        CallFixture f;
        f.history(test::kivChat, "[" + rowAt(1, "09:20:00") + "]");
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        // The backend lists it while it goes on.
        f.backend.answer(calls, R"({"calls":[{"id":"c1","status":"in_progress",
            "started_at":"2026-03-02T09:42:00Z"}]})");
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts().size(), 2);
        f.clock.advance(2s);
        f.say(u"user"_s, u"Hello"_s);
        f.call()->toggleHold();
        f.say(u"ai"_s, u"Hi"_s);
        f.store->scope()->pickAgent(u"ferry"_s, u"scout"_s);
        f.clock.advance(63s);
        f.call()->hangupCall();
        QVERIFY(f.ended(1));
        QVERIFY(!f.texts().contains(u"Hello"_s)); // another conversation
        f.backend.answer(calls, R"({"calls":[{"id":"c1","duration_secs":65,
            "started_at":"2026-03-02T09:42:00Z","has_transcript":true}]})");
        f.store->scope()->pickGlobal();
        const QStringList expected{u"row 1"_s, u"Call · 1:05"_s, u"Hello"_s, u"Hi"_s};
        SOON_COMPARE(f.texts(), expected);
        SOON_COMPARE(f.call()->callHistory()->count(), 1);
        QCOMPARE(f.texts(), expected); // the backend knows of the same call
        QCOMPARE(f.store->chat()->unseenMsgs(), 0);
        f.store->session()->logout();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.texts().size(), 1);
        QCOMPARE(f.call()->callHistory()->count(), 0);
    }

    /// A new chat is without the calls of before, whatever brings the conversation anew.
    void inANewChat() {
        CallFixture f;
        f.backend.answer(calls, twoCalls);
        f.history(test::kivChat, "[" + rowAt(1, "09:20:00") + "]");
        QVERIFY(f.signIn());
        SOON_COMPARE(f.texts().size(), 3);
        f.store->chat()->newChat();
        QVERIFY(f.connect());
        f.clock.advance(5s);
        f.call()->hangupCall();
        QVERIFY(f.ended(1));
        const QStringList expected{test::kivGreeting, u"Call · 0:05"_s};
        QCOMPARE(f.texts(), expected);
        QVERIFY(f.reconnect(test::kivChat));
        QCOMPARE(f.texts(), expected);
    }

    /// A call that never was one leaves nothing.
    void withoutALine() {
        CallFixture f;
        QVERIFY(f.signIn());
        const QStringList before = f.texts();
        QVERIFY(f.dial());
        f.call()->hangupCall();
        QVERIFY(f.ended(1));
        QCOMPARE(f.texts(), before);
    }

    void beforeTheFirstMessage_data() {
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("shown");
        QTest::newRow("the whole conversation") << 79 << true;
        QTest::newRow("its newest page") << 80 << false;
    }
    void beforeTheFirstMessage() {
        QFETCH(int, rows);
        QFETCH(bool, shown);
        CallFixture f;
        f.backend.answer(calls, twoCalls);
        QByteArrayList page;
        for (int id = 1; id <= rows; ++id)
            page.append(rowAt(id, "09:41:00"));
        f.history(test::kivChat, "[" + page.join(',') + "]");
        QVERIFY(f.signIn());
        SOON_COMPARE(f.texts().last(), u"Call · missed"_s);
        QCOMPARE(f.texts().contains(u"Call · 3:12"_s), shown);
        QCOMPARE(f.texts().first(), shown ? u"Call · 3:12"_s : u"row 1"_s);
    }

    void theList() {
        CallFixture f;
        f.backend.answer(calls, twoCalls);
        f.backend.answer(calls + u"/a"_s, transcript);
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"ferry"_s); // KIV speaks for it
        f.call()->loadCallHistory();
        SOON_VERIFY(f.call()->callHistoryLoaded());
        CallHistory *history = f.call()->callHistory();
        const auto cell = [&](int row, int role) { return history->index(row).data(role); };
        QCOMPARE(cell(0, CallHistory::CallIdRole), u"b"_s); // the newest first
        QCOMPARE(cell(1, CallHistory::DurationSecsRole), 192);
        f.call()->toggleCallTranscript(u"a"_s);
        QCOMPARE(f.call()->callTranscriptOpen(), u"a"_s);
        QVERIFY(cell(1, CallHistory::LoadingRole).toBool());
        SOON_VERIFY(!cell(1, CallHistory::LoadingRole).toBool());
        const auto lines = cell(1, CallHistory::LinesRole).value<QList<PastLine>>();
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).isOwner() && lines.at(0).seconds == 1);
        QCOMPARE(lines.at(1).text, u"On plan."_s);
        f.call()->toggleCallTranscript(u"b"_s); // is not to be had
        SOON_VERIFY(!f.call()->callHint().isEmpty());
        QCOMPARE(f.call()->callTranscriptOpen(), QString());
        QVERIFY(!cell(1, CallHistory::OpenRole).toBool());
        f.call()->toggleCallTranscript(u"a"_s);
        f.call()->toggleCallTranscript(u"a"_s);
        QCOMPARE(f.call()->callTranscriptOpen(), QString());
        QCOMPARE(f.backend.count(calls + u"/a"_s), 1);

        f.backend.answer(calls, "{}", 500);
        f.call()->loadCallHistory();
        SOON_VERIFY(f.call()->callHistoryFailed());
        QCOMPARE(history->count(), 2); // what was there stays
        f.store->scope()->pickAgent(u"ferry"_s, u"scout"_s);
        f.call()->loadCallHistory();
        QCOMPARE(history->count(), 0); // another agent's
    }
};

QTEST_GUILESS_MAIN(PastCallsTest)
#include "PastCallsTest.moc"
