// Starting, ending and starting again.

#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"
#include "sandbox/Stream.h"

#include <QtTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class LifeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsInTime_data() {
        QTest::addColumn<QString>("how");
        QTest::newRow("standard input") << u"input"_s;
        QTest::newRow("terminate") << u"term"_s;
    }

    /// With a stream open, an idle kept-alive connection, an answer and a slow reply under way.
    void endsInTime() {
        QFETCH(QString, how);
        QTemporaryDir folder;
        SandboxProcess sandbox(folder.path(), {u"--answer-speed"_s, u"5"_s});
        Client client(sandbox.port());
        client.signUp(u"end@example.com"_s);
        const QString chat = u"/api/v2/projects/orchard/chat"_s;
        Stream stream(client, chat + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        client.post(chat, {{u"text"_s, u"status?"_s}});
        client.post(u"/_control/faults"_s,
                    {{u"faults"_s, QJsonArray{u"latency=60000,path=/projects,times=1"_s,
                                              u"slow=60000,path=/custom-agents,times=1"_s}}});
        Stream late(client, u"/api/v2/projects"_s);
        Stream slow(client, u"/api/v2/custom-agents"_s);
        const auto struck = [&client] {
            return client.get(u"/_control/faults"_s).body.count("times=0");
        };
        QTRY_COMPARE(struck(), 2);

        if (how == u"input"_s) {
            QVERIFY(sandbox.closeInput());
        } else {
            sandbox.process().terminate();
            QVERIFY(sandbox.process().waitForFinished(10'000));
            QCOMPARE(sandbox.process().exitCode(), 0);
        }
        QVERIFY(stream.waitForEnd());
        QVERIFY(late.waitForEnd());
        QVERIFY(slow.waitForEnd());
        QCOMPARE(sandbox.complaints(), QByteArray());
    }

    void staysWhenTold() {
        QTemporaryDir folder;
        SandboxProcess sandbox(folder.path(), {u"--stay"_s});
        sandbox.process().closeWriteChannel();
        Client client(sandbox.port());
        QVERIFY(!client.signUp(u"stay@example.com"_s).isEmpty());
        QVERIFY(sandbox.process().state() == QProcess::Running);
        sandbox.process().terminate();
        QVERIFY(sandbox.process().waitForFinished(10'000));
    }

    /// Killed in the middle of an answer: the session, the sample and all that was shown are back.
    void restartKeepsEverything() {
        QTemporaryDir folder;
        const QString chat = u"/api/v2/projects/orchard/chat"_s;
        httplib::Headers headers;
        QJsonObject sample;
        QString shown;
        {
            SandboxProcess sandbox(folder.path(), {u"--answer-speed"_s, u"2"_s});
            sample = sandbox.sample();
            Client client(sandbox.port());
            client.signUp(u"again@example.com"_s);
            headers = client.headers;
            Stream stream(client, chat + u"/stream"_s);
            QVERIFY(stream.waitFor("event: ready\n"));
            client.post(chat, {{u"text"_s, u"How was the week?"_s}});
            QVERIFY(stream.waitForRows(4));
            sandbox.process().kill();
            QVERIFY(sandbox.process().waitForFinished(10'000));
            shown = stream.rows().constLast().value(u"content"_s).toString();
        }
        SandboxProcess sandbox(folder.path());
        QVERIFY(sandbox.ready());
        QCOMPARE(sandbox.sample(), sample);
        Client client(sandbox.port());
        client.headers.emplace("Cookie", headers.find("Cookie")->second);
        QCOMPARE(client.get(u"/api/v2/auth/me"_s).json().value(u"email"_s).toString(),
                 u"again@example.com"_s);
        const QJsonArray rows = client.get(chat).json().value(u"messages"_s).toArray();
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows.last().toObject().value(u"content"_s).toString().startsWith(shown));
    }

    /// Killed before an answer began. Who sends the question again gets one, and only one.
    void anUnansweredQuestionIsAnsweredWhenItComesAgain() {
        QTemporaryDir folder;
        const QString chat = u"/api/v2/projects/orchard/chat"_s;
        const QJsonObject question{{u"text"_s, u"status?"_s}, {u"client_request_id"_s, u"r-1"_s}};
        httplib::Headers headers;
        QJsonObject sent;
        {
            SandboxProcess sandbox(folder.path(), {u"--answer-speed"_s, u"60"_s});
            Client client(sandbox.port());
            client.signUp(u"lost@example.com"_s);
            headers = client.headers;
            sent = client.post(chat, question).json()[u"message"_s].toObject();
            sandbox.process().kill();
            QVERIFY(sandbox.process().waitForFinished(10'000));
        }
        SandboxProcess sandbox(folder.path());
        Client client(sandbox.port());
        client.headers.emplace("Cookie", headers.find("Cookie")->second);
        const auto count = [&] { return client.get(chat).json()[u"messages"_s].toArray().size(); };
        QCOMPARE(count(), 1);
        for (int again = 0; again < 2; ++again)
            QCOMPARE(client.post(chat, question).json()[u"message"_s][u"id"_s], sent[u"id"_s]);
        QTRY_COMPARE(count(), 2);
        client.post(chat, {{u"text"_s, u"And now?"_s}});
        QTRY_COMPARE(count(), 4);
    }

    void refusesToStart_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no folder") << QStringList();
        QTest::newRow("unknown option") << QStringList{u"--data-dir"_s, u"x"_s, u"--wings"_s};
        QTest::newRow("port") << QStringList{u"--data-dir"_s, u"x"_s, u"--port"_s, u"70000"_s};
        QTest::newRow("speed") << QStringList{u"--data-dir"_s, u"x"_s, u"--answer-speed"_s,
                                              u"fast"_s};
        QTest::newRow("fault") << QStringList{u"--data-dir"_s, u"x"_s, u"--fault"_s, u"status=0"_s};
    }

    void refusesToStart() {
        QFETCH(QStringList, arguments);
        QTemporaryDir folder;
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(KIV_SANDBOX), arguments);
        QVERIFY(process.waitForFinished(10'000));
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(!process.readAllStandardError().isEmpty());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void oneServerToAFolderAndAPort() {
        QTemporaryDir folder;
        SandboxProcess first(folder.path());
        SandboxProcess second(folder.path());
        QVERIFY(first.ready());
        QVERIFY(!second.ready());
        QVERIFY(second.complaints().contains("another server"));
        QTemporaryDir elsewhere;
        SandboxProcess third(elsewhere.path(), {u"--port"_s, QString::number(first.port())});
        QVERIFY(!third.ready());
        QVERIFY(third.complaints().contains("the port cannot be had"));
    }
};

QTEST_GUILESS_MAIN(LifeTest)
#include "LifeTest.moc"
