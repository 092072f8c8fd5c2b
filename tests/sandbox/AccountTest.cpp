// The account's own data, and what a person makes in the workspace.

#include "sandbox/ServerTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

const QByteArray tinyPng = QByteArray::fromBase64(
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJg"
    "gg==");

} // namespace

class AccountTest : public ServerTest {
    Q_OBJECT
public:
    AccountTest() : ServerTest({u"--newest-release"_s, u"9.8.7"_s}) {}

private Q_SLOTS:
    void profileKeepsEveryField() {
        QJsonObject changes{{u"preferred_sectors"_s, QJsonArray{u"Energy"_s, u"Право"_s}},
                            {u"time_zone"_s, u"Europe/Riga"_s},
                            {u"working_hours_start"_s, u"09:30"_s},
                            {u"working_hours_end"_s, u"18:00"_s},
                            {u"notification_email"_s, true},
                            {u"notification_approvals"_s, false}};
        const QString keys =
            u"full_name handle company_name company_website company_size industry "
            "jobTitle preferred_language preferred_country communication_style "
            "working_hours_days default_data_sources_mode preferred_llm_provider "
            "preferred_llm_model chat_llm_provider chat_llm_model "
            "orchestrator_llm_provider orchestrator_llm_model pipeline_llm_provider "
            "pipeline_llm_model browser_summary_llm_provider "
            "browser_summary_llm_model compaction_llm_provider compaction_llm_model "
            "worker_global_rules worker_chat_rules worker_user_facts shared_md "
            "decisions_md routine_md tools_md goals_md glossary_md owner_learned_md"_s;
        for (const QString &key : keys.split(u' '))
            changes.insert(key, u"Текст "_s + key);
        changes.insert(u"full_name"_s, u"🚀"_s.repeated(120)); // as many as a person counts
        const Response patched = m_client->patch(u"/api/v2/user/profile"_s, changes);
        QCOMPARE(patched.status, 200);
        const QJsonObject profile = m_client->get(u"/api/v2/user/profile"_s).json();
        QCOMPARE(profile, patched.json());
        for (auto change = changes.begin(); change != changes.end(); ++change)
            QCOMPARE(profile.value(change.key()), change.value());
        QCOMPARE(profile.value(u"email"_s).toString(), m_email);
        QCOMPARE(m_client->get(u"/api/v2/auth/me"_s).json().value(u"name"_s),
                 changes.value(u"full_name"_s));
    }

    void profileRefusals_data() {
        QTest::addColumn<QJsonObject>("changes");
        const auto row = [](const char *name, const QString &key, const QJsonValue &value) {
            QTest::newRow(name) << QJsonObject{{key, value}};
        };
        row("number for text", u"full_name"_s, 5);
        row("text for flag", u"notification_email"_s, u"yes"_s);
        row("text for list", u"preferred_sectors"_s, u"Energy"_s);
        row("list of numbers", u"preferred_sectors"_s, QJsonArray{1});
        row("zone", u"time_zone"_s, u"Moon/Base"_s);
        row("hour", u"working_hours_start"_s, u"25:00"_s);
        row("two lines", u"handle"_s, u"a\nb"_s);
        row("too long", u"full_name"_s, QString(121, u'x'));
    }

    void profileRefusals() {
        QFETCH(QJsonObject, changes);
        const QJsonObject before = m_client->get(u"/api/v2/user/profile"_s).json();
        changes.insert(u"industry"_s, u"must not be kept either"_s);
        const Response response = m_client->patch(u"/api/v2/user/profile"_s, changes);
        QCOMPARE(response.status, 400);
        QVERIFY(!response.error().isEmpty());
        QCOMPARE(m_client->get(u"/api/v2/user/profile"_s).json(), before);
    }

    void ownKeysAreNotWritten() {
        const QJsonObject before = m_client->get(u"/api/v2/user/profile"_s).json();
        QCOMPARE(
            m_client
                ->patch(u"/api/v2/user/profile"_s,
                        {{u"id"_s, u"x"_s}, {u"email"_s, u"x@example.com"_s}, {u"unheard_of"_s, 1}})
                .json(),
            before);
    }

    void handlesAreNotShared() {
        const QString path = u"/api/v2/user/profile"_s;
        Client other(m_sandbox->port());
        QVERIFY(!other.signUp(u"other@example.com"_s).isEmpty());
        QCOMPARE(other.patch(path, {{u"handle"_s, u"Ona.L"_s}}).status, 200);
        const Response taken =
            m_client->patch(path, {{u"handle"_s, u" ona.l"_s}, {u"industry"_s, u"Law"_s}});
        QCOMPARE(taken.status, 409);
        QCOMPARE(taken.error(), u"This handle is taken."_s);
        QVERIFY(m_client->get(path).json().value(u"industry"_s) != u"Law"_s);
        // Everybody may keep their own, and do without one.
        QCOMPARE(other.patch(path, {{u"handle"_s, u"ona.l"_s}}).status, 200);
        QCOMPARE(other.patch(path, {{u"handle"_s, QString()}}).status, 200);
        QCOMPARE(m_client->patch(path, {{u"handle"_s, u"ona.l"_s}}).status, 200);
    }

