// Conversations: what is stored, what the stream says, and how an answer grows.

#include "sandbox/ServerTest.h"
#include "sandbox/Stream.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

const QString room = u"/api/v2/projects/night-ferry/chat"_s;

QString content(const QJsonObject &row) {
    return row.value(u"content"_s).toString();
}

qint64 idOf(const QJsonObject &row) {
    return row.value(u"id"_s).toInteger();
}

} // namespace

class ChatTest : public ServerTest {
    Q_OBJECT

private Q_SLOTS:
    void answerGrowsUnderOneId() {
        Stream stream(*m_client, kivChat() + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        const QJsonObject sent =
            m_client->post(kivChat(), {{u"text"_s, u"How was the week?"_s}, {u"mode"_s, u"live"_s}})
                .json()
                .value(u"message"_s)
                .toObject();
        QVERIFY(stream.waitFor("3 December.\",\"created_at\"")); // the answer's last words

        QList<QJsonObject> rows = stream.rows();
        QCOMPARE(rows.takeFirst(), sent); // the person's own row comes back first
        QVERIFY2(rows.size() >= 20 && rows.size() <= 60, qPrintable(QString::number(rows.size())));
        QString before;
        for (const QJsonObject &row : rows) {
            QCOMPARE(idOf(row), idOf(rows.constFirst()));
            QCOMPARE(row.value(u"role"_s).toString(), u"assistant"_s);
            QVERIFY(content(row).size() > before.size());
            QVERIFY(content(row).startsWith(before));
            before = content(row);
        }
        QVERIFY(idOf(rows.constFirst()) > idOf(sent));
        const QString at = sent.value(u"created_at"_s).toString();
        QVERIFY(QDateTime::fromString(at, Qt::ISODateWithMs).isValid() && at.contains(u'.'));
    }

    void historyIsTheNewestRowsOldestFirst() {
        const QString chat = u"/api/v2/projects/orchard/chat"_s;
        for (int i = 1; i <= 3; ++i)
            m_client->post(chat, {{u"text"_s, u"note %1"_s.arg(i)}});
        QTRY_COMPARE(history(chat, 10).size(), 6);
        const QJsonArray last = history(chat, 4);
        QCOMPARE(last.size(), 4);
        QVERIFY(idOf(last.first().toObject()) < idOf(last.last().toObject()));
        QCOMPARE(content(history(chat, 10).first().toObject()), u"note 1"_s);
        QCOMPARE(history(chat, 0).size(), 1); // kept within bounds
    }

    void projectRoomSignsItsAnswers() {
        m_client->post(room, {{u"text"_s, u"What is our status?"_s}});
        QTRY_COMPARE(history(room, 10).size(), 2);
        const QJsonObject answer = history(room, 10).last().toObject();
        QCOMPARE(answer.value(u"metadata"_s).toObject().value(u"member_label"_s).toString(),
                 u"Night Ferry"_s);
    }

    void requestIdSendsOnce() {
        const QJsonObject body{{u"text"_s, u"Only once"_s}, {u"client_request_id"_s, u"r-1"_s}};
        const QString chat = m_client->agentChat(u"Scout"_s);
        const QJsonObject first = m_client->post(chat, body).json();
        QTRY_COMPARE(history(chat, 10).size(), 2);
        QCOMPARE(m_client->post(chat, body).json(), first);
        m_client->post(chat, {{u"text"_s, u"Something new"_s}});
        QTRY_COMPARE(history(chat, 10).size(), 4);
    }

    void refusals_data() {
        QTest::addColumn<QString>("chat");
        QTest::addColumn<QJsonObject>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        const QJsonObject hello{{u"text"_s, u"Hello"_s}};
        QJsonArray six;
        for (int i = 0; i < 6; ++i)
            six.append(QJsonObject{{u"name"_s, u"a"_s}});
        QTest::newRow("empty") << room << QJsonObject{{u"text"_s, u" \n"_s}} << 400
                               << u"empty_message"_s;
        QTest::newRow("no text") << room << QJsonObject() << 400 << u"empty_message"_s;
        QTest::newRow("text is a number")
            << room << QJsonObject{{u"text"_s, 5}} << 400 << u"bad_value"_s;
        QTest::newRow("too long") << room << QJsonObject{{u"text"_s, QString(16'001, u'a')}} << 400
                                  << u"message_too_long"_s;
        QTest::newRow("six files")
            << room << QJsonObject{{u"text"_s, u"Hi"_s}, {u"attachments"_s, six}} << 400
            << u"too_many_files"_s;
        QTest::newRow("files are an object")
            << room << QJsonObject{{u"text"_s, u"Hi"_s}, {u"attachments"_s, QJsonObject()}} << 400
            << u"bad_value"_s;
        QTest::newRow("no such project")
            << u"/api/v2/projects/nowhere/chat"_s << hello << 404 << u"not_found"_s;
        QTest::newRow("no such agent")
            << u"/api/v2/custom-agents/nobody/chat"_s << hello << 404 << u"not_found"_s;
        QTest::newRow("stopped agent")
            << m_client->agentChat(u"Anchor"_s) << hello << 409 << u"work_halted"_s;
    }

    void refusals() {
        QFETCH(QString, chat);
        QFETCH(QJsonObject, body);
        const Response response = m_client->post(chat, body);
        QTEST(response.status, "status");
        QTEST(response.code(), "code");
    }

    void stopEndsTheAnswerWhereItStands() {
        QTemporaryDir folder;
        SandboxProcess slow(folder.path(), {u"--answer-speed"_s, u"0.4"_s});
        Client client(slow.port());
        client.signUp(u"stop@example.com"_s);
        const QString kiv =
            client.get(u"/api/v2/orchestrator"_s).json().value(u"agent_id"_s).toString();
        const QString chat = u"/api/v2/custom-agents/%1/chat"_s.arg(kiv);
        Stream stream(client, chat + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        client.post(chat, {{u"text"_s, u"How was the week?"_s}});
        QVERIFY(stream.waitForRows(5));
        QCOMPARE(client.post(chat + u"/stop"_s).json().value(u"stopped"_s).toBool(), true);
        const QString stood = lastOf(client, chat);
        QVERIFY(!stood.contains(u"Highlights"_s));
        QCOMPARE(client.post(chat + u"/stop"_s).json().value(u"stopped"_s).toBool(), false);
        // The next answer is whole, and the stopped one has not moved meanwhile.
        client.post(chat, {{u"text"_s, u"Thanks"_s}});
        QTRY_VERIFY(lastOf(client, chat).contains(u"on record"_s));
        const QJsonArray rows =
            client.get(chat + u"?limit=80"_s).json().value(u"messages"_s).toArray();
        QCOMPARE(rows.size(), 4);
        QCOMPARE(content(rows.at(1).toObject()), stood);
    }

    void streamsAreLimited() {
        std::vector<std::unique_ptr<Stream>> streams;
        for (int i = 0; i < 64; ++i) {
            streams.push_back(std::make_unique<Stream>(*m_client, room + u"/stream"_s));
            QVERIFY(streams.back()->waitFor("event: ready\n"));
        }
        QCOMPARE(m_client->get(room + u"/stream"_s).code(), u"too_many_streams"_s);
        QCOMPARE(m_client->get(room).status, 200); // the rest of the server goes on
        streams.clear();
        const auto open = [this] {
            return Stream(*m_client, room + u"/stream"_s).waitFor("event: ready\n");
        };
        QTRY_VERIFY_WITH_TIMEOUT(open(), 20000); // places are free again when the peers are gone
    }

    void accountsDoNotMeet() {
        Client other(m_sandbox->port());
        other.signUp(u"other@example.com"_s);
        QCOMPARE(other.get(kivChat()).status, 404);
        QCOMPARE(other.get(kivChat() + u"/stream"_s).status, 404);
        QCOMPARE(other.post(kivChat(), {{u"text"_s, u"Hi"_s}}).status, 404);
        QCOMPARE(other.post(kivChat() + u"/stop"_s).status, 404);
        // The same path, but another conversation.
        Stream stream(other, room + u"/stream"_s);
        QVERIFY(stream.waitFor("event: ready\n"));
        m_client->post(room, {{u"text"_s, u"Between us"_s}});
        other.post(room, {{u"text"_s, u"My own words"_s}});
        QVERIFY(stream.waitForRows(2));
        QVERIFY(!stream.bytes().contains("Between us"));
        for (const QJsonValue &row : other.get(room).json().value(u"messages"_s).toArray())
            QVERIFY(content(row.toObject()) != u"Between us"_s);
    }

    void attachedFilesComeBack() {
        const QString chat = m_client->agentChat(u"Loom"_s);
        const Response uploaded = m_client->upload(
            chat + u"/files"_s, {{u"план.txt"_s, u"text/plain"_s, "one, two"},
                                 {u"empty.txt"_s, u"text/plain"_s, ""},
                                 {u"a.exe"_s, u"application/octet-stream"_s, "MZ"}});
        QCOMPARE(uploaded.status, 200);
        const QJsonArray files = uploaded.json().value(u"files"_s).toArray();
        QCOMPARE(files.size(), 3);
        const QJsonObject file = files.at(0).toObject();
        QCOMPARE(file.value(u"ok"_s).toBool(), true);
        QCOMPARE(file.value(u"name"_s).toString(), u"план.txt"_s);
        QCOMPARE(file.value(u"size"_s).toInt(), 8);
        QCOMPARE(file.value(u"text"_s).toString(), u"one, two"_s);
        for (const int refused : {1, 2}) {
            QCOMPARE(files.at(refused)[u"ok"_s], QJsonValue(false));
            QVERIFY(!files.at(refused)[u"error"_s].toString().isEmpty());
        }

        m_client->post(chat, {{u"text"_s, QString()}, {u"attachments"_s, QJsonArray{file}}});
        const QJsonObject stored = history(chat, 10).first().toObject();
        const QJsonObject attachment = stored.value(u"metadata"_s)
                                           .toObject()
                                           .value(u"attachments"_s)
                                           .toArray()
                                           .first()
                                           .toObject();
        const QString url = attachment.value(u"url"_s).toString();
        QVERIFY(url.startsWith(m_sandbox->url()));
        const Response fetched = m_client->get(url.sliced(m_sandbox->url().size()));
        QCOMPARE(fetched.body, QByteArray("one, two"));
    }

private:
    QJsonArray history(const QString &chat, int limit) {
        return m_client->get(u"%1?limit=%2"_s.arg(chat).arg(limit))
            .json()
            .value(u"messages"_s)
            .toArray();
    }

    static QString lastOf(Client &client, const QString &chat) {
        return content(client.get(chat).json().value(u"messages"_s).toArray().last().toObject());
    }
    QString lastOf(const QString &chat) { return lastOf(*m_client, chat); }
};

QTEST_GUILESS_MAIN(ChatTest)
#include "ChatTest.moc"
