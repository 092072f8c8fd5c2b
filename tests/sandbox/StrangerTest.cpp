// What somebody who is not signed in, or signed in as somebody else, gets of an account.

#include "sandbox/Stream.h"
#include "sandbox/VoiceFixture.h"

#include <QtTest>

#include <future>
#include <time.h>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

const QString login = u"/api/v2/auth/login"_s;
const QString passwordPath = u"/api/v2/user/password"_s;
const QString good = u"lantern-42"_s;

QJsonObject form(const QString &email, const QString &password) {
    return {{u"email"_s, email}, {u"password"_s, password}};
}

} // namespace

class StrangerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        m_voice = std::make_unique<VoiceFixture>();
        Client &owner = m_voice->client();
        const QJsonObject made =
            owner.post(u"/api/v2/projects"_s, {{u"label"_s, u"Only mine"_s}}).json();
        QCOMPARE(made[u"project"_s][u"slug"_s].toString(), u"only-mine"_s);
        const QJsonObject session = m_voice->mint();
        m_call = session[u"call_id"_s].toString();
        m_caller = std::make_unique<Caller>(m_voice->sandbox().url());
        m_caller->begin(session[u"signed_url"_s].toString());
        QVERIFY(!m_caller->next(u"conversation_initiation_metadata"_s).isEmpty());
    }
    void cleanupTestCase() {
        m_caller.reset();
        QVERIFY(m_voice->stop());
    }

    void routes_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonObject>("body"); // of a POST; a GET without
        for (const auto &[path, body] : cases())
            QTest::addRow("%s %s", body.isEmpty() ? "GET" : "POST", qPrintable(path))
                << path << body;
    }

    /// To somebody else it is as if it were not there; without a session nothing is said at all.
    void routes() {
        QFETCH(QString, path);
        QFETCH(QJsonObject, body);
        const auto inserted = [this](QString text) {
            return text.replace(u"AGENT"_s, m_voice->agentId(u"Scout"_s))
                .replace(u"CALL"_s, m_call);
        };
        for (auto member = body.begin(); member != body.end(); ++member)
            member.value() = inserted(member.value().toString());
        const auto ask = [&](Client &client) {
            const QString at = inserted(path);
            return body.isEmpty() ? client.get(at).status : client.post(at, body).status;
        };
        if (body.isEmpty() && !path.endsWith(u"stream"_s))
            QCOMPARE(ask(m_voice->client()), 200);
        Client other(m_voice->sandbox().port());
        other.signUp(u"%1@example.com"_s.arg(QRandomGenerator::global()->generate()));
        QCOMPARE(ask(other), 404);
        Client nobody(m_voice->sandbox().port());
        QCOMPARE(ask(nobody), 401);
        nobody.headers.emplace("Cookie", "kiv_session=" + std::string(43, 'A'));
        QCOMPARE(ask(nobody), 401);
    }

    /// Whoever adds a route that names something adds it to the table.
    void noRouteIsForgotten() {
        // A file's key is random and is the right to it; the pages share the last part of theirs.
        const QStringList others{u"/files/([A-Za-z0-9_-]+)"_s, u"/([A-Za-z0-9-]+)"_s};
        const QDir folder(QStringLiteral(KIV_SOURCE "/sandbox/routes"));
        const QRegularExpression named(u"\"(/[^\"]*\\(\\[[^\"]*)\""_s);
        int found = 0;
        for (const QString &name : folder.entryList({u"*.cpp"_s})) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (auto all = named.globalMatch(QString::fromUtf8(file.readAll())); all.hasNext();) {
                const QString pattern = all.next().captured(1);
                const QRegularExpression route(QRegularExpression::anchoredPattern(pattern));
                const bool isTried = std::ranges::any_of(cases(), [&](const auto &tried) {
                    return route.match(tried.first).hasMatch();
                });
                QVERIFY2(isTried || others.contains(pattern), qPrintable(pattern));
                ++found;
            }
        }
        QVERIFY(found > 8);
    }

    void statementsAreNotWrittenByStrangers_data() {
        QTest::addColumn<QString>("text");
        for (const char *text : {"' OR '1'='1", "x'; DROP TABLE accounts; --", "' UNION SELECT id",
                                 "\\' OR 1=1 --", "%", "only-mine' --"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void statementsAreNotWrittenByStrangers() {
        QFETCH(QString, text);
        const int port = m_voice->sandbox().port();
        const QString segment = QString::fromLatin1(QUrl::toPercentEncoding(text));
        Client &owner = m_voice->client();
        QCOMPARE(owner.get(u"/api/v2/projects/"_s + segment + u"/chat"_s).status, 404);
        QCOMPARE(owner.get(u"/api/v2/custom-agents/"_s + segment + u"/chat"_s).status, 404);
        QCOMPARE(owner.get(u"/api/v2/voice/calls?agent_id="_s + segment).status, 404);
        QVERIFY(Client(port).post(login, form(text, text)).status >= 400);
        Client nobody(port);
        nobody.headers.emplace("Cookie", "kiv_session=" + text.section(u';', 0, 0).toStdString());
        QCOMPARE(nobody.get(u"/api/v2/auth/me"_s).status, 401);
        const QJsonObject made = owner.post(u"/api/v2/projects"_s, {{u"label"_s, text}}).json();
        QCOMPARE(made[u"project"_s][u"label"_s].toString(), text);
    }

    /// What is under way ends too.
    void endedSessionsHearNothingMore() {
        const int port = m_voice->sandbox().port();
        const QString stream = u"/api/v2/projects/orchard/chat/stream"_s;
        Client here(port);
        here.signUp(u"ends@example.com"_s);
        Client there(port);
        there.keepSession(there.post(login, form(u"ends@example.com"_s, good)));
        Stream own(here, stream);
        Stream other(there, stream);
        QVERIFY(own.waitFor("event: ready\n") && other.waitFor("event: ready\n"));
        QCOMPARE(here.post(passwordPath,
                           {{u"current_password"_s, good}, {u"new_password"_s, u"harbour-17"_s}})
                     .status,
                 200);
        QVERIFY(other.waitForEnd());
        here.post(u"/api/v2/projects/orchard/chat"_s, {{u"text"_s, u"status?"_s}});
        QVERIFY(own.waitForRows(1));
        QCOMPARE(here.post(u"/api/v2/auth/logout"_s).status, 200);
        QVERIFY(own.waitForEnd());
        QVERIFY(!other.bytes().contains("status?"));
    }

    void sessionsAreMadeHere() {
        Client client(m_voice->sandbox().port());
        client.signUp(u"fixed@example.com"_s);
        const auto first = client.headers.find("Cookie")->second;
        // With a cookie that somebody else may have placed, too.
        client.keepSession(client.post(login, form(u"fixed@example.com"_s, good)));
        const auto second = client.headers.find("Cookie")->second;
        QVERIFY(first != second);
        QVERIFY(second.size() >= std::string("kiv_session=").size() + 43); // 256 bits
    }

    /// Also when many are tried at the same time, and where a session is there already.
    void guessesAreFew_data() {
        QTest::addColumn<bool>("signedIn");
        QTest::newRow("to sign in") << false;
        QTest::newRow("to change the password") << true;
    }

    void guessesAreFew() {
        QFETCH(bool, signedIn);
        const int port = m_voice->sandbox().port();
        const QString email = u"guess-%1@example.com"_s.arg(signedIn);
        Client known(port);
        known.signUp(email);
        std::vector<std::future<int>> guesses;
        for (int i = 0; i < 30; ++i) {
            guesses.push_back(std::async(std::launch::async, [&, i] {
                Client client(port);
                client.headers = known.headers;
                const QString guess = u"guess-number-%1"_s.arg(i);
                return signedIn ? client
                                      .post(passwordPath, {{u"current_password"_s, guess},
                                                           {u"new_password"_s, guess}})
                                      .status
                                : client.post(login, form(email, guess)).status;
            }));
        }
        QMap<int, int> statuses;
        for (std::future<int> &guess : guesses)
            ++statuses[guess.get()];
        QCOMPARE(statuses.value(429), 20);
        QVERIFY(!statuses.contains(200));
        // Nor does the right one help then.
        if (!signedIn)
            QCOMPARE(Client(port).post(login, form(email, u"lantern-42"_s)).code(),
                     u"rate_limited"_s);
    }

    /// How long an answer takes does not tell whether there is an account. The server's work is
    /// measured: others on the computer take time, and no work.
    void unknownAddressesTakeAsLong() {
        const int port = m_voice->sandbox().port();
        Client(port).signUp(u"there@example.com"_s);
        clockid_t clock{};
        const auto server = static_cast<pid_t>(m_voice->sandbox().process().processId());
        QCOMPARE(::clock_getcpuclockid(server, &clock), 0);
        const auto worked = [&] {
            timespec time{};
            ::clock_gettime(clock, &time);
            return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
        };
        const auto work = [&](const QString &email) {
            double least = std::numeric_limits<double>::max();
            for (int i = 0; i < 4; ++i) {
                const double before = worked();
                Client(port).post(login, form(email, u"wrong-one"_s));
                least = std::min(least, worked() - before);
            }
            return least;
        };
        const double ratio = work(u"there@example.com"_s) / work(u"nowhere@example.com"_s);
        QVERIFY2(ratio > 0.6 && ratio < 1.7, qPrintable(QString::number(ratio)));
    }

    /// What the folder holds is of no use to who gets hold of it, and nobody else can look into it.
    void whatIsKept() {
        const QTemporaryDir outer;
        const QString folder = outer.filePath(u"data"_s);
        QByteArray token;
        {
            SandboxProcess sandbox(folder);
            Client client(sandbox.port());
            client.signUp(u"kept@example.com"_s);
            token = QByteArray::fromStdString(client.headers.find("Cookie")->second).mid(12);
            client.upload(u"/api/v2/projects/orchard/chat/files"_s,
                          {{u"a.txt"_s, u"text/plain"_s, "a"}});
            QVERIFY(sandbox.closeInput());
        }
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QCOMPARE(QFile::permissions(folder) & others, QFile::Permissions());
        QByteArray all;
        QDirIterator every(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (every.hasNext()) {
            const QString path = every.next();
            QVERIFY2((QFile::permissions(path) & others) == QFile::Permissions(), qPrintable(path));
            QFile file(path);
            if (every.fileInfo().isFile() && file.open(QIODevice::ReadOnly))
                all += file.readAll();
        }
        QVERIFY(all.contains("kept@example.com"));
        QVERIFY(all.contains("$argon2id$v=19$m=65536,t=2,p=1$"));
        QVERIFY(token.size() == 43 && !all.contains(token));
        QVERIFY(!all.contains(good.toLatin1()));
    }

    void aFolderThatWasThereStaysAsItWas() {
        const QTemporaryDir folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
        const SandboxProcess sandbox(folder.path());
        QVERIFY(sandbox.ready());
        QCOMPARE(QFile::permissions(folder.path()), QFile::Permissions(0x7755));
        QCOMPARE(QFile::permissions(folder.filePath(u"sample-password"_s)),
                 QFile::Permissions(0x6600));
    }

private:
    using Case = std::pair<QString, QJsonObject>;

    /// All that names something of an account, with AGENT and CALL for its ids.
    static QList<Case> cases() {
        const QString project = u"/api/v2/projects/only-mine/"_s;
        const QString agent = u"/api/v2/custom-agents/AGENT/"_s;
        const QJsonObject text{{u"text"_s, u"Hi"_s}};
        QList<Case> all{
            {project + u"chat"_s, text},
            {project + u"chat/files"_s, text},
            {agent + u"chat"_s, text},
            {agent + u"chat/stop"_s, text},
            {agent + u"chat/files"_s, text},
            {u"/api/v2/voice/session"_s, {{u"agent_id"_s, u"AGENT"_s}}},
            {u"/api/v2/voice/end"_s, {{u"call_id"_s, u"CALL"_s}}},
        };
        for (const QString &path :
             {project + u"members"_s, project + u"events"_s, project + u"chat"_s,
              project + u"chat/stream"_s, agent + u"chat"_s, agent + u"chat/stream"_s,
              u"/api/v2/voice/calls?agent_id=AGENT"_s, u"/api/v2/voice/calls/CALL"_s,
              u"/project/only-mine"_s, u"/dashboard/only-mine"_s, u"/team/only-mine"_s,
              u"/p/only-mine"_s})
            all.append({path, {}});
        return all;
    }

    std::unique_ptr<VoiceFixture> m_voice;
    std::unique_ptr<Caller> m_caller;
    QString m_call;
};

QTEST_GUILESS_MAIN(StrangerTest)
#include "StrangerTest.moc"
