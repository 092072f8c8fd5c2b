// A data folder that is not as the server left it, and a disk that is full.

#include "support/Damage.h"
#include "sandbox/Stream.h"
#include "sandbox/VoiceFixture.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

using Strike = std::function<void(const QString &path)>;
Q_DECLARE_METATYPE(Strike)

namespace {

const QString chat = u"/api/v2/projects/orchard/chat"_s;

/// Another program's hand in the database.
void execute(const QString &path, const QStringList &statements) {
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"hand"_s);
        database.setDatabaseName(path);
        QVERIFY(database.open());
        QSqlQuery query(database);
        for (const QString &statement : statements)
            QVERIFY2(query.exec(statement), qPrintable(statement));
    }
    QSqlDatabase::removeDatabase(u"hand"_s);
}

QDateTime endOf(const QString &path, const QString &call) {
    QDateTime end;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"eye"_s);
        database.setDatabaseName(path);
        QSqlQuery query(database.open() ? database : QSqlDatabase());
        query.exec(u"SELECT ended_at FROM calls WHERE id = '%1'"_s.arg(call));
        if (query.next())
            end = QDateTime::fromString(query.value(0).toString(), Qt::ISODateWithMs);
    }
    QSqlDatabase::removeDatabase(u"eye"_s);
    return end;
}

/// One page in the middle is another one's.
void spoilAPage(const QString &path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    constexpr qint64 page = 4096;
    for (qint64 at = 3 * page; at + page < file.size(); at += 2 * page) {
        file.seek(at);
        file.write(QByteArray(page, '\x5a'));
    }
}

} // namespace

class DamageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void database_data() {
        QTest::addColumn<Strike>("strike");
        QTest::addColumn<bool>("isSetAside");
        for (const Damage &damage : damages())
            QTest::newRow(damage.name) << damage.strike << (damage.name != "not to be read");
        QTest::newRow("spoiled inside") << Strike(spoilAPage) << true;
        QTest::newRow("another program's tables") << Strike([](const QString &path) {
            QFile::remove(path);
            execute(path, {u"CREATE TABLE messages (sender TEXT)"_s});
        }) << true;
        QTest::newRow("of a later version")
            << Strike([](const QString &path) { execute(path, {u"PRAGMA user_version = 99"_s}); })
            << false;
        QTest::newRow("without it, but with its log") << Strike([](const QString &path) {
            putContent(path + u"-wal"_s, "log of a file that was");
            putContent(path, {});
        }) << true;
    }
    /// A fresh one stands in for what nobody can read; what only this server cannot read is left as
    /// it is. Nothing is lost either way.
    void database() {
        QFETCH(Strike, strike);
        QFETCH(bool, isSetAside);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"workspace.sqlite"_s);
        {
            SandboxProcess sandbox(folder.path());
            Client client(sandbox.port());
            QVERIFY(!client.signUp(u"before@example.com"_s).isEmpty());
        }
        strike(path);
        const bool isFolder = QFileInfo(path).isDir();
        const QByteArray before = contentOf(path);
        SandboxProcess sandbox(folder.path());
        if (!isSetAside) {
            QVERIFY(!sandbox.ready());
            QTRY_COMPARE(sandbox.process().state(), QProcess::NotRunning);
            QCOMPARE(sandbox.process().exitCode(), 2);
            const QByteArray complaint = sandbox.complaints();
            QVERIFY2(complaint.contains("later version") || complaint.contains("may not read"),
                     complaint);
            QCOMPARE(complaint.count('\n'), 1);
            QVERIFY(!QFileInfo::exists(path + u".damaged"_s));
            return;
        }
        QVERIFY(sandbox.ready());
        QCOMPARE(sandbox.setAside(), path + u".damaged"_s);
        QCOMPARE(QFileInfo(path + u".damaged"_s).isDir(), isFolder);
        QVERIFY(isFolder || contentOf(path + u".damaged"_s) == before);
        QVERIFY(!contentOf(path + u"-wal"_s).startsWith("log of"));
        QVERIFY(sandbox.complaints().contains("damaged"));
        {
            Client client(sandbox.port());
            QVERIFY(!client.signUp(u"after@example.com"_s).isEmpty());
            QCOMPARE(client.post(chat, {{u"text"_s, u"status?"_s}}).status, 200);
        }
        QVERIFY(sandbox.closeInput());
        SandboxProcess again(folder.path());
        QVERIFY(again.ready());
        QCOMPARE(again.setAside(), QString());
    }

    void otherFiles_data() {
        QTest::addColumn<Strike>("strike");
        for (const Damage &damage : damages()) {
            for (const QString &name : {u"sample-password"_s, u"files"_s, u"lock"_s}) {
                if (name != u"sample-password"_s && damage.name != "binary")
                    continue;
                const auto strike = [damage, name](const QString &folder) {
                    const QString path = folder + u'/' + name;
                    if (QFileInfo(path).isDir())
                        QDir(path).removeRecursively();
                    putContent(path, "x");
                    damage.strike(path);
                    // Left behind a moment ago.
                    QFile file(path);
                    if (name == u"lock"_s && file.open(QIODevice::Append))
                        file.setFileTime(QDateTime::currentDateTime().addSecs(-2),
                                         QFileDevice::FileModificationTime);
                };
                QTest::addRow("%s, %s", qPrintable(name), damage.name.constData())
                    << Strike(strike);
            }
        }
    }
    /// The sample account can be entered with what the first line offers, and files can be sent.
    void otherFiles() {
        QFETCH(Strike, strike);
        const QTemporaryDir folder;
        const auto signIn = [](SandboxProcess &sandbox, Client &client) {
            const Response in = client.post(u"/api/v2/auth/login"_s, sandbox.sample());
            client.keepSession(in);
            return in.status;
        };
        {
            SandboxProcess sandbox(folder.path());
            Client client(sandbox.port());
            QCOMPARE(signIn(sandbox, client), 200);
        }
        strike(folder.path());
        const QString uploads = folder.filePath(u"files"_s);
        const bool isInTheWay = QFileInfo(uploads).isFile();
        SandboxProcess sandbox(folder.path());
        QVERIFY2(sandbox.ready(), sandbox.complaints());
        QCOMPARE(QFileInfo::exists(uploads + u".damaged"_s), isInTheWay);
        Client client(sandbox.port());
        QCOMPARE(signIn(sandbox, client), 200);
        const auto sent = client.upload(chat + u"/files"_s, {{u"a.txt"_s, u"text/plain"_s, "abc"}});
        QCOMPARE(sent.status, 200);
        const QString url = sent.json()[u"files"_s][0][u"url"_s].toString();
        const QString path = QUrl(url).path();
        QCOMPARE(client.get(path).body, "abc"_ba);
        // One that has gone from the folder is said to be gone.
        QVERIFY(QFile::remove(folder.filePath(path.mid(1))));
        QCOMPARE(client.get(path).status, 404);
    }

    void aFolderThatCannotBeWritten() {
        const QTemporaryDir folder;
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
        for (const QString &place : {folder.path(), folder.filePath(u"below"_s)}) {
            SandboxProcess sandbox(place);
            QVERIFY(!sandbox.ready());
            QTRY_COMPARE(sandbox.process().state(), QProcess::NotRunning);
            QCOMPARE(sandbox.process().exitCode(), 2);
            const QByteArray complaint = sandbox.complaints();
            QVERIFY2(complaint.contains("the data folder cannot be"), complaint);
        }
        QFile::setPermissions(folder.path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// What cannot be stored is refused and told; what was stored is there, and room helps at once.
    void fullDisk() {
        if (smallDisk().isEmpty())
            QSKIP("This system lets nobody make a disk of their own");
        const QString folder = smallDisk() + u"/data"_s;
        SandboxProcess sandbox(folder, {u"--answer-speed"_s, u"1"_s});
        QVERIFY2(sandbox.ready(), sandbox.complaints());
        Client client(sandbox.port());
        QVERIFY(!client.signUp(u"full@example.com"_s).isEmpty());
        Stream stream(client, chat + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        QCOMPARE(client.post(chat, {{u"text"_s, u"How was the week?"_s}}).status, 200);
        fillDisk(); // before the answer begins to grow
        QVERIFY(stream.waitFor("could not be stored: the disk is full."));
        QVERIFY(stream.rows().constLast().value(u"content"_s).toString().size() > 200);

        const QString longText = u"x"_s.repeated(15'000);
        const Response refused = client.post(chat, {{u"text"_s, longText}});
        QCOMPARE(refused.status, 507);
        QCOMPARE(refused.code(), u"disk_full"_s);
        const QList<std::tuple<QString, QString, QByteArray>> file{
            {u"a.txt"_s, u"text/plain"_s, QByteArray(100'000, 'x')}};
        QCOMPARE(client.upload(chat + u"/files"_s, file).status, 507);
        QVERIFY(QDir(folder + u"/files"_s).isEmpty());
        QCOMPARE(client.get(chat).json().value(u"messages"_s).toArray().first()[u"content"_s],
                 QJsonValue(u"How was the week?"_s));
        clearDisk();
        QCOMPARE(client.post(chat, {{u"text"_s, longText}}).status, 200);
        QCOMPARE(client.upload(chat + u"/files"_s, file).status, 200);
        QVERIFY(sandbox.closeInput());
    }

    /// A call goes on without being written down, and is not in the way of the next one.
    void fullDiskDuringACall() {
        if (smallDisk().isEmpty())
            QSKIP("This system lets nobody make a disk of their own");
        const QString folder = smallDisk() + u"/called"_s;
        VoiceFixture voice({.dataDir = folder});
        Caller caller(voice.sandbox().url());
        caller.begin(voice.mintAddress());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        const auto fillUp = [](Caller &one) {
            fillDisk();
            one.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"Blocked? "_s.repeated(400)}});
            return !one.next(u"agent_response"_s).isEmpty();
        };
        QVERIFY(fillUp(caller));
        caller.socket().close();
        QTRY_COMPARE(voice.seen()[u"state"_s].toString(), u"ended"_s);
        const QDateTime over = QDateTime::currentDateTimeUtc();
        QVERIFY(voice.sandbox().complaints().contains("A call cannot be written down"));
        QCOMPARE(voice.calls().size(), 1);
        clearDisk();
        QCOMPARE(voice.calls().first()[u"status"_s].toString(), u"done"_s);
        // It ended when it was hung up, not when there was room again.
        QVERIFY(endOf(folder + u"/workspace.sqlite"_s, voice.call()) <= over);

        // One whose socket broke meanwhile can still be taken up.
        const QString address = voice.mintAddress();
        Caller broken(voice.sandbox().url());
        broken.begin(address);
        QVERIFY(!broken.next(u"agent_response"_s).isEmpty());
        QVERIFY(fillUp(broken));
        broken.socket().abort();
        QTRY_COMPARE(voice.seen()[u"state"_s].toString(), u"dropped"_s);
        clearDisk();
        Caller again(voice.sandbox().url());
        again.begin(address);
        QVERIFY(!again.next(u"agent_response"_s).isEmpty());
        QVERIFY(voice.stop());
    }

    void anUploadThatCannotBeListedLeavesNothing() {
        const QTemporaryDir folder;
        QVERIFY(SandboxProcess(folder.path()).closeInput());
        execute(folder.filePath(u"workspace.sqlite"_s),
                {u"CREATE TRIGGER refuse BEFORE INSERT ON files"
                 u" BEGIN SELECT RAISE(ABORT, 'no'); END"_s});
        SandboxProcess sandbox(folder.path());
        Client client(sandbox.port());
        QVERIFY(!client.signUp(u"sender@example.com"_s).isEmpty());
        QCOMPARE(client.upload(chat + u"/files"_s, {{u"a.txt"_s, u"text/plain"_s, "abc"}}).status,
                 500);
        QVERIFY(QDir(folder.filePath(u"files"_s)).isEmpty());
    }
};

int main(int argc, char **argv) {
    becomeOrdinaryUser(4096);
    QCoreApplication application(argc, argv);
    if (!QFileInfo(QStringLiteral(KIV_SANDBOX)).isExecutable()) {
        qInfo("This user may not run %s: nothing is tested", KIV_SANDBOX);
        return 0;
    }
    DamageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DamageTest.moc"
