// The pages of the platform: what stands on them, and for whom.

#include "sandbox/ServerTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

/// The words of a page.
QString wordsOf(const Response &page) {
    QString text = QString::fromUtf8(page.body);
    text.remove(QRegularExpression(u"<style>.*</style>|<title>.*</title>"_s,
                                   QRegularExpression::DotMatchesEverythingOption));
    text.replace(QRegularExpression(u"<[^>]*>"_s), u" "_s);
    return text.simplified();
}

} // namespace

class PagesTest : public ServerTest {
    Q_OBJECT

private Q_SLOTS:
    void pages_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("words"); // a pattern
        const auto row = [](const char *path, const QString &words) {
            QTest::newRow(path) << QString::fromLatin1(path) << words;
        };
        row("/project/orchard?tab=tasks",
            u"^Orchard .* 33 open tasks .*Confirm the new tax code"_s);
        row("/project/orchard", u"Confirm the new tax code .*Done lately"_s);
        row("/project/orchard?tab=nothing", u"Confirm the new tax code"_s);
        row("/project/orchard?tab=feed", u"Done 55% Planned by now 72%"_s);
        row("/project/orchard?tab=metrics", u"This week €97,100 4 3 h 25 m"_s);
        row("/project/orchard?tab=finance",
            u"Agent time €6,500 €5,800 −10.8% .*Total €14,300 €14,010 −2.0%"_s);
        row("/project/night-ferry?tab=knowledge", u"guided sign-up"_s);
        row("/project/orchard?tab=settings", u"Address /project/orchard Status active"_s);
        row("/dashboard/orchard",
            u"^Orchard .*Revenue this week €97,100 .*Open tasks 33 .*Confirm the new tax code"_s);
        row("/team/orchard", u"Ledger .* Рассвет"_s);
        row("/p/orchard", u"^Orchard .*Done 55%$"_s);
        row("/agent-profile", u"^Agents .*Compass .*Herald"_s);
        row("/Project/Orchard?tab=finance", u"There is nothing here"_s);
        row("/project/ORCHARD?tab=tasks", u"Confirm the new tax code"_s);
    }

    void pages() {
        QFETCH(QString, path);
        QFETCH(QString, words);
        const Response page = m_client->get(path);
        const QString said = wordsOf(page);
        QVERIFY2(said.contains(QRegularExpression(words)), qPrintable(said));
        // Nobody else reads it: not without a session, not with another account's.
        const Response stranger = Client(m_sandbox->port()).get(path);
        if (page.status == 200) {
            QCOMPARE(stranger.status, 401);
            QVERIFY(wordsOf(stranger).startsWith(u"Sign in first"_s));
        }
    }

    void nothingThere() {
        for (const QString &path : {u"/project/nowhere"_s, u"/team/nowhere"_s}) {
            const Response page = m_client->get(path);
            QCOMPARE(page.status, 404);
            QCOMPARE(wordsOf(page), u"There is no such project."_s);
        }
    }

    /// What a person named is text on the page, whatever it looks like.
    void namesAreText() {
        const QString name = u"<script>alert(1)</script> & Co"_s;
        const QJsonObject made = m_client->post(u"/api/v2/projects"_s, {{u"label"_s, name}}).json();
        const QString slug = made[u"project"_s][u"slug"_s].toString();
        QVERIFY2(!slug.isEmpty(), QJsonDocument(made).toJson());
        const Response page = m_client->get(u"/project/"_s + slug);
        QCOMPARE(page.status, 200);
        QVERIFY(!page.body.contains("<script"));
        QVERIFY(wordsOf(page).contains(name.toHtmlEscaped()));
        Client other(m_sandbox->port());
        other.signUp(u"other@example.com"_s);
        QCOMPARE(other.get(u"/project/"_s + slug).status, 404);
    }
};

QTEST_GUILESS_MAIN(PagesTest)
#include "PagesTest.moc"
