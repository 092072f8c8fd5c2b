#include "canvas/ArtInfo.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SpecReader.h"

#include <QMetaProperty>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

namespace {

std::optional<SceneOut> sceneOf(const char *json, const QString &art = {}) {
    const auto spec = CanvasEngine::spec(*JVal::parse(json), u"key"_s);
    if (!spec)
        return std::nullopt;
    return SceneAdapter::build(*spec, std::nullopt,
                               art.isEmpty() ? std::nullopt : std::optional(art));
}

} // namespace

/// From a view to what is drawn.
class ScenesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void report() {
        const auto scene = sceneOf(R"({"kind":"kpi","title":" Week 12 ","unit":"$","items":[
            {"label":"Revenue","value":12000,"delta":"+12%"},
            {"label":"Cost","value":-1500.5,"delta":-3.5},
            {"label":"Cash","value":1,"display":"1 month","delta":"4"},
            "All on track"],"rows":[["Best week","","of May"]],"points":["Ads: 5"]})");
        QVERIFY(scene);
        QCOMPARE(scene->art, u"report"_s);
        QCOMPARE(scene->title, u"Week 12"_s);
        QCOMPARE(scene->countLine, u"3 · from the answer"_s);
        QCOMPARE(scene->kpiCards.size(), 3);
        QCOMPARE(scene->kpiCards.at(0).value, u"$12\u202f000"_s);
        QCOMPARE(scene->kpiCards.at(0).tone(), Tone::Good);
        QCOMPARE(scene->kpiCards.at(1).value, u"−$1\u202f500.5"_s);
        QCOMPARE(scene->kpiCards.at(1).delta, u"−3.5"_s);
        QCOMPARE(scene->kpiCards.at(1).tone(), Tone::Good);
        QCOMPARE(scene->kpiCards.at(2).value, u"1 month"_s);
        QCOMPARE(scene->kpiCards.at(2).tone(), Tone::Neutral);
        QCOMPARE(scene->highlights,
                 (QStringList{u"All on track"_s, u"Best week · of May"_s, u"Ads: 5"_s}));

        ViewSpec many{.kind = u"kpi"_s, .items = {61, {.label = u"a"_s, .value = 1}}};
        many.items.last() = {.label = u"z"_s, .value = 2, .delta = u"+1"_s};
        const auto bounded = SceneAdapter::vals(many, std::nullopt);
        QCOMPARE(bounded->kpiCards.size(), 60);
        QCOMPARE(bounded->highlights, QStringList{u"z: 2 (+1)"_s});
        QCOMPARE(bounded->countLine, u"61 · from the answer"_s);
        QVERIFY(!SceneAdapter::build(many, std::nullopt, u"unit"_s));
    }

    void tones_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("delta");
        QTest::addColumn<Tone>("tone");
        QTest::newRow("more") << u"Releases"_s << u"+5"_s << Tone::Good;
        QTest::newRow("less") << u"Releases"_s << u"\u22125"_s << Tone::Bad;
        QTest::newRow("more of what should be few") << u"Overdue tasks"_s << u"+3"_s << Tone::Bad;
        QTest::newRow("less of it") << u"Median first reply"_s << u"-9 m"_s << Tone::Good;
        QTest::newRow("Russian") << u"Расходы"_s << u"+3%"_s << Tone::Bad;
        QTest::newRow("arrow") << u"Releases"_s << u"↑ 5"_s << Tone::Good;
        QTest::newRow("dash") << u"Releases"_s << u"–5"_s << Tone::Bad;
        QTest::newRow("no sign") << u"Overdue tasks"_s << u"3 more"_s << Tone::Neutral;
    }
    void tones() {
        QFETCH(QString, label);
        QFETCH(QString, delta);
        ViewSpec spec;
        spec.kind = u"kpi"_s;
        spec.items = {{.label = label, .value = 1, .delta = delta}};
        QTEST(SceneAdapter::vals(spec, std::nullopt)->kpiCards.first().tone(), "tone");
    }

    void compareRows() {
        const auto scene = sceneOf(R"({"kind":"table","columns":["Name","Plan"],
            "rows":[["Only"],[],["A","5%","fast","",1,"x"]]})");
        QVERIFY(scene);
        QCOMPARE(scene->title, u"Comparison"_s);
        QCOMPARE(scene->countLine, u"2 columns · 3 rows · from the answer"_s);
        QCOMPARE(scene->cpRows.at(0).name, u"Only"_s);
        QCOMPARE(scene->cpRows.at(0).cells, QStringList(4, QString()));
        QCOMPARE(scene->cpRows.at(1).name, QString());
        QCOMPARE(scene->cpRows.at(1).numeric, QList<bool>(4, false));
        QCOMPARE(scene->cpRows.at(2).cells.size(), 5);
        QCOMPARE(scene->cpRows.at(2).numeric, (QList<bool>{true, false, false, true, false}));
    }

    void comparePoints() {
        const auto scene = sceneOf(
            R"({"kind":"rank","points":[{"label":"A","value":0,"owner":"Ann"},{"label":"B"}]})");
        QVERIFY(scene);
        QCOMPARE(scene->art, u"compare"_s);
        QCOMPARE(scene->cpCols, (QStringList{u"Name"_s, u"Value"_s, u"Note"_s}));
        QCOMPARE(scene->cpRows.at(0).cells.first(2), (QStringList{u"0"_s, u"Ann"_s}));
    }

    /// An answer that lacks what the question asks for is drawn as it would be unasked: its figures
    /// have left the chat.
    void lessThanAskedFor_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("intent");
        QTest::addColumn<QString>("art");
        QTest::newRow("spending without a plan")
            << QByteArray(R"({"kind":"stacked","series":[{"name":"Ads","points":["May: $5"]},
                {"name":"Tools","points":["May: $7"]}]})")
            << u"budget"_s << u"costs"_s;
        QTest::newRow("the load of one")
            << QByteArray(R"({"kind":"hbar","points":["Ann: 50"]})") << u"workload"_s << u"costs"_s;
        QTest::newRow("costs without figures")
            << QByteArray(R"({"kind":"kpi","items":["All is well"]})") << u"costs"_s << u"report"_s;
    }
    void lessThanAskedFor() {
        QFETCH(QByteArray, json);
        QFETCH(QString, intent);
        const auto spec = CanvasEngine::spec(*JVal::parse(json), QString());
        const auto scene = SceneAdapter::vals(*spec, intent);
        QVERIFY(scene);
        QTEST(scene->art, "art");
        QVERIFY(!SceneAdapter::build(*spec, intent));
    }

    void noChoiceOfTwoIsATable() {
        const char *three = R"({"kind":"compare","columns":["Criterion","A","B","C"],
            "rows":[["Cost",4,8,1],["Speed",9,7,1]]})";
        QCOMPARE(sceneOf(three)->art, u"compare"_s);
        QCOMPARE(sceneOf(three)->cpRows.size(), 2);
        QVERIFY(!sceneOf(three, u"decision"_s));
    }

    void nothingToDraw() {
        QVERIFY(!sceneOf(R"({"kind":"choice","options":["a","b"]})"));
        QVERIFY(!sceneOf(R"({"kind":"kpi","items":["a: 1"]})", u"nothing"_s));
        QVERIFY(!sceneOf(R"({"kind":"kpi","items":[{"label":" "}]})"));
        QVERIFY(!sceneOf(R"({"kind":"kpi","items":["a: 1"]})", u"compare"_s));
    }

    void viewsReadEveryRow() {
        const auto scene = sceneOf(R"({"kind":"kpi","items":["a: 1"]})");
        const auto *meta = &SceneOut::staticMetaObject;
        const QVariant cards =
            meta->property(meta->indexOfProperty("kpiCards")).readOnGadget(&*scene);
        const auto list = cards.value<QList<KpiCard>>();
        const auto *cardMeta = &KpiCard::staticMetaObject;
        QCOMPARE(cardMeta->property(cardMeta->indexOfProperty("value")).readOnGadget(&list.at(0)),
                 QVariant(u"1"_s));
        QVERIFY(!cardMeta->property(cardMeta->indexOfProperty("deltaGood"))
                     .readOnGadget(&list.at(0))
                     .isValid());
    }

    void followups() {
        const auto ask = [](const char *json, const QString &art) {
            QStringList questions;
            for (const CanvasFollowup &one : followupsOf(*sceneOf(json, art)))
                questions.append(one.send);
            return questions.join(u' ');
        };
        const char *bars = R"({"kind":"bar","points":[{"label":"a","value":50,"target":100},
            {"label":"b","value":150,"target":100}]})";
        QCOMPARE(ask(bars, u"budget"_s), u"Why is b over plan?"_s);
        QCOMPARE(ask(bars, u"status"_s), u"What is holding a back?"_s);
        QCOMPARE(ask(bars, u"workload"_s), u"Who can take work from b?"_s);
        QCOMPARE(ask(bars, u"costs"_s), u"Tell me about b"_s);
        QCOMPARE(ask(R"({"kind":"funnel","points":["a: 9","b: 8","c: 1"]})", u"funnel"_s),
                 u"Why do so few reach c?"_s);
        QCOMPARE(ask(bars, u"compare"_s), QString());
    }

    void caption() {
        const ViewSpec spec{.kind = u"kpi"_s, .title = u"Week"_s};
        const QList<ReplyChip> chips{{.label = u"a"_s, .send = u"b"_s}};
        const ArtInfo waiting = ArtInfoFactory::make(u"cashflow"_s, spec, std::nullopt, chips);
        QCOMPARE(waiting.word, u"Cash flow"_s);
        QCOMPARE(waiting.title, u"Week"_s);
        QCOMPARE(waiting.chips, chips);
        const ArtInfo drawn = ArtInfoFactory::make(
            u"report"_s, spec, SceneOut{.title = u"T"_s, .countLine = u"C"_s}, {});
        QCOMPARE(drawn.title, u"T"_s);
        QCOMPARE(drawn.countLine, u"C"_s);
    }
};

QTEST_APPLESS_MAIN(ScenesTest)
#include "ScenesTest.moc"
