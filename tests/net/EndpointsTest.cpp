// Every endpoint: what its call sends, and what it makes of the reply.

#include "ClientFixture.h"
#include "net/KivAPI.h"

#include <QJsonDocument>

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;

using Begin = std::function<QCoro::Task<QByteArray>(APIClient *, Cancel)>;
Q_DECLARE_METATYPE(Begin)

namespace {

/// Forgets the type of a call's result.
template <typename T>
QCoro::Task<QByteArray> untyped(QCoro::Task<T> task) {
    co_await task;
    co_return QByteArray();
}

/// A call of the client `c`, cancelled by `x`.
#define CALL(...) [=](APIClient *c, Cancel x) { return untyped(__VA_ARGS__); }

const QString oddSlug = u"a b/../c?d=é"_s;
const QByteArray oddSlugOnTheWire = "a%20b%2F..%2Fc%3Fd%3D%C3%A9";

} // namespace

class EndpointsTest : public QObject {
    Q_OBJECT

private:
    template <typename T, typename BeginCall>
    static Call<T> run(ClientFixture &at, BeginCall begin) {
        return Call<T>([&](Cancel cancel) { return begin(at.client.get(), std::move(cancel)); });
    }
    static QByteArray multipart(const QByteArray &boundary, const QByteArray &parts) {
        return QByteArray(parts).replace("BOUNDARY", boundary).replace("\n", "\r\n");
    }
    static QByteArray boundaryOf(const Peer::Request &request) {
        const QByteArray type = request.headers["content-type"];
        return type.startsWith("multipart/form-data; boundary=") ? type.sliced(30) : QByteArray();
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void callsAskTheirEndpoint_data() {
        QTest::addColumn<Begin>("begin");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("reply");

        const auto row = [](const char *name, Begin begin, QByteArray line, QByteArray body,
                            QByteArray reply) {
            QTest::newRow(name) << begin << line << body << reply;
        };
        using namespace KivAPI;
        row("me", CALL(currentUser(c, x)), "GET /api/v2/auth/me", "", "{}");
        row("login", CALL(login(c, u"ж@x"_s, u"p&w"_s, x)), "POST /api/v2/auth/login",
            R"({"email":"ж@x","password":"p&w"})", "{}");
        row("signup", CALL(signup(c, u"e"_s, u"p"_s, u"Asia/Omsk"_s, x)),
            "POST /api/v2/auth/signup", R"({"email":"e","password":"p","time_zone":"Asia/Omsk"})",
            "{}");
        row("logout", CALL(logout(c, x)), "POST /api/v2/auth/logout", "{}", "bye");
        row("projects", CALL(projects(c, x)), "GET /api/v2/projects", "", R"({"projects":[]})");
        row("agents", CALL(agents(c, x)), "GET /api/v2/custom-agents", "", R"({"agents":[]})");
        row("orchestrator", CALL(orchestrator(c, x)), "GET /api/v2/orchestrator", "", "{}");
        row("roster", CALL(projectRoster(c, oddSlug, x)),
            "GET /api/v2/projects/" + oddSlugOnTheWire + "/members", "", "[]");
        row("events", CALL(projectEvents(c, u"p"_s, 40, x)),
            "GET /api/v2/projects/p/events?limit=40", "", "{}");
        row("project history", CALL(projectChatHistory(c, oddSlug, 80, x)),
            "GET /api/v2/projects/" + oddSlugOnTheWire + "/chat?limit=80", "",
            R"({"messages":[]})");
        row("agent history", CALL(agentChatHistory(c, oddSlug, 80, x)),
            "GET /api/v2/custom-agents/" + oddSlugOnTheWire + "/chat?limit=80", "",
            R"({"messages":[]})");
        row("project chat", CALL(sendProjectChat(c, u"p"_s, u"hi"_s, {}, x)),
            "POST /api/v2/projects/p/chat", R"({"text":"hi"})", "{}");
        const QJsonArray files{QJsonObject{{u"url"_s, u"u"_s}, {u"size"_s, 3}}, QJsonObject()};
        row("project chat with files", CALL(sendProjectChat(c, u"p"_s, u""_s, files, x)),
            "POST /api/v2/projects/p/chat",
            R"({"text":"","attachments":[{"url":"u","size":3},{}]})", "{}");
        row("agent chat", CALL(sendAgentChat(c, u"7"_s, u"hi"_s, u"r1"_s, {}, x)),
            "POST /api/v2/custom-agents/7/chat",
            R"({"text":"hi","mode":"live","client_request_id":"r1"})", "{}");
        row("agent chat with files", CALL(sendAgentChat(c, u"7"_s, u"a"_s, u"r"_s, files, x)),
            "POST /api/v2/custom-agents/7/chat",
            R"({"text":"a","mode":"live","client_request_id":"r",)"
            R"("attachments":[{"url":"u","size":3},{}]})",
            "{}");
        row("stop", CALL(stopAgentChat(c, oddSlug, x)),
            "POST /api/v2/custom-agents/" + oddSlugOnTheWire + "/chat/stop", "{}", "");
        row("new agent", CALL(createAgent(c, u"Ann"_s, u"QA"_s, u"checks"_s, u"p"_s, x)),
            "POST /api/v2/custom-agents",
            R"({"name":"Ann","role":"QA","description":"checks","agent_type":"employee",)"
            R"("status":"active","trigger_type":"manual","project_slug":"p"})",
            "{}");
        row("new agent, terse", CALL(createAgent(c, u"Ann"_s, u"QA"_s, u""_s, u""_s, x)),
            "POST /api/v2/custom-agents",
            R"({"name":"Ann","role":"QA","description":"QA specialist","agent_type":"employee",)"
            R"("status":"active","trigger_type":"manual"})",
            "{}");
        row("profile", CALL(profile(c, x)), "GET /api/v2/user/profile", "", "{}");
        const QJsonObject changes{{u"jobTitle"_s, QJsonValue()}, {u"notification_email"_s, false}};
        row("profile changes", CALL(patchProfile(c, changes, x)), "PATCH /api/v2/user/profile",
            R"({"jobTitle":null,"notification_email":false})", "{}");
        row("plan", CALL(plan(c, x)), "GET /api/v2/user/plan", "", "{}");
        row("wallet", CALL(wallet(c, x)), "GET /api/v2/user/wallet", "", "{}");
        row("password", CALL(changePassword(c, u"o"_s, u"12345678"_s, u"12345678"_s, x)),
            "POST /api/v2/user/password", R"({"new_password":"12345678","current_password":"o"})",
            "");
        row("first password", CALL(changePassword(c, u""_s, u"пароль12"_s, u"пароль12"_s, x)),
            "POST /api/v2/user/password", R"({"new_password":"пароль12"})", "");
        row("capability", CALL(voiceCapability(c, x)), "GET /api/v2/voice/capability", "",
            R"({"available":true})");
        row("voice session", CALL(voiceSession(c, u"7"_s, x)), "POST /api/v2/voice/session",
            R"({"agent_id":"7"})", "{}");
        row("voice calls", CALL(voiceCalls(c, u"a&b"_s, 20, x)),
            "GET /api/v2/voice/calls?agent_id=a%26b&limit=20", "", "{}");
        row("voice call", CALL(voiceCall(c, oddSlug, x)),
            "GET /api/v2/voice/calls/" + oddSlugOnTheWire, "", "{}");
        row("voice end", CALL(voiceEnd(c, u"c1"_s, x)), "POST /api/v2/voice/end",
            R"({"call_id":"c1"})", "");
    }
    void callsAskTheirEndpoint() {
        QFETCH(Begin, begin);
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, reply);
        ClientFixture at;
        at.server.answer(200, reply);
        auto call = run<QByteArray>(at, begin);
        QVERIFY(call.finish());
        QVERIFY2(call.succeeded(), qPrintable(call.errorText()));
        const Peer::Request &sent = at.server.last();
        QCOMPARE(sent.method + ' ' + sent.target, line);
        QCOMPARE(sent.headers["accept"], "application/json"_ba);
        QCOMPARE(sent.headers["origin"], at.server.url().toEncoded());
        QCOMPARE(QJsonDocument::fromJson(sent.body), QJsonDocument::fromJson(body));
        QCOMPARE(sent.headers.value("content-type"),
                 body.isEmpty() ? ""_ba : "application/json"_ba);
        QCOMPARE(at.server.count(), 1);
    }

