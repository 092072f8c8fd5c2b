// What is being typed stays with its person and chat.

#include "StoreFixture.h"

#include "store/Drafts.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::rowJson;
using test::StoreFixture;

class DraftsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void oneForEachChat() {
        StoreFixture f;
        QVERIFY(f.signIn());
        ChatRoom *chat = f.store->chat();
        chat->setDraft(u"for KIV"_s);
        f.store->scope()->enterProject(u"ferry"_s);
        QCOMPARE(chat->draft(), QString());
        chat->setDraft(u"for the ferry"_s);
        f.store->scope()->pickGlobal();
        QCOMPARE(chat->draft(), u"for KIV"_s);
        chat->send(u"for KIV"_s);
        f.store->scope()->enterProject(u"ferry"_s);
        QCOMPARE(chat->draft(), u"for the ferry"_s);
        f.store->scope()->pickGlobal();
        QCOMPARE(chat->draft(), QString());
    }

    void survivesARestart_data() {
        QTest::addColumn<std::chrono::milliseconds>("age");
        QTest::newRow("just typed") << 0ms;
        QTest::newRow("saved") << 150ms;
    }
    void survivesARestart() {
        QFETCH(std::chrono::milliseconds, age);
        StoreFixture f;
        QVERIFY(f.signIn());
        const QString text = u"half a\n\"thought\" \U0001F600"_s;
        f.store->chat()->setDraft(text);
        f.clock.advance(age);
        const QString file = f.folder.filePath(u"drafts"_s);
        QTRY_VERIFY(age == 0ms || QFile::exists(file));
        QVERIFY(age > 0ms || !QFile::exists(file));
        f.restart();
        const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup;
        QCOMPARE(QFile::permissions(file) & others, QFile::Permissions());
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), text);
        // A start that keeps nothing neither shows nor touches it.
        f.restart(AppStore::Mode::Snapshot);
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), QString());
        f.store->chat()->setDraft(u"other"_s);
        f.restart();
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), text);
    }

    /// Half a second of what was typed is the most that a crash takes along.
    void savedWhileTyping() {
        QTemporaryDir folder;
        test::ManualClock clock;
        const QString path = folder.filePath(u"drafts"_s);
        Drafts drafts(clock, path);
        QString text;
        for (int i = 0; i < 5; ++i) {
            QVERIFY(!QFile::exists(path));
            text += u'x';
            drafts.setText(u"u"_s, u"c"_s, text);
            clock.advance(100ms);
        }
        QTRY_VERIFY(QFile::exists(path));
        QCOMPARE(Drafts(clock, path).text(u"u"_s, u"c"_s), text);
        // A pause is enough; several changes meanwhile are written once it is over.
        drafts.setText(u"u"_s, u"c"_s, u"y"_s);
        drafts.setText(u"u"_s, u"c"_s, u"z"_s);
        clock.advance(150ms);
        QTRY_COMPARE(Drafts(clock, path).text(u"u"_s, u"c"_s), u"z"_s);
    }

    void staysWithItsPerson() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"of Ada"_s);
        f.store->session()->resetToAnon();
        QCOMPARE(f.store->chat()->draft(), QString());
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"eve@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), QString());
        f.store->session()->resetToAnon();
        f.store->chat()->setDraft(u"typed while signed out"_s);
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"ada@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), u"of Ada\ntyped while signed out"_s);

        // Who signs out leaves nothing behind.
        f.store->session()->logout();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), QString());
    }

    void damagedFile_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("draft");
        const QByteArray good = R"({"user":"u","chat":"c","text":"good"})";
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("no JSON") << QByteArray("\xff\xfe[[[") << QString();
        QTest::newRow("cut short") << "[" + good << QString();
        QTest::newRow("no list") << good << QString();
        QTest::newRow("some of it")
            << "[null,7,{\"user\":1,\"chat\":\"c\",\"text\":[]}," + good + "]" << u"good"_s;
        QTest::newRow("huge") << "[" + good + "]" + QByteArray(5 * 1024 * 1024, ' ') << QString();
    }
    void damagedFile() {
        QFETCH(QByteArray, content);
        QTemporaryDir folder;
        QFile file(folder.filePath(u"drafts"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        test::ManualClock clock;
        const Drafts drafts(clock, file.fileName());
        QTEST(drafts.text(u"u"_s, u"c"_s), "draft");
    }

    void fileIsBounded() {
        QTemporaryDir folder;
        test::ManualClock clock;
        const QString path = folder.filePath(u"below/drafts"_s);
        {
            Drafts drafts(clock, path);
            for (int i = 0; i < 200; ++i)
                drafts.setText(u"u"_s, QString::number(i), u"short"_s);
            const QString emoji = u"\U0001F600"_s;
            for (int i = 200; i < 210; ++i)
                drafts.setText(u"u"_s, QString::number(i), u'x' + emoji.repeated(50'000));
            QCOMPARE(drafts.text(u"u"_s, u"205"_s).size(), 100'001);
        }
        QVERIFY(QFileInfo(path).size() < 2 * 1024 * 1024);
        const Drafts drafts(clock, path);
        const QString newest = drafts.text(u"u"_s, u"209"_s);
        QVERIFY(newest.size() > 65'000);
        QVERIFY(newest.isValidUtf16());
        QVERIFY(drafts.text(u"u"_s, u"0"_s).isEmpty());
    }

    void unwritablePlace() {
        QTemporaryDir folder;
        QFile inTheWay(folder.filePath(u"file"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        test::ManualClock clock;
        Drafts drafts(clock, inTheWay.fileName() + u"/drafts"_s);
        drafts.setText(u"u"_s, u"c"_s, u"text"_s);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^What is being typed cannot be saved: ."_s));
        clock.advance(1s);
        QCOMPARE(drafts.text(u"u"_s, u"c"_s), u"text"_s);
    }

    void editedAgain() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"sent"_s) + "," +
                               rowJson(2, u"assistant"_s, u"answer"_s) + "]");
        QVERIFY(f.signIn());
        ChatRoom *chat = f.store->chat();
        QCOMPARE(chat->lastPrompt(), u"sent"_s);
        const auto idOf = [&f](int row) {
            return f.msgs().index(row).data(MessageModel::MessageIdRole).toString();
        };
        chat->edit(idOf(1));
        QCOMPARE(chat->draft(), QString());
        chat->edit(idOf(0));
        QCOMPARE(chat->draft(), u"sent"_s);
        QCOMPARE(f.texts(), (QStringList{u"sent"_s, u"answer"_s}));

        // What was not sent moves; what is being typed stays above it.
        chat->setDraft(u"first this"_s);
        f.backend.answer(u"POST "_s + kivChat, "{}", 500);
        chat->send(u"lost"_s);
        SOON_COMPARE(f.deliveryOf(2), Delivery::Failed);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);
        chat->edit(idOf(2));
        QCOMPARE(chat->draft(), u"first this\nlost"_s);
        QVERIFY(!f.texts().contains(u"lost"_s));
        QCOMPARE(f.store->canvas()->state(), CanvasState::Empty);
        f.store->scope()->pickGlobal();
        SOON_VERIFY(!chat->historyLoading());
        QVERIFY(!f.texts().contains(u"lost"_s));
    }
};

QTEST_GUILESS_MAIN(DraftsTest)
#include "tst_drafts.moc"
