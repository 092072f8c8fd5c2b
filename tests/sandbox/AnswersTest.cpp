// What the agents answer: the form of each answer, and figures that agree with each other.

#include "sandbox/ServerTest.h"

#include <QRegularExpression>
#include <QtTest>

#include <numeric>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

struct Answer {
    QString content;
    QJsonObject metadata;

    /// The first fenced block: its word and its JSON.
    QString word() const { return fence().captured(1); }
    QJsonDocument block() const { return QJsonDocument::fromJson(fence().captured(2).toUtf8()); }
    QJsonArray points() const { return block()[u"points"_s].toArray(); }

private:
    QRegularExpressionMatch fence() const {
        static const QRegularExpression pattern(u"```(view|chart|kpi)\n(.*?)\n```"_s,
                                                QRegularExpression::DotMatchesEverythingOption);
        return pattern.match(content);
    }
};

double sumOf(const QJsonArray &points, const QString &key = u"value"_s) {
    return std::accumulate(points.begin(), points.end(), 0.0,
                           [&](double sum, const QJsonValue &point) {
                               return sum + point.toObject().value(key).toDouble();
                           });
}

double euroFigure(QString text) {
    return text.remove(u'€').remove(u',').toDouble();
}

} // namespace

class AnswersTest : public ServerTest {
    Q_OBJECT

private Q_SLOTS:
    void blocks_data() {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("member"); // holds the rows
        QTest::addColumn<int>("count");
        const auto row = [](const char *question, const QString &word, const QString &kind,
                            const QString &member, int count) {
            QTest::newRow(question)
                << QString::fromUtf8(question) << word << kind << member << count;
        };
        const QString view = u"view"_s;
        const QString chart = u"chart"_s;
        const QString points = u"points"_s;
        row("How was the week?", view, u"kpi"_s, u"items"_s, 6);
        row("Как прошла неделя?", view, u"kpi"_s, u"items"_s, 6);
        row("Compare the hosting options", view, u"table"_s, u"rows"_s, 6);
        row("Сравни варианты хостинга", view, u"table"_s, u"rows"_s, 6);
        row("Where should invoicing live?", view, u"compare"_s, u"rows"_s, 5);
        row("Build or buy the voice stack?", view, u"compare"_s, u"rows"_s, 4);
        row("Who does what for the release?", view, u"timeline"_s, points, 12);
        row("What did Anvil do overnight?", view, u"timeline"_s, points, 3);
        row("Where are we against the plan?", view, u"progress"_s, points, 5);
        row("Show the trial funnel", chart, u"funnel"_s, points, 5);
        row("What does one invoice cost?", view, u"donut"_s, points, 5);
        row("What needs me today?", view, u"checklist"_s, points, 9);
        row("Sum up the retro", view, u"board"_s, u"columns"_s, 3);
        row("Where does the money go?", view, u"hbar"_s, points, 6);
        row("Cash in and out since July", view, u"line"_s, u"series"_s, 3);
        row("How are the goals doing?", view, u"progress"_s, points, 8);
        row("Who is overloaded next week?", view, u"hbar"_s, points, 6);
        row("Are we within budget?", view, u"table"_s, u"rows"_s, 6);
        row("Rank the projects", chart, u"rank"_s, points, 5);
        row("Show the revenue trend", chart, u"area"_s, u"series"_s, 1);
        row("Spend by project", view, u"stacked"_s, u"series"_s, 6);
        row("Show the highlights", view, u"cards"_s, points, 4);
    }

    void blocks() {
        QFETCH(QString, question);
        const Answer answer = ask(question);
        QTEST(answer.word(), "word");
        QTEST(answer.block()[u"kind"_s].toString(), "kind");
        QFETCH(QString, member);
        const QJsonArray rows = answer.block()[member].toArray();
        QTEST(int(rows.size()), "count");
        QVERIFY(!answer.block()[u"title"_s].toString().isEmpty());
        QVERIFY(answer.content.indexOf(u"```"_s) > 10); // prose comes first
    }