    void dotsAreNoWayUp() {
        ClientFixture at;
        at.server.answer(200, "[]");
        auto call = run<QList<ProjectMember>>(at, [](APIClient *client, Cancel cancel) {
            return KivAPI::projectRoster(client, u".."_s, cancel);
        });
        QVERIFY(call.finish());
        QVERIFY2(!at.server.last().target.contains("/../"), at.server.last().target);
    }

    void repliesAreUnwrapped() {
        ClientFixture at;
        at.server.answer(200, R"({"project":{"slug":"s","agents_count":2}})");
        auto project = run<ProjectSummary>(at, [](APIClient *client, Cancel cancel) {
            return KivAPI::createProject(client, u"L"_s, u"B"_s, cancel);
        });
        QVERIFY(project.finish());
        QCOMPARE(project.value().slug, u"s"_s);
        QCOMPARE(project.value().agentsCount, 2);
        QCOMPARE(at.server.last().body, R"({"brief":"B","label":"L"})"_ba);

        at.server.answer(200, R"({"slug":"s"})");
        auto bare = run<ProjectSummary>(at, [](APIClient *client, Cancel cancel) {
            return KivAPI::createProject(client, u"L"_s, u"B"_s, cancel);
        });
        QVERIFY(bare.finish());
        QCOMPARE(bare.errorText(), u"The reply cannot be read: Wrap.project is missing."_s);

        at.server.answer(200, R"({"events":[{"id":5,"kind":"k"}]})");
        auto events = run<QList<KivAPI::ProjectEvent>>(at, [](APIClient *client, Cancel cancel) {
            return KivAPI::projectEvents(client, u"p"_s, 1, cancel);
        });
        QVERIFY(events.finish());
        QCOMPARE(events.value().size(), 1);
        QCOMPARE(events.value().first().id, 5);

        const QByteArray session = R"({ "token":"т", "overrides":{"a":[1]} })";
        at.server.answer(200, session);
        auto voice = run<KivAPI::VoiceSession>(at, [](APIClient *client, Cancel cancel) {
            return KivAPI::voiceSession(client, u"7"_s, cancel);
        });
        QVERIFY(voice.finish());
        QCOMPARE(voice.value().info.token, u"т"_s);
        QCOMPARE(voice.value().reply, QString::fromUtf8(session));
    }

