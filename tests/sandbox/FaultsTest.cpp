// Every way to fail on demand, seen from the other end of the wire.

#include "sandbox/ServerTest.h"
#include "sandbox/Stream.h"

#include <QStringDecoder>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class FaultsTest : public ServerTest {
    Q_OBJECT
public:
    FaultsTest() : ServerTest({u"--fault"_s, u"status=503,path=/orchestrator,times=1"_s}) {}

private Q_SLOTS:
    void cleanup() { order({}); }

    void commandLineFaultStrikesOnce() {
        QCOMPARE(m_client->get(u"/api/v2/orchestrator"_s).status, 503);
        QCOMPARE(m_client->get(u"/api/v2/orchestrator"_s).status, 200);
    }

    void statuses() {
        order({u"status=402,path=/projects,method=get,times=2,code=insufficient_funds"_s});
        QCOMPARE(m_client->get(u"/api/v2/custom-agents"_s).status, 200);
        QCOMPARE(m_client->post(u"/api/v2/projects"_s, {{u"label"_s, u"New"_s}}).status, 201);
        for (int i = 0; i < 2; ++i) {
            const Response response = m_client->get(u"/api/v2/projects"_s);
            QCOMPARE(response.status, 402);
            QCOMPARE(response.code(), u"insufficient_funds"_s);
        }
        QCOMPARE(m_client->get(u"/api/v2/projects"_s).status, 200);
    }

    void brokenReplies() {
        const QString path = u"/api/v2/projects"_s;
        order({u"html=502,path=/projects"_s});
        Response response = m_client->get(path);
        QCOMPARE(response.status, 502);
        QVERIFY(response.body.startsWith("<html>"));

        order({u"bad-json,path=/projects"_s});
        response = m_client->get(path);
        QCOMPARE(response.status, 200);
        QVERIFY(!response.body.isEmpty());
        QVERIFY(QJsonDocument::fromJson(response.body).isNull());

        order({u"close,path=/projects,times=1"_s});
        QCOMPARE(m_client->get(path).status, 0);
        QCOMPARE(m_client->get(path).status, 200);
    }

    void latencyAndSlowBytes_data() {
        QTest::addColumn<QString>("fault");
        QTest::newRow("latency") << u"latency=3000,path=/orchestrator"_s;
        QTest::newRow("slow bytes") << u"slow=10,path=/orchestrator"_s;
    }

    void latencyAndSlowBytes() {
        QFETCH(QString, fault);
        order({fault});
        httplib::Client kept("127.0.0.1", m_sandbox->port());
        kept.set_keep_alive(true);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(kept.Get("/api/v2/orchestrator", m_client->headers)->status, 200);
        QVERIFY2(timer.elapsed() >= 200, qPrintable(QString::number(timer.elapsed())));
        timer.start();
        QCOMPARE(kept.Get("/api/v2/custom-agents", m_client->headers)->status, 200);
        QVERIFY2(timer.elapsed() < 2500, qPrintable(QString::number(timer.elapsed())));
    }

    void refusedStreams() {
        order({u"status=401,path=/chat/stream"_s});
        Stream stream(*m_client, m_room + u"/stream"_s);
        QCOMPARE(stream.status(), 401);
        QVERIFY(stream.waitForEnd());
        QCOMPARE(m_client->get(m_room).status, 200);
    }

    void cutStreams_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("wholeRows");
        QTest::newRow("at once") << u"stream-drop=0"_s << 0;
        QTest::newRow("after three") << u"stream-drop=3"_s << 3;
        QTest::newRow("inside an event") << u"half-event=2"_s << 2;
        QTest::newRow("inside a character") << u"half-character=1"_s << 1;
    }

    void cutStreams() {
        QFETCH(QString, fault);
        QFETCH(int, wholeRows);
        order({fault});
        Stream stream(*m_client, m_room + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        m_client->post(m_room, {{u"text"_s, u"Сколько задач?"_s}});
        QVERIFY(stream.waitForEnd());
        QCOMPARE(stream.rows().size(), wholeRows);
        const bool cut = !stream.bytes().endsWith("\n\n");
        QCOMPARE(cut, fault.startsWith(u"half"_s));
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString decoded = utf8(stream.bytes());
        QCOMPARE(utf8.hasError() || decoded.endsWith(QChar::ReplacementCharacter),
                 fault.startsWith(u"half-character"_s));
    }

    void stalledStream() {
        order({u"stream-stall=2"_s});
        Stream stalled(*m_client, m_room + u"/stream"_s);
        QVERIFY(stalled.waitFor("event: ready\n"));
        order({});
        Stream healthy(*m_client, m_room + u"/stream"_s);
        QVERIFY(healthy.waitFor("event: ready\n"));
        m_client->post(m_room, {{u"text"_s, u"How was the week?"_s}});
        QVERIFY(healthy.waitForRows(20));
        QVERIFY(stalled.waitForRows(2));
        QCOMPARE(stalled.rows().size(), 2);
    }

    void slowStreamStaysWhole() {
        order({u"slow=1,path=/chat/stream"_s});
        Stream stream(*m_client, m_room + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        m_client->post(m_room, {{u"text"_s, u"Привет"_s}});
        QVERIFY(stream.waitForRows(3));
        QVERIFY(stream.rows().constLast().contains(u"content"_s));
    }

    void badOrders_data() {
        QTest::addColumn<QString>("fault");
        for (const char *fault : {"", "nothing", "status", "status=abc", "status=42", "latency=-1",
                                  "stream-drop=x", "close,when=now", "status=500,times=many"})
            QTest::addRow("'%s'", fault) << QString::fromLatin1(fault);
    }

    void badOrders() {
        QFETCH(QString, fault);
        const Response response =
            m_client->post(u"/_control/faults"_s, {{u"faults"_s, QJsonArray{fault}}});
        QCOMPARE(response.status, 400);
        QVERIFY(!response.error().isEmpty());
        QVERIFY(m_client->get(u"/_control/faults"_s).json().value(u"faults"_s).toArray().isEmpty());
    }

    void controlNeedsTheSwitch() {
        QTemporaryDir folder;
        QProcess process;
        process.start(QStringLiteral(KIV_SANDBOX), {u"--data-dir"_s, folder.path()});
        QVERIFY(process.waitForReadyRead(10'000));
        const QString url =
            QJsonDocument::fromJson(process.readLine()).object().value(u"url"_s).toString();
        Client client(QUrl(url).port());
        QCOMPARE(client.get(u"/_control/faults"_s).status, 404);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(10'000));
    }

private:
    void order(const QStringList &faults) {
        const QJsonArray list = QJsonArray::fromStringList(faults);
        const Response response = m_client->post(u"/_control/faults"_s, {{u"faults"_s, list}});
        QCOMPARE(response.status, 200);
        QCOMPARE(response.json().value(u"faults"_s).toArray().size(), list.size());
    }

    const QString m_room = u"/api/v2/projects/orchard/chat"_s;
};

QTEST_GUILESS_MAIN(FaultsTest)
#include "FaultsTest.moc"