    void texts_data() {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("pattern");
        const auto row = [](const char *question, const QString &pattern) {
            QTest::newRow(question) << QString::fromUtf8(question) << pattern;
        };
        row("Give me a table of the projects",
            u"\\n\\| :--- \\| ---: .*\\n\\| Night Ferry \\| \\d+ "_s);
        row("List the tasks", u"\\n- Night Ferry: \\d+\\n"_s);
        row("Key figures please", u"\\nRevenue: €[\\d,]+\\nReleases: \\d+\\n"_s);
        row("The week at a glance, headline only", u"```kpi\\n\\[\"Revenue: €"_s);
        row("What is blocked?", u"\\n1\\. \\*\\*.*\\n2\\. \\*\\*"_s);
        row("Open the Orchard page", u"\\]\\(/project/orchard\\?tab=tasks\\)"_s);
        row("The dashboard of Blue Kettle", u"\\]\\(/dashboard/blue-kettle\\)"_s);
        row("What next?", u"\\n\\nOPTIONS: [^|]+( \\| [^|]+){2}$"_s);
        row("Что дальше?", u"\\n\\nВАРИАНТЫ: [^|]+( \\| [^|]+){2}$"_s);
        row("Explain how work gets done", u"^## .*- \\[x\\] .*\\n> .*\\n---\\n.*\\n```\\n"_s);
        row("Thanks", u"^I have noted that"_s);
        row("Спасибо", u"^Принято"_s);
    }