    void avatar() {
        const QString path = u"/api/v2/user/avatar"_s;
        QCOMPARE(m_client->upload(path, {{u"a.png"_s, u"image/png"_s, "<svg/>"}}).code(),
                 u"bad_picture"_s);
        QCOMPARE(m_client->postRaw(path, "no form").status, 400);
        const Response large = m_client->upload(
            path, {{u"a.png"_s, u"image/png"_s, tinyPng + QByteArray(5 * 1024 * 1024 + 1, '\0')}});
        QCOMPARE(large.code(), u"too_large"_s);
        QCOMPARE(large.error(), u"The picture is larger than 5 MiB."_s);
        const Response response = m_client->upload(path, {{u"я.png"_s, u"text/plain"_s, tinyPng}});
        const QString url = response.json().value(u"avatar_url"_s).toString();
        QVERIFY(url.startsWith(m_sandbox->url()));
        QCOMPARE(m_client->get(u"/api/v2/auth/me"_s).json().value(u"avatar_url"_s).toString(), url);
        QCOMPARE(m_client->get(url.sliced(m_sandbox->url().size())).body, tinyPng);
    }

    void planAndWalletFollowTheTalk() {
        const auto spent = [this] {
            return m_client->get(u"/api/v2/user/plan"_s).json().value(u"spent_tokens"_s).toDouble();
        };
        const auto balance = [this] {
            return m_client->get(u"/api/v2/user/wallet"_s)
                .json()
                .value(u"wallet"_s)
                .toObject()
                .value(u"balance_credits"_s)
                .toDouble();
        };
        const double spentBefore = spent();
        const double balanceBefore = balance();
        m_client->post(u"/api/v2/projects/orchard/chat"_s, {{u"text"_s, QString(400, u'a')}});
        QVERIFY(spent() >= spentBefore + 100);
        QVERIFY(balance() < balanceBefore);
    }