    void aBriefIsCutToWhatAPersonCounts() {
        ClientFixture at;
        at.server.answer(200, R"({"project":{"slug":"s"}})");
        const QString flag = u"🇦🇶"_s;
        for (const QString &character : {u"x"_s, u"й"_s, flag}) {
            auto call = run<ProjectSummary>(at, [&](APIClient *client, Cancel cancel) {
                return KivAPI::createProject(client, u"L"_s, character.repeated(5000), cancel);
            });
            QVERIFY(call.finish());
            const QJsonObject body = QJsonDocument::fromJson(at.server.last().body).object();
            QVERIFY(body[u"brief"_s].toString() == character.repeated(4000));
        }
    }

    void passwordsAreCheckedBeforeAnythingIsSent_data() {
        QTest::addColumn<QString>("changed");
        QTest::addColumn<QString>("confirmed");
        QTest::addColumn<QString>("text");
        const QString tooShort = u"Password must be at least 8 characters."_s;
        const QString differs = u"New passwords do not match."_s;
        QTest::newRow("different") << u"12345678"_s << u"12345679"_s << differs;
        QTest::newRow("different and short") << u"1"_s << u"2"_s << differs;
        QTest::newRow("short") << u"1234567"_s << u"1234567"_s << tooShort;
        QTest::newRow("few characters of many units")
            << u"👩‍💻👩‍💻"_s << u"👩‍💻👩‍💻"_s << tooShort;
        QTest::newRow("empty") << u""_s << u""_s << tooShort;
    }
    void passwordsAreCheckedBeforeAnythingIsSent() {
        QFETCH(QString, changed);
        QFETCH(QString, confirmed);
        QFETCH(QString, text);
        ClientFixture at;
        auto call = run<QByteArray>(at, [&](APIClient *client, Cancel cancel) {
            return untyped(KivAPI::changePassword(client, u"old"_s, changed, confirmed, cancel));
        });
        QVERIFY(call.isDone());
        QCOMPARE(call.errorText(), text);
        const bool isServerError = call.failedWith(APIError::Kind::Server);
        QCOMPARE(isServerError, changed == confirmed);
        if (isServerError)
            QCOMPARE(call.apiError()->status(), 400);
        QCOMPARE(at.server.peers().size(), 0);
    }