    void texts() {
        QFETCH(QString, question);
        QFETCH(QString, pattern);
        const Answer answer = ask(question);
        const QRegularExpression wanted(pattern, QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(wanted.match(answer.content).hasMatch(), qPrintable(answer.content));
    }

    /// A link that an answer gives opens a page of this server, for its owner only.
    void linksLeadSomewhere() {
        for (const QString &question : {u"Open the Orchard page"_s, u"Dashboard of Orchard"_s}) {
            const QString content = ask(question).content;
            const qsizetype from = content.indexOf(u"]("_s) + 2;
            const QString path = content.mid(from, content.indexOf(u')', from) - from);
            const Response page = m_client->get(path);
            QCOMPARE(page.status, 200);
            QVERIFY(page.body.contains("<h1>Orchard</h1>"));
            QVERIFY(page.body.contains("Confirm the new tax code"));
            QCOMPARE(Client(m_sandbox->port()).get(path).status, 401);
        }
    }

    void besideTheText() {
        QCOMPARE(ask(u"How many tasks are open?"_s)
                     .metadata.value(u"view"_s)
                     .toObject()
                     .value(u"kind"_s)
                     .toString(),
                 u"bar"_s);
        QCOMPARE(ask(u"Please go ahead"_s).metadata.value(u"confirm_ask"_s), QJsonValue(true));
        QCOMPARE(ask(u"What can you do?"_s).metadata.value(u"choice_options"_s).toArray().size(),
                 3);
        QCOMPARE(ask(u"Hello"_s).metadata.value(u"starters"_s).toArray().size(), 2);
    }

    /// Different answers are made from the same rows.
    void figuresAgree() {
        const QJsonArray report = ask(u"Weekly report"_s).block()[u"items"_s].toArray();
        const auto figure = [&](int i) { return report.at(i).toObject().value(u"value"_s); };
        QCOMPARE(sumOf(ask(u"Rank the projects"_s).points()), figure(0).toDouble());
        const QJsonObject counts =
            ask(u"How many tasks are open?"_s).metadata.value(u"view"_s).toObject();
        QCOMPARE(sumOf(counts.value(u"points"_s).toArray()), figure(1).toDouble());

        double plan = 0;
        double actual = 0;
        for (const QJsonValue &row : ask(u"Are we within budget?"_s).block()[u"rows"_s].toArray()) {
            plan += euroFigure(row.toArray().at(1).toString());
            actual += euroFigure(row.toArray().at(2).toString());
        }
        QCOMPARE(sumOf(ask(u"Where does the money go?"_s).points()), actual);
        QCOMPARE(qRound(actual / plan * 100), figure(3).toInt());
        double stacked = 0;
        for (const QJsonValue &line : ask(u"Spend by project"_s).block()[u"series"_s].toArray())
            stacked += sumOf(line.toObject().value(u"points"_s).toArray());
        QCOMPARE(stacked, actual);
    }

    /// The projects' own figures add up to those of the whole, and an agent sees its own only.
    void scopesNarrow() {
        double sum = 0;
        for (const char *slug :
             {"night-ferry", "paper-lantern", "glasshouse", "orchard", "blue-kettle"}) {
            const QString room = u"/api/v2/projects/%1/chat"_s.arg(QLatin1StringView(slug));
            sum += sumOf(ask(u"Where does the money go?"_s, room).points());
        }
        QCOMPARE(sum, sumOf(ask(u"Where does the money go?"_s).points()));

        const QString ledger = ask(u"What is blocked?"_s, m_client->agentChat(u"Ledger"_s)).content;
        QVERIFY(ledger.contains(u"Send the invoices"_s));
        QVERIFY(!ledger.contains(u"Confirm the new tax code"_s));
        QVERIFY(ask(u"What is blocked?"_s, m_client->agentChat(u"Scout"_s))
                    .content.startsWith(u"Nothing"_s));
    }

    void newProjectHasNothingRecorded() {
        m_client->post(u"/api/v2/projects"_s, {{u"label"_s, u"Empty Quay"_s}});
        const Answer answer =
            ask(u"Where does the money go?"_s, u"/api/v2/projects/empty-quay/chat"_s);
        QVERIFY(answer.content.contains(u"nothing recorded"_s));
        QVERIFY(answer.word().isEmpty());
    }

    void newAgentAnswers() {
        const QString agent =
            m_client
                ->post(u"/api/v2/custom-agents"_s, {{u"name"_s, u"Heron"_s},
                                                    {u"role"_s, u"Research"_s},
                                                    {u"project_slug"_s, u"orchard"_s}})
                .json()
                .value(u"id"_s)
                .toString();
        const QString chat = u"/api/v2/custom-agents/%1/chat"_s.arg(agent);
        QVERIFY(m_client->get(chat).json().value(u"messages"_s).toArray().isEmpty());
        QVERIFY(!ask(u"How was the week?"_s, chat).content.isEmpty());
    }

    void seedVariesTheFigures() {
        QString first;
        for (const QString &seed : {u"7"_s, u"7"_s, u"8"_s}) {
            QTemporaryDir folder;
            SandboxProcess sandbox(folder.path(), {u"--seed"_s, seed});
            Client client(sandbox.port());
            client.signUp(u"seed@example.com"_s);
            const QString content =
                ask(client, u"Where does the money go?"_s, client.kivChat()).content;
            if (first.isEmpty()) {
                first = content;
                QVERIFY(content != ask(u"Where does the money go?"_s).content);
            }
            QCOMPARE(content == first, seed == u"7"_s);
        }
    }

private:
    /// Asks twice: when the second question has an answer, that of the first stands whole.
    static Answer ask(Client &client, const QString &question, const QString &chat) {
        const qint64 asked =
            client.post(chat, {{u"text"_s, question}}).json()[u"message"_s][u"id"_s].toInteger();
        client.post(chat, {{u"text"_s, u"ok"_s}});
        QList<QJsonObject> answers;
        const auto bothCame = [&] {
            answers.clear();
            for (const QJsonValue &row :
                 client.get(chat + u"?limit=4"_s).json()[u"messages"_s].toArray()) {
                if (row[u"id"_s].toInteger() > asked && row[u"role"_s] == u"assistant"_s)
                    answers.append(row.toObject());
            }
            return answers.size() == 2;
        };
        if (!QTest::qWaitFor(bothCame, 10'000))
            return {};
        return {answers.at(0)[u"content"_s].toString(), answers.at(0)[u"metadata"_s].toObject()};
    }

    Answer ask(const QString &question, const QString &chat = {}) {
        return ask(*m_client, question, chat.isEmpty() ? kivChat() : chat);
    }
};

QTEST_GUILESS_MAIN(AnswersTest)
#include "AnswersTest.moc"