    void projects_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("slug");
        QTest::newRow("plain") << u"Tide Mill"_s << u"tide-mill"_s;
        QTest::newRow("again") << u"Tide Mill"_s << u"tide-mill-2"_s;
        QTest::newRow("signs") << u"  Été & Co. (2) "_s << u"ete-co-2"_s;
        QTest::newRow("no Latin letters") << u"Причал"_s << u"project"_s;
        QTest::newRow("blank") << u"  "_s << QString();
        QTest::newRow("too long") << QString(81, u'x') << QString();
        QTest::newRow("long for a machine only")
            << u"👩‍👩‍👧"_s.repeated(80) << u"project-2"_s;
    }

    void projects() {
        QFETCH(QString, label);
        QFETCH(QString, slug);
        const Response response =
            m_client->post(u"/api/v2/projects"_s, {{u"label"_s, label}, {u"brief"_s, u"B"_s}});
        QCOMPARE(response.status, slug.isEmpty() ? 400 : 201);
        const QJsonObject made = response.json().value(u"project"_s).toObject();
        QCOMPARE(made.value(u"slug"_s).toString(), slug);
        const QJsonArray list =
            m_client->get(u"/api/v2/projects"_s).json().value(u"projects"_s).toArray();
        QCOMPARE(list.last().toObject() == made, !slug.isEmpty());
    }

    void agents() {
        const auto create = [this](const QString &name, const QJsonValue &slug) {
            return m_client->post(u"/api/v2/custom-agents"_s, {{u"name"_s, name},
                                                               {u"role"_s, u"Research"_s},
                                                               {u"status"_s, u"active"_s},
                                                               {u"project_slug"_s, slug}});
        };
        const QString roster = u"/api/v2/projects/orchard/members"_s;
        const qsizetype before = m_client->get(roster).list().size();
        const QJsonObject placed = create(u"Magpie"_s, u"orchard"_s).json();
        QVERIFY(placed.value(u"project_warnings"_s).toArray().isEmpty());
        const QJsonArray members = m_client->get(roster).list();
        QCOMPARE(members.size(), before + 1);
        const QJsonObject last = members.last().toObject();
        QCOMPARE(last.value(u"member_kind"_s).toString(), u"agent"_s);
        QCOMPARE(last.value(u"agent"_s).toObject().value(u"id"_s), placed.value(u"id"_s));
        QCOMPARE(m_client->get(u"/api/v2/projects/orchard/events?limit=1"_s)
                     .json()
                     .value(u"events"_s)
                     .toArray()
                     .first()
                     .toObject()
                     .value(u"title"_s)
                     .toString(),
                 u"Magpie joined"_s);

        const QJsonObject lost = create(u"Wren"_s, u"nowhere"_s).json();
        QCOMPARE(lost.value(u"project_warnings"_s).toArray().size(), 1);
        QCOMPARE(
            m_client->get(u"/api/v2/custom-agents/%1/chat"_s.arg(lost.value(u"id"_s).toString()))
                .status,
            200);
        QCOMPARE(create(u" "_s, {}).status, 400);
    }

    void longTextsAreRefused_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("longest");
        QTest::addColumn<QString>("why");
        QTest::newRow("brief") << u"projects"_s << u"brief"_s << 4000
                               << u"The brief is longer than 4000 characters."_s;
        QTest::newRow("role") << u"custom-agents"_s << u"role"_s << 80
                              << u"The role is longer than 80 characters."_s;
        QTest::newRow("description") << u"custom-agents"_s << u"description"_s << 4000
                                     << u"The description is longer than 4000 characters."_s;
    }

    void longTextsAreRefused() {
        QFETCH(QString, path);
        QFETCH(QString, member);
        QFETCH(int, longest);
        const auto send = [&](qsizetype length) {
            return m_client->post(
                u"/api/v2/"_s + path,
                {{u"name"_s, u"Tern"_s}, {u"label"_s, u"Tern"_s}, {member, QString(length, u'ё')}});
        };
        QCOMPARE(send(longest).status, 201);
        const Response refused = send(longest + 1);
        QCOMPARE(refused.status, 400);
        QTEST(refused.json().value(u"error"_s).toString(), "why");
    }

    void rosterHoldsWhatAClientMustSkip() {
        QStringList kinds;
        QStringList statuses;
        for (const QJsonValue &member :
             m_client->get(u"/api/v2/projects/night-ferry/members"_s).list()) {
            kinds.append(member.toObject().value(u"member_kind"_s).toString());
            statuses.append(
                member.toObject().value(u"agent"_s).toObject().value(u"status"_s).toString());
        }
        QCOMPARE(kinds.count(u"team"_s), 1);
        QCOMPARE(statuses.count(u"archived"_s), 1);
        QCOMPARE(kinds.size(), 5);
    }

    void smallServices() {
        const QJsonObject beacon{{u"name"_s, u"canvas_open"_s}, {u"value"_s, 1}};
        QCOMPARE(m_client->post(u"/api/v2/rum"_s, beacon).status, 202);
        QCOMPARE(m_client->post(u"/api/v2/rum"_s, beacon).status, 202);
        QCOMPARE(m_client->post(u"/api/v2/rum"_s, {{u"value"_s, 1}}).status, 400);
        QCOMPARE(m_client->get(u"/_control/beacons"_s).json().value(u"beacons"_s).toObject(),
                 QJsonObject({{u"canvas_open"_s, 2}}));
        Client stranger(m_sandbox->port());
        const Response feed = stranger.get(u"/downloads/kiv-appcast.xml"_s);
        QCOMPARE(feed.status, 200);
        QVERIFY(feed.body.contains("shortVersionString>9.8.7<"));
        QVERIFY(stranger.get(u"/downloads/"_s).body.contains("9.8.7"));
    }

    void uploadLimits() {
        const QString path = u"/api/v2/projects/orchard/chat/files"_s;
        const std::tuple<QString, QString, QByteArray> one{u"a.txt"_s, u"text/plain"_s, "a"};
        QCOMPARE(m_client->upload(path, {one, one, one, one, one, one}).code(),
                 u"too_many_files"_s);
        QCOMPARE(m_client->upload(u"/api/v2/projects/nowhere/chat/files"_s, {one}).status, 404);
        const QByteArray large(10 * 1024 * 1024 + 1, 'x');
        const QJsonArray files = m_client->upload(path, {{u"large"_s, u"text/plain"_s, large}, one})
                                     .json()
                                     .value(u"files"_s)
                                     .toArray();
        QCOMPARE(files.at(0).toObject().value(u"ok"_s).toBool(), false);
        QCOMPARE(files.at(1).toObject().value(u"ok"_s).toBool(), true);
        const Response huge = m_client->postRaw(path, QByteArray(51 * 1024 * 1024, 'x'),
                                                "multipart/form-data; boundary=b");
        QVERIFY(huge.status == 413 || huge.status == 0); // refused, or cut off while sending
    }
};

QTEST_GUILESS_MAIN(AccountTest)
#include "AccountTest.moc"
