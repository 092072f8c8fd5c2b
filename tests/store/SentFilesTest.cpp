// Files that messages carry: sent, kept when that fails, and given back.

#include "AttachmentFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::AttachmentFixture;
using test::kivChat;
using test::kivPost;
using test::kivUpload;
using test::planReply;
using test::rowJson;

class SentFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void pickedFilesAreSent() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.backend.hold(kivUpload);
        f.room().pickChatFiles();
        f.room().pickChatFiles(); // it is open already
        QCOMPARE(f.chooser.titles, QStringList{u"Attach files for the agent"_s});
        QCOMPARE(f.chooser.offered, fileExts());
        f.chooser.answer({f.file(u"Plan.PDF"_s, "%PDF")});
        QVERIFY(f.room().chatUploading());
        QCOMPARE(f.uploadOf(0), Upload::Running);
        QCOMPARE(f.cell(0, AttachmentModel::NameRole), u"Plan.PDF"_s);
        f.room().pickChatFiles(); // not while it uploads
        QCOMPARE(f.chooser.titles.size(), 1);
        SOON_COMPARE(f.backend.count(kivUpload), 1);
        SOON_COMPARE(f.cell(0, AttachmentModel::ProgressRole), 1.0);
        QVERIFY(f.files().attachments().isEmpty());
        f.backend.release(kivUpload);
        SOON_VERIFY(!f.room().chatUploading());
        QCOMPARE(f.names(), QStringList{u"plan.pdf"_s});
        const QByteArray sent = f.backend.requests(kivUpload).first().raw;
        QVERIFY(
            sent.contains("filename=\"Plan.PDF\"\r\nContent-Type: application/pdf\r\n\r\n%PDF"));

        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, QString()) + "}");
        f.store->chat()->send(u"  "_s);
        QCOMPARE(f.files().count(), 0);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        const QJsonObject body = f.backend.requests(kivPost).first().body;
        QCOMPARE(body.value(u"text"_s).toString(), QString());
        QCOMPARE(body.value(u"attachments"_s).toArray(),
                 (QJsonArray{QJsonObject{{u"name"_s, u"plan.pdf"_s},
                                         {u"size"_s, 4},
                                         {u"mime"_s, u"application/pdf"_s},
                                         {u"kind"_s, u"file"_s},
                                         {u"url"_s, u"https://files.example/k1"_s},
                                         {u"key"_s, u"k1"_s}}}));
        const QList<MsgFile> shown = f.msgs().messages().at(1).files;
        QCOMPARE(shown.size(), 1);
        QCOMPARE(shown.first().name, u"plan.pdf"_s);
        QCOMPARE(shown.first().url, u"https://files.example/k1"_s);
        f.store->chat()->send(QString()); // nothing is left to send
        QCOMPARE(f.msgs().count(), 2);
    }

    /// Only what has an address of the web can be opened.
    void filesOfARow_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("address");
        QTest::newRow("one address")
            << QByteArray("\"url\":\"https://a.example/1\"") << u"https://a.example/1"_s;
        QTest::newRow("two")
            << QByteArray("\"url\":\"http://a.example/1\",\"public_url\":\"https://b.example/1\"")
            << u"http://a.example/1"_s;
        QTest::newRow("a public one")
            << QByteArray("\"public_url\":\"https://b.example/1\"") << u"https://b.example/1"_s;
        QTest::newRow("a place in the store and a public one")
            << QByteArray("\"url\":\"bucket/1\",\"public_url\":\"https://b.example/1\"")
            << u"https://b.example/1"_s;
        QTest::newRow("another scheme") << QByteArray("\"url\":\"file:///etc/hosts\"") << QString();
        QTest::newRow("none") << QByteArray("\"filename\":\"f\"") << QString();
    }
    void filesOfARow() {
        QFETCH(QByteArray, file);
        QFETCH(QString, address);
        AttachmentFixture f;
        f.history(kivChat, "[{\"id\":1,\"role\":\"user\",\"content\":\"x\",\"metadata\":"
                           "{\"attachments\":[{\"name\":\"plan.pdf\"," +
                               file + "}]}}]");
        QVERIFY(f.signIn());
        const QList<MsgFile> files = f.msgs().messages().first().files;
        QCOMPARE(files.size(), address.isEmpty() ? 0 : 1);
        if (!files.isEmpty()) {
            QCOMPARE(files.first().url, address);
            QCOMPARE(files.first().name, u"plan.pdf"_s);
        }
    }

    void failedMessageKeepsItsFiles() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(2));
        f.backend.answer(kivPost, "{}", 500);
        f.store->chat()->send(u"read these"_s);
        QCOMPARE(f.files().count(), 0);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Failed);
        QCOMPARE(f.names(), (QStringList{u"f0.txt"_s, u"f1.txt"_s}));

        // They count: three more find a place.
        f.room().removeChatFile(f.idOf(0));
        QVERIFY(f.attach(3));
        const QString failed = f.msgs().messages().at(1).id.toString(QUuid::WithoutBraces);
        f.store->chat()->retry(failed);
        QCOMPARE(f.names(), (QStringList{u"f0.txt"_s, u"f1.txt"_s, u"f2.txt"_s}));
        SOON_COMPARE(f.backend.count(kivPost), 2);
        const auto posts = f.backend.requests(kivPost);
        QCOMPARE(posts.at(1).body, posts.at(0).body);
        QCOMPARE(posts.at(1).body.value(u"attachments"_s).toArray().size(), 2);

        // It fails again: what has been attached since keeps its place as long as five are enough.
        SOON_COMPARE(f.deliveryOf(1), Delivery::Failed);
        QCOMPARE(f.files().attached(), 5);
        f.store->scope()->enterProject(u"ferry"_s);
        QCOMPARE(f.files().count(), 0);
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.msgs().count(), 1);
        f.store->chat()->retry(failed);
        SOON_COMPARE(f.backend.count(kivPost), 3);
        QCOMPARE(f.backend.requests(kivPost).at(2).body, posts.at(0).body);
    }

    void unansweredQuestionIsAskedAgain() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(1));
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, QString()) + "}");
        f.store->chat()->send(QString());
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        f.history(kivChat, "[" + rowJson(7, u"user"_s, QString()) + "]");
        for (int i = 0; i < 8; ++i) { // the stream stays alive, but no answer comes
            f.row(7, QString(), u"user"_s);
            QTest::qWait(10);
            f.clock.advance(25s);
        }
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);
        f.store->chat()->retryTurn();
        SOON_COMPARE(f.backend.count(kivPost), 2);
        const auto posts = f.backend.requests(kivPost);
        QCOMPARE(posts.at(1).body[u"attachments"_s], posts.at(0).body[u"attachments"_s]);
        QCOMPARE(f.files().count(), 0);
    }

    void replyWasLost_data() {
        QTest::addColumn<bool>("streamed");
        QTest::newRow("the stream brings the row") << true;
        QTest::newRow("the history has it") << false;
    }
    void replyWasLost() {
        QFETCH(bool, streamed);
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivUpload, planReply);
        f.room().uploadChatFiles({f.file(u"plan.pdf"_s)});
        SOON_COMPARE(f.files().attached(), 1);
        f.backend.breakOff(kivPost);
        f.store->chat()->send(u"read this"_s);
        SOON_COMPARE(f.files().attached(), 1);
        if (streamed) {
            f.row(7, u"read this"_s, u"user"_s);
        } else {
            f.history(kivChat, "[" + rowJson(7, u"user"_s, u"read this"_s) + "]");
            QVERIFY(f.reconnect(kivChat));
        }
        SOON_VERIFY(f.msgs().rowOfServerID(7) >= 0);
        QCOMPARE(f.files().count(), 0); // they went with it
        if (streamed)
            QCOMPARE(f.msgs().messages().at(1).files.size(), 1);
    }

    void editedAgain() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(2));
        f.backend.answer(kivPost, "{}", 500);
        f.store->chat()->send(u"read these"_s);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Failed);
        f.room().removeChatFile(f.idOf(0));
        f.store->chat()->edit(f.msgs().messages().at(1).id.toString(QUuid::WithoutBraces));
        QCOMPARE(f.store->chat()->draft(), u"read these"_s);
        QCOMPARE(f.names(), (QStringList{u"f0.txt"_s, u"f1.txt"_s}));
    }

    /// Who is signed out by the server finds the files again, of what was sent and of what was not.
    void expiredSession() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(1));
        f.backend.answer(kivPost, R"({"error":"Signed out"})", 401);
        f.backend.hold(kivPost);
        f.store->chat()->send(u"read this"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        QVERIFY(f.attach(2));
        f.backend.release(kivPost);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.files().count(), 0);

        // Nobody else does …
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"eve@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(f.files().count(), 0);
        f.store->session()->resetToAnon();
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"ada@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(f.names(), (QStringList{u"f0.txt"_s, u"f0.txt"_s, u"f1.txt"_s}));
        QCOMPARE(f.store->chat()->draft(), u"read this"_s);

        // … and who leaves for good leaves nothing behind.
        f.store->session()->logout();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QVERIFY(f.signIn());
        QCOMPARE(f.files().count(), 0);
    }
};

QTEST_GUILESS_MAIN(SentFilesTest)
#include "SentFilesTest.moc"
