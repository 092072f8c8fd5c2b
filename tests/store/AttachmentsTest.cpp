// The files of the next message: picking, uploading, and what goes wrong on the way.

#include "AttachmentFixture.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::store;
using test::AttachmentFixture;
using test::kivPost;
using test::kivUpload;
using test::planReply;

class AttachmentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void typesOfFiles() {
        const std::initializer_list<std::pair<QString, QString>> rows{
            {u"PNG"_s, u"image/png"_s},
            {u"jpg"_s, u"image/jpeg"_s},
            {u"Jpeg"_s, u"image/jpeg"_s},
            {u"webp"_s, u"image/webp"_s},
            {u"gif"_s, u"image/gif"_s},
            {u"pdf"_s, u"application/pdf"_s},
            {u"json"_s, u"application/json"_s},
            {u"jsonl"_s, u"application/json"_s},
            {u"ndjson"_s, u"application/json"_s},
            {u"htm"_s, u"text/html"_s},
            {u"html"_s, u"text/html"_s},
            {u"xml"_s, u"text/xml"_s},
            {u"csv"_s, u"text/csv"_s},
            {u"txt"_s, u"text/plain"_s},
            {u"exe"_s, u"application/octet-stream"_s}};
        for (const auto &[extension, type] : rows) {
            QCOMPARE(mime(extension), type);
            QCOMPARE(fileExts().contains(extension.toLower()), extension != u"exe"_s);
        }
    }

    void whatTheServerDoesNotSay() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivUpload, R"({"files":[{},{"text":"a,b","url":"/files/k2"}]})");
        f.room().uploadChatFiles({f.file(u"a.txt"_s), f.file(u"b.csv"_s)});
        SOON_COMPARE(f.files().attached(), 2);
        f.store->chat()->send(u"look"_s);
        QVERIFY(f.msgs().messages().last().files.isEmpty()); // neither can be opened
        SOON_COMPARE(f.backend.count(kivPost), 1);
        QCOMPARE(f.backend.requests(kivPost).first().body.value(u"attachments"_s).toArray(),
                 (QJsonArray{QJsonObject{{u"name"_s, u"a.txt"_s}, {u"kind"_s, u"file"_s}},
                             QJsonObject{{u"name"_s, u"b.csv"_s},
                                         {u"kind"_s, u"file"_s},
                                         {u"text"_s, u"a,b"_s},
                                         {u"url"_s, u"/files/k2"_s}}}));
    }

    void sixthIsRefused() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(4));
        f.takeFiles(1);
        f.room().uploadChatFiles({f.file(u"5.txt"_s), f.file(u"6.txt"_s)});
        QCOMPARE(f.note(), u"Too many files — the limit is 5"_s);
        SOON_COMPARE(f.files().attached(), 5);
        QCOMPARE(f.names().last(), u"5.txt"_s);
        QCOMPARE(f.note(), u"Too many files — the limit is 5"_s);

        f.room().removeChatFile(f.idOf(0));
        QCOMPARE(f.note(), QString());
        QVERIFY(f.attach(1));
        f.room().pickChatFiles();
        QCOMPARE(f.note(), u"Too many files — the limit is 5"_s);
        QVERIFY(f.chooser.titles.isEmpty());
    }

    void nobodyToSendTo() {
        AttachmentFixture f;
        f.room().pickChatFiles(); // it is not known yet who is here
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Closed);
        QVERIFY(f.bootSignedOut());
        for (const bool drop : {false, true}) {
            f.store->session()->closeAuthSheet();
            f.store->layout()->toggleHist();
            if (drop)
                f.room().uploadChatFiles({f.file(u"a.txt"_s)});
            else
                f.room().pickChatFiles();
            QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
            QVERIFY(!f.store->layout()->histOpen());
        }
        QVERIFY(f.chooser.titles.isEmpty());
        QCOMPARE(f.files().count(), 0);
    }

    void guards_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("note");
        QTest::newRow("folder") << u"dir"_s << u"“dir” is a folder: attach the files in it."_s;
        QTest::newRow("folder/") << u"dir/"_s << u"“dir” is a folder: attach the files in it."_s;
        QTest::newRow("missing") << u"gone.txt"_s << u"“gone.txt” cannot be read."_s;
        QTest::newRow("kind") << u"tool.exe"_s
                              << u"“tool.exe” is not a kind of file that can be attached."_s;
        QTest::newRow("no extension")
            << u"README"_s << u"“README” is not a kind of file that can be attached."_s;
        QTest::newRow("large") << u"large.txt"_s << u"“large.txt” is larger than 10 MB."_s;
        QTest::newRow("elsewhere") << u"https://files.example/a.txt"_s
                                   << u"Only files on this computer can be attached."_s;
    }
    void guards() {
        QFETCH(QString, name);
        QFETCH(QString, note);
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(QDir(f.folder.path()).mkdir(u"dir"_s));
        f.file(u"tool.exe"_s);
        f.file(u"README"_s);
        QVERIFY(QFile(f.file(u"large.txt"_s).toLocalFile()).resize(PickedFile::largest + 1));
        f.store->chat()->setDraft(u"half a thought"_s);
        const QUrl bad =
            name.contains(u':') ? QUrl(name) : QUrl::fromLocalFile(f.folder.filePath(name));
        f.takeFiles(1);
        f.room().uploadChatFiles({bad, f.file(u"good.txt"_s)});
        QCOMPARE(f.note(), note);
        SOON_COMPARE(f.names(), QStringList{u"good.txt"_s});
        QCOMPARE(f.note(), note);
        QCOMPARE(f.store->chat()->draft(), u"half a thought"_s);
    }

    void vanishesBeforeItIsRead() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        const PickedFile vanished(u"gone.png"_s, [] { return std::optional<QByteArray>(); });
        const PickedFile grown(
            u"log.txt"_s, [] { return std::optional(QByteArray(PickedFile::largest + 1, 'x')); });
        const PickedFile good(u"a.txt"_s, [] { return std::optional<QByteArray>("a"); });
        f.takeFiles(1);
        f.room().upload({vanished, good, grown});
        QCOMPARE(f.files().count(), 3);
        SOON_COMPARE(f.names(), QStringList{u"a.txt"_s});
        QCOMPARE(f.files().count(), 1);
        QCOMPARE(f.note(), u"“gone.png” cannot be read. Files left out: 2."_s);
        f.room().upload({vanished});
        SOON_VERIFY(!f.room().chatUploading());
        QCOMPARE(f.files().count(), 1);
        QCOMPARE(f.backend.count(kivUpload), 1);
    }

    void refusedByTheServer_data() {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("note");
        QTest::newRow("one of two")
            << R"({"files":[{"ok":false,"error":"The file is empty."},{"ok":true}]})"_ba
            << QStringList{u"b.txt"_s} << u"The file is empty."_s;
        QTest::newRow("without a reason") << R"({"files":[{"ok":true},{"ok":false}]})"_ba
                                          << QStringList{u"a.txt"_s} << u"“b.txt” was not taken."_s;
        QTest::newRow("passed over")
            << "{}"_ba << QStringList() << u"“a.txt” was not taken. Files left out: 2."_s;
        QTest::newRow("more than were sent") << R"({"files":[{},{},{"name":"c"}]})"_ba
                                             << QStringList{u"a.txt"_s, u"b.txt"_s} << QString();
    }
    void refusedByTheServer() {
        QFETCH(QByteArray, reply);
        QFETCH(QStringList, names);
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivUpload, reply);
        f.room().uploadChatFiles({f.file(u"a.txt"_s), f.file(u"b.txt"_s)});
        SOON_VERIFY(!f.room().chatUploading());
        QCOMPARE(f.names(), names);
        QCOMPARE(f.files().count(), names.size());
        QTEST(f.note(), "note");
    }

    void failedUploadIsTriedAgain_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("reply");
        QTest::newRow("refused") << 413 << R"({"error":"Too large"})"_ba;
        QTest::newRow("broken off") << 0 << QByteArray();
        QTest::newRow("not to be read") << 200 << "["_ba;
    }
    void failedUploadIsTriedAgain() {
        QFETCH(int, status);
        QFETCH(QByteArray, reply);
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivUpload, reply, status);
        if (status == 0)
            f.backend.breakOff(kivUpload);
        f.room().uploadChatFiles({f.file(u"plan.pdf"_s)});
        SOON_VERIFY(!f.room().chatUploading());
        QVERIFY2(f.note().endsWith(u" failed."_s), qPrintable(f.note()));
        QVERIFY(f.files().attachments().isEmpty());
        QCOMPARE(f.uploadOf(0), Upload::Failed);
        f.store->chat()->send(QString()); // it carries nothing yet
        QCOMPARE(f.msgs().count(), 1);

        f.backend.answer(kivUpload, planReply);
        const QString id = f.idOf(0);
        f.room().retryUpload(id);
        QCOMPARE(f.note(), QString());
        QCOMPARE(f.uploadOf(0), Upload::Running);
        f.room().retryUpload(id);
        SOON_COMPARE(f.files().attached(), 1);
        QCOMPARE(f.idOf(0), id);
        QCOMPARE(f.backend.count(kivUpload), 2);
    }

    void lateResults_data() {
        QTest::addColumn<QString>("leave");
        QTest::newRow("another project") << u"project"_s;
        QTest::newRow("there and back") << u"back"_s;
        QTest::newRow("new chat") << u"new"_s;
        QTest::newRow("sign-out") << u"out"_s;
    }
    void lateResults() {
        QFETCH(QString, leave);
        AttachmentFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.attach(1));
        f.backend.hold(kivUpload);
        f.room().uploadChatFiles({f.file(u"late.txt"_s)});
        SOON_COMPARE(f.backend.count(kivUpload), 2);
        f.room().upload(
            {PickedFile(u"later.txt"_s, [] { return std::optional<QByteArray>("a"); })});
        QCOMPARE(f.files().count(), 3);
        if (leave == u"new"_s)
            f.store->chat()->newChat();
        else if (leave == u"out"_s)
            f.store->session()->resetToAnon();
        else
            f.store->scope()->enterProject(u"ferry"_s);
        if (leave == u"back"_s)
            f.store->scope()->pickGlobal();
        QCOMPARE(f.files().count(), 0);
        QVERIFY(!f.room().chatUploading());
        f.backend.release(kivUpload);
        f.settled();
        QCOMPARE(f.files().count(), 0);
        QCOMPARE(f.note(), QString());
        QCOMPARE(f.backend.count(kivUpload), 2);
    }

    void chosenTooLate() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.room().pickChatFiles();
        f.chooser.answer({}); // the person thinks better of it
        QCOMPARE(f.note(), QString());
        f.room().pickChatFiles();
        QCOMPARE(f.chooser.titles.size(), 2);
        f.store->scope()->enterProject(u"ferry"_s);
        f.chooser.answer({f.file(u"a.txt"_s)});
        QCOMPARE(f.files().count(), 0);
        f.room().pickChatFiles();
        f.store.reset();
        f.chooser.answer({f.file(u"a.txt"_s)});
    }

    void droppedWhileUploading() {
        AttachmentFixture f;
        QVERIFY(f.signIn());
        f.takeFiles(2);
        f.backend.hold(kivUpload);
        f.room().uploadChatFiles({f.file(u"a.txt"_s), f.file(u"b.txt"_s)});
        SOON_COMPARE(f.backend.count(kivUpload), 1);
        f.room().removeChatFile(f.idOf(0));
        QVERIFY(f.room().chatUploading());
        f.backend.release(kivUpload);
        SOON_VERIFY(!f.room().chatUploading());
        QCOMPARE(f.names(), QStringList{u"b.txt"_s});
        QCOMPARE(f.files().attachments().first().key, u"k1"_s);

        // Dropping the last one gives the upload up.
        f.backend.hold(kivUpload);
        f.room().uploadChatFiles({f.file(u"c.txt"_s)});
        SOON_COMPARE(f.backend.count(kivUpload), 2);
        f.room().removeChatFile(f.idOf(1));
        QVERIFY(!f.room().chatUploading());
        f.backend.release(kivUpload);
        f.settled();
        QCOMPARE(f.names(), QStringList{u"b.txt"_s});
    }
};

QTEST_GUILESS_MAIN(AttachmentsTest)
#include "AttachmentsTest.moc"