    void uploadsAreWrittenToTheByte() {
        ClientFixture at;
        at.server.answer(200, R"({"files":[{"ok":true,"size":5}]})");
        const QList<MultipartFile> files{
            {u"отчёт.txt"_s, u"text/plain"_s, "ab\r\n\0"_ba},
            {u"\"; x=\r\n\"y"_s, u"application/octet-stream"_s, QByteArray("\0--", 3)}};
        QByteArrayList boundaries;
        for (const ChatTarget &target : {ChatTarget::project(oddSlug), ChatTarget::agent(u"7"_s)}) {
            auto call = run<KivAPI::UploadResult>(at, [&](APIClient *client, Cancel cancel) {
                return KivAPI::uploadChatFiles(client, target, files, {}, cancel);
            });
            QVERIFY(call.finish());
            QCOMPARE(call.value().files->first().size, 5);
            const Peer::Request &sent = at.server.last();
            const QByteArray boundary = boundaryOf(sent);
            static const QRegularExpression form(
                u"^qv-zandor-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s);
            QVERIFY2(form.match(QString::fromLatin1(boundary)).hasMatch(), boundary);
            boundaries.append(boundary);
            QCOMPARE(sent.method, "POST"_ba);
            QCOMPARE(sent.target, target.isProject()
                                      ? "/api/v2/projects/" + oddSlugOnTheWire + "/chat/files"
                                      : "/api/v2/custom-agents/7/chat/files"_ba);
            QByteArray expected;
            for (int i = 0; i < 2; ++i) {
                const QByteArrayList names{"отчёт.txt"_ba, "%22; x=%0D%0A%22y"_ba};
                const QByteArrayList types{"text/plain"_ba, "application/octet-stream"_ba};
                expected +=
                    multipart(boundary, "--BOUNDARY\nContent-Disposition: form-data; "
                                        "name=\"file\"; filename=\"" +
                                            names[i] + "\"\nContent-Type: " + types[i] + "\n\n");
                expected += files[i].data + "\r\n";
            }
            expected += multipart(boundary, "--BOUNDARY--\n");
            QCOMPARE(sent.body, expected);
            QCOMPARE(sent.headers["accept"], "application/json"_ba);
            QCOMPARE(sent.headers["origin"], at.server.url().toEncoded());
        }
        QVERIFY(boundaries[0] != boundaries[1]);
    }

    void avatarsAreFoundWhereverTheReplyPutThem_data() {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("address");
        const auto row = [](const char *name, const char *reply, const char *address) {
            QTest::newRow(name) << QByteArray(reply) << QString::fromUtf8(address);
        };
        row("at the top", R"({"avatar_url":"a","url":"b","user":{"avatar_url":"c"}})", "a");
        row("any url at the top", R"({"url":"b","user":{"avatar_url":"c"}})", "b");
        row("the user's", R"({"user":{"avatar_url":"c","url":"d"},"data":{"url":"e"}})", "c");
        row("the user's url", R"({"user":{"url":"d"},"data":{"avatar_url":"e"}})", "d");
        row("of the data", R"({"data":{"avatar_url":"e","url":"f"}})", "e");
        row("the url of the data", R"({"user":{},"data":{"url":"f"}})", "f");
        row("an empty one is searched past", R"({"avatar_url":"","user":{"url":"x.png"}})",
            "x.png");
        row("empty, and nothing else", R"({"avatar_url":"","user":{"url":"x"}})", "");
        row("searched", R"({"data":{"profile":{"picture":"p"}}})", "p");
        row("in the order of the keys", R"({"avatar":"4","picture":"3","avatarUrl":"2"})", "2");
        row("user before profile", R"({"profile":{"avatar":"2"},"user":{"avatar":"1"}})", "1");
        row("an url that is a picture", R"({"profile":{"url":"h/p.JPEG?x"}})", "");
        row("its ending", R"({"profile":{"url":"h/p.jpeg?x"}})", "h/p.jpeg?x");
        row("its place", R"({"profile":{"url":"/storage/1"}})", "/storage/1");
        row("depth three", R"({"profile":{"data":{"user":{"avatar":"3"}}}})", "3");
        row("depth four", R"({"profile":{"data":{"user":{"data":{"avatar":"4"}}}}})", "");
        row("nothing", "{}", "");
        row("odd types", R"({"avatar_url":1,"user":[],"data":{"picture":{},"avatar":"1"}})", "1");
        row("no object", R"(["a"])", "");
        row("no JSON", "<html>", "");
    }
    void avatarsAreFoundWhereverTheReplyPutThem() {
        QFETCH(QByteArray, reply);
        QFETCH(QString, address);
        ClientFixture at;
        at.server.answer(200, reply);
        auto call = run<std::optional<QString>>(at, [](APIClient *client, Cancel cancel) {
            const MultipartFile picture{u"me.png"_s, u"image/png"_s, "png"_ba};
            return KivAPI::uploadAvatar(client, picture, cancel);
        });
        QVERIFY(call.finish());
        QVERIFY2(call.succeeded(), qPrintable(call.errorText()));
        QCOMPARE(call.value().value_or(QString()), address);
        QCOMPARE(call.value().has_value(), !address.isEmpty());
        QCOMPARE(at.server.last().target, "/api/v2/user/avatar"_ba);
        QVERIFY(!boundaryOf(at.server.last()).isEmpty());
    }

    void usageEventsAreSentAndForgotten() {
        ClientFixture at;
        KivAPI::rum(at.client.get(), u"canvas_open"_s,
                    {{u"surface"_s, u"mine"_s}, {u"page"_s, u"p"_s}});
        QTRY_COMPARE(at.server.count(), 1);
        QCOMPARE(at.server.last().target, "/api/v2/rum"_ba);
        const QJsonObject context{{u"surface"_s, u"kiv-mac"_s}, {u"page"_s, u"p"_s}};
        const QJsonObject expected{{u"name"_s, u"canvas_open"_s},
                                   {u"value"_s, 1},
                                   {u"path"_s, u"/kiv"_s},
                                   {u"ts"_s, at.clock.now().toMSecsSinceEpoch()},
                                   {u"ctx"_s, context}};
        QCOMPARE(QJsonDocument::fromJson(at.server.last().body).object(), expected);
        at.server.last().peer->reply(500);
        QTRY_COMPARE(at.clock.pending(), 0);

        KivAPI::rum(at.client.get(), u"canvas_open"_s, {});
        QTRY_COMPARE(at.server.count(), 2);
        at.client.reset();
        QTRY_VERIFY(at.server.last().peer->isClosed());
    }
};

QTEST_GUILESS_MAIN(EndpointsTest)
#include "EndpointsTest.moc"
