// What is being typed stays with its person and chat.

#include "StoreFixture.h"

#include "store/Drafts.h"
#include "support/Damage.h"

#include <QFile>
#include <QSignalSpy>

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
        QTRY_VERIFY_WITH_TIMEOUT(age == 0ms || QFile::exists(file), kiv::test::diskPatience);
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
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), kiv::test::diskPatience);
        QCOMPARE(Drafts(clock, path).text(u"u"_s, u"c"_s), text);
        // A pause is enough; several changes meanwhile are written once it is over.
        drafts.setText(u"u"_s, u"c"_s, u"y"_s);
        drafts.setText(u"u"_s, u"c"_s, u"z"_s);
        clock.advance(150ms);
        QTRY_COMPARE_WITH_TIMEOUT(Drafts(clock, path).text(u"u"_s, u"c"_s), u"z"_s,
                                  kiv::test::diskPatience);
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
    /// What can be understood is there; all of it is kept beside what is typed from now on.
    void damagedFile() {
        QFETCH(QByteArray, content);
        QFETCH(QString, draft);
        QTemporaryDir folder;
        const QString path = folder.filePath(u"drafts"_s);
        test::putContent(path, content);
        test::ManualClock clock;
        {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the file is set aside$"_s));
            Drafts drafts(clock, path);
            QCOMPARE(drafts.text(u"u"_s, u"c"_s), draft);
            QCOMPARE(drafts.setAside(), path + u".damaged"_s);
            drafts.setText(u"u"_s, u"d"_s, u"new"_s);
        }
        QCOMPARE(test::contentOf(path + u".damaged"_s), content);
        const Drafts drafts(clock, path);
        QCOMPARE(drafts.setAside(), QString());
        QCOMPARE(drafts.text(u"u"_s, u"d"_s), u"new"_s);
        QCOMPARE(drafts.text(u"u"_s, u"c"_s), draft);
    }

    void whatStandsInThePlace_data() {
        QTest::addColumn<int>("damage");
        for (int i = 0; i < test::damages().size(); ++i)
            QTest::newRow(test::damages().at(i).name) << i;
    }
    void whatStandsInThePlace() {
        QFETCH(int, damage);
        StoreFixture f;
        const QString path = f.folder.filePath(u"drafts"_s);
        test::putContent(path, R"([{"user":"ada@example.org","chat":"c","text":"t"}])");
        test::damages().at(damage).strike(path);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the file is set aside$"_s));
        f.restart();
        QVERIFY2(f.store->storage()->damage().contains(u"what was being typed"_s),
                 qPrintable(f.store->storage()->damage()));
        QVERIFY(QFileInfo::exists(f.store->storage()->damageFolder().toLocalFile() +
                                  u"/drafts.damaged"_s));
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"new"_s);
        f.restart();
        QCOMPARE(f.store->storage()->damage(), QString());
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->draft(), u"new"_s);
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
        QStringList reports;
        drafts.setReport([&](const QString &why) { reports.append(why); });
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^What is being typed cannot be saved: ."_s));
        drafts.setText(u"u"_s, u"c"_s, u"text"_s);
        clock.advance(1s);
        QTRY_COMPARE_WITH_TIMEOUT(reports.size(), 1, kiv::test::diskPatience);
        QVERIFY(!reports.last().isEmpty());
        QCOMPARE(drafts.text(u"u"_s, u"c"_s), u"text"_s);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^What was being typed is lost: ."_s));
    }

    /// The person is told once, and the text is saved as soon as there is room.
    void fullDisk() {
        if (test::smallDisk().isEmpty())
            QSKIP("This system lets nobody make a disk of their own");
        const QString path = test::smallDisk() + u"/drafts"_s;
        StoreFixture f;
        f.restart(AppStore::Mode::Normal, path);
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"before"_s);
        f.clock.advance(1s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), kiv::test::diskPatience);
        const QByteArray before = test::contentOf(path);
        test::fillDisk();
        QSignalSpy told(f.store->storage(), &StorageRoom::troubleChanged);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^What is being typed cannot be saved: ."_s));
        for (int attempt = 0; attempt < 4; ++attempt) {
            f.store->chat()->setDraft(u"text "_s.repeated(2000) + QString::number(attempt));
            f.clock.advance(6s);
            QTest::qWait(20); // for the thread that writes
        }
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1, kiv::test::diskPatience);
        QVERIFY(f.store->storage()->trouble().startsWith(u"What you type is kept only while"_s));
        QVERIFY(f.store->chat()->draft().endsWith(u" 3"_s));
        QCOMPARE(test::contentOf(path), before); // nothing half written
        test::clearDisk();
        f.clock.advance(5s);
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 2, kiv::test::diskPatience);
        QCOMPARE(f.store->storage()->trouble(), QString());
        QVERIFY(test::contentOf(path).contains("text 3"));
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

int main(int argc, char **argv) {
    kiv::test::becomeOrdinaryUser(256);
    QCoreApplication application(argc, argv);
    DraftsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DraftsTest.moc"
