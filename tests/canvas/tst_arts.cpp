#include "canvas/CanvasEngine.h"
#include "canvas/SceneAdapter.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

namespace {

/// The scene of a JSON block, drawn as `art`; nothing when it cannot be.
std::optional<SceneOut> drawn(const char *art, const QByteArray &json) {
    const auto spec = CanvasEngine::spec(*JVal::parse(json), u"key"_s);
    if (!spec)
        return std::nullopt;
    return SceneAdapter::build(*spec, std::nullopt, QString::fromLatin1(art));
}

QByteArray block(const char *kind, const QByteArray &points) {
    return QByteArray(R"({"kind":")") + kind + R"(","points":)" + points + "}";
}

} // namespace

/// The rules of each scene.
class ArtsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decision_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("outcome"); // totals, recommendation, count line
        const auto row =
            [](const char *name, const QByteArray &rows, const QString &outcome) {
                QTest::newRow(name)
                    << R"({"kind":"compare","columns":["Criterion","Build","Buy"],"rows":)" + rows +
                           "}"
                    << outcome;
            };
        row("winner", R"([["Cost",4,8],["Speed",9,"7"],["Note","x","y"]])",
            u"13 15 Buy/15 to 13 2 · from the answer"_s);
        row("tie", R"([["Cost",4,6],["Speed",5,3]])",
            u"9 9 Tie./Build and Buy both score 9. from the answer · even"_s);
        row("fractions", R"([["Cost","4.5","6"],["Speed","0,7","3"]])",
            u"5.2 9 Buy/9 to 5.2 2 · from the answer"_s);
        row("of ten", R"([["Cost","8/10","6/10"],["Speed","7/10","3/10"]])",
            u"15 9 Build/15 to 9 2 · from the answer"_s);
        row("stated total is no criterion", R"([["Cost",4,8],["Speed",9,7],["**Total**",14,15]])",
            u"14 15 Buy/15 to 14 2 · from the answer"_s);
        row("amounts are no scores", R"([["Cost","$400","$800"],["Speed",9,7],["Fit",1,1]])",
            u"  / 2 · from the answer"_s);
        row("third option", R"([["Cost",4,8,1],["Speed",9,7,1]])", QString());
        row("one criterion", R"([["Cost",4,8],["Price","$1","$2"]])", QString());
        row("below zero", R"([["Cost",-4,8],["Speed",9,-7]])", QString());
    }
    void decision() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("decision", json);
        QTEST(scene ? QStringList({scene->totalA, scene->totalB,
                                   scene->recTitle + u'/' + scene->recText, scene->countLine})
                          .join(u' ')
                    : QString(),
              "outcome");
        if (scene)
            QCOMPARE(scene->sub, u"Build vs Buy"_s);
    }

    void agents() {
        const auto scene = drawn("agents", block("timeline", R"([
            {"label":"Draft","owner":"Ann","status":"done"},{"label":"Send","owner":"Bob"},
            {"label":"Check","owner":"Ann","status":"blocked","display":"2 h"},
            {"label":"Wake","meta":"02:10"},{"label":" "}])"));
        QVERIFY(scene);
        QCOMPARE(scene->lanes.size(), 3);
        QCOMPARE(scene->lanes.at(0).tasks.size(), 2);
        QCOMPARE(scene->lanes.at(0).tasks.at(1).title, u"Check · 2 h"_s);
        QCOMPARE(scene->lanes.at(0).tasks.at(1).left, 0.5);
        QCOMPARE(scene->lanes.at(0).tasks.at(1).width, 0.25);
        QCOMPARE(scene->lanes.at(1).tasks.at(0).status, u"unknown"_s);
        QCOMPARE(scene->lanes.at(2).tasks.at(0).title, u"Wake · 02:10"_s);
        QCOMPARE(scene->agentSummary, u"1 done · 1 blocked"_s);
        QCOMPARE(scene->countLine, u"4 events · from the answer"_s);
        QCOMPARE(drawn("agents", block("timeline", R"(["One"])"))->countLine,
                 u"1 event · from the answer"_s);
    }

    void status_data() {
        QTest::addColumn<QByteArray>("point");
        QTest::addColumn<QString>("stream"); // percentage, target, good, note; empty for none
        const auto row = [](const char *point, const QString &stream) {
            QTest::newRow(point) << QByteArray(point) << stream;
        };
        row(R"({"label":"a","value":62,"display":"62%","target":70,"hint":"Ann"})",
            u"62 70 0 Ann"_s);
        row(R"({"label":"a","value":42,"target":60})", u"70 100 0 42 of 60"_s);
        row(R"({"label":"a","value":60,"target":60})", u"100 100 1 60 of 60"_s);
        row(R"({"label":"a","value":0.5,"target":0.8})", u"50 80 0 0.5 of 0.8"_s);
        row(R"({"label":"a","value":0.955})", u"96 -1 1 "_s);
        row(R"({"label":"a","value":40,"status":"stuck"})", u"40 -1 0 "_s);
        row(R"({"label":"a","value":5,"target":0})", u"5 -1 1 5 of 0"_s);
        row(R"({"label":"a","value":2500})", QString());
        row(R"({"label":"a","value":-5})", QString());
        row(R"({"label":"a","value":1e300,"target":5})", QString());
        row(R"({"label":"a"})", QString());
    }
    void status() {
        QFETCH(QByteArray, point);
        const auto scene = drawn("status", block("progress", "[" + point + "]"));
        QString stream;
        if (scene) {
            const Stream &one = scene->streams.at(0);
            stream = u"%1 %2 %3 %4"_s.arg(one.pct).arg(one.target).arg(one.good).arg(one.note);
        }
        QTEST(stream, "stream");
    }

    void statusSummary() {
        const auto scene = drawn("status", block("progress", R"([{"label":"a","value":5,"target":4},
            {"label":"b","value":1,"target":4},{"label":"c","value":50}])"));
        QCOMPARE(scene->statusSummary, u"1 of 2 on track"_s);
        QCOMPARE(scene->countLine, u"3 streams · value against target"_s);
    }

    void funnel() {
        const auto scene = drawn("funnel", block("funnel", R"([{"label":"Visits","value":2000},
            {"value":500},{"label":"Paid","value":3},{"label":"Back","value":-1}])"));
        QVERIFY(scene);
        QCOMPARE(scene->fnStages.size(), 3);
        QCOMPARE(scene->fnStages.at(0).n, u"2\u202f000"_s);
        QCOMPARE(scene->fnStages.at(0).conv, QString());
        QCOMPARE(scene->fnStages.at(1).name, u"Stage 2"_s);
        QCOMPARE(scene->fnStages.at(1).conv, u"25%"_s);
        QCOMPARE(scene->fnStages.at(1).w, 0.25);
        QCOMPARE(scene->fnStages.at(2).conv, u"0.6%"_s);
        QCOMPARE(scene->fnStages.at(2).drop, u"99.4%"_s);
        QVERIFY(scene->fnStages.at(2).last && !scene->fnStages.at(1).last);
        QVERIFY(!drawn("funnel",
                       block("funnel", R"([{"label":"a","value":0},{"label":"b","value":0}])")));
    }

    void unit_data() {
        QTest::addColumn<QByteArray>("points");
        QTest::addColumn<QString>("parts"); // widths and the total; empty for no scene
        const auto row = [](const char *name, const char *points, const QString &parts) {
            QTest::newRow(name) << QByteArray(points) << parts;
        };
        row("amounts",
            R"([{"label":"a","value":30,"display":"$30"},{"label":"b","value":10,"display":"$10"}])",
            u"75 25 = $40"_s);
        row("percentages leave a rest", R"(["a: 50%","b: 30%"])", u"50 30 = "_s);
        row("stated total", R"(["a: 3","b: 1","Total: 4"])", u"75 25 = 4"_s);
        row("more than a whole", R"(["a: 80%","b: 70%"])", QString());
        row("unlike", R"(["a: 80%","b: 7"])", QString());
        row("below zero", R"(["a: 80","b: -7"])", QString());
        row("unknown part", R"(["a: 80","b","c: 3"])", QString());
        row("too large", R"([{"label":"a","value":1e300},{"label":"b","value":1}])", QString());
        row("one part", R"(["a: 80"])", QString());
    }
    void unit() {
        QFETCH(QByteArray, points);
        const auto scene = drawn("unit", block("donut", points));
        QStringList widths;
        for (const UeRow &part : scene.value_or(SceneOut()).ueRows)
            widths.append(QString::number(part.w));
        QTEST(scene ? widths.join(u' ') + u" = "_s + scene->coTotal : QString(), "parts");
    }

    void unitOfKeyFigures() {
        const auto scene = drawn("unit", R"({"kind":"kpi","items":["CAC: $120","LTV: $900"]})");
        QVERIFY(scene && scene->ueRows.isEmpty());
        QCOMPARE(scene->ueKpis.size(), 2);
    }

    void brief() {
        const auto scene = drawn("brief", block("checklist", R"([
            {"label":"Ship","status":"done","owner":"Ann","display":"2 h"},"Plan",
            {"label":"Test","value":"In progress"}])"));
        QVERIFY(scene);
        QStringList columns;
        for (const BriefCol &column : scene->groups)
            columns.append(column.name + u':' + column.items.at(0).text + u'/' +
                           column.items.at(0).meta);
        QCOMPARE(columns, (QStringList{u"Doing:Test/"_s, u"Items:Plan/"_s, u"Done:Ship/Ann"_s}));
        QCOMPARE(scene->countLine, u"3 items · by status"_s);
    }

    void retro() {
        const auto scene = drawn("retro", R"({"kind":"board","columns":[
            {"name":"Well","points":["a","b"]},{"name":"Empty","points":[{"label":""}]},
            {"name":"Ideas","points":["c"]},{"name":"More","points":["d"]}]})");
        QVERIFY(scene);
        QCOMPARE(scene->groups.size(), 3);
        QCOMPARE(scene->groups.at(0).count, 2);
        QCOMPARE(scene->groups.at(1).name, u"Ideas"_s);
        QCOMPARE(scene->groups.at(1).color, SceneColor::Violet);
        QCOMPARE(scene->groups.at(2).color, SceneColor::Green);
        QCOMPARE(scene->countLine, u"3 columns · from the answer"_s);
        QVERIFY(!drawn("retro", R"({"kind":"board","columns":[{"name":"x","points":[""]}]})"));
    }

    void costs_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QList<double>>("lengths");
        QTest::addColumn<qsizetype>("segments");
        const auto row = [](const char *name, const QByteArray &json, const QString &total,
                            const QList<double> &lengths, qsizetype segments) {
            QTest::newRow(name) << json << total << lengths << segments;
        };
        row("dollars", block("bar", R"(["Ads: $0.1","Events: $0.2"])"), u"$0.3"_s, {50, 100}, 2);
        row("stated total", block("bar", R"(["Ads: $1","Events: $2","Total: $3.5"])"), u"$3.5"_s,
            {50, 100}, 2);
        row("temperatures", block("bar", R"([{"label":"Mon","value":-5,"display":"-5 °C"},
            {"label":"Tue","value":10,"display":"10 °C"}])"),
            QString(), {-50, 100}, 0);
        row("percentages", block("bar", R"(["a: 5%","b: 10%"])"), QString(), {50, 100}, 0);
        row("unlike units", block("bar", R"(["a: $5","b: 10 days"])"), QString(), {50, 100}, 0);
        row("plural", block("bar", R"(["a: 1 day","b: 2 days"])"), u"3"_s, {50, 100}, 2);
        row("one holds the other", block("bar", R"(["Revenue: $10","Profit: $5"])"), QString(),
            {100, 50}, 0);
        row("ranking", block("rank", R"(["a: 10","b: 5"])"), QString(), {100, 50}, 0);
        row("without a length",
            block("bar", R"([{"label":"a","value":1e300},{"label":"b"},"c: 2","d: 1"])"), u"3"_s,
            {100, 50}, 2);
        row("key figures",
            R"({"kind":"kpi","unit":"$","items":[{"label":"a","value":4},{"label":"b","value":1}]})",
            u"$5"_s, {100, 25}, 2);
        row("stack",
            R"({"kind":"stacked","series":[{"name":"Ads","points":[{"label":"Jan","value":1},
            {"label":"Feb","value":2}]},{"name":"Events","points":[{"label":"Jan","value":6}]}]})",
            u"9"_s, {50, 100}, 2);
        row("nothing to add", block("bar", R"(["a: 5"])"), QString(), {100}, 0);
    }
    void costs() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("costs", json);
        QVERIFY(scene);
        QTEST(scene->coTotal, "total");
        QList<double> lengths;
        for (const CoRow &row : scene->coRows)
            lengths.append(row.pct);
        QTEST(lengths, "lengths");
        QTEST(scene->coSegs.size(), "segments");
    }

    void costsOfStack() {
        const auto scene = drawn("costs", R"({"kind":"stacked","series":[{"name":"Ads","points":
            [{"label":"Jan","value":1},{"label":"Feb","value":2}]},{"points":[5]}]})");
        QCOMPARE(scene->coRows.at(0).sub, u"Jan – Feb"_s);
        QCOMPARE(scene->coRows.at(1).name, u"Series 2"_s);
        QCOMPARE(scene->coRows.at(1).color, SceneColor::Blue);
        QCOMPARE(scene->countLine, u"2 rows · from the answer"_s);
    }

    void cashflow() {
        const auto scene = drawn("cashflow", R"({"kind":"line","series":[
            {"name":"Costs","points":[{"label":"Jan","value":-50},{"label":"Feb","value":30}]},
            {"name":"Balance","points":[{"label":"Jan","value":100},{"label":"Mar","value":-20}]},
            {"name":"Income","points":[{"label":"Jan","value":80},{"label":"Feb","value":80}]}]})");
        QVERIFY(scene);
        QCOMPARE(scene->cfLow, -25);
        QCOMPARE(scene->cfHigh, 100);
        QCOMPARE(scene->cfMonths.size(), 3);
        QCOMPARE(scene->cfMonths.at(0).inH, 64);
        QCOMPARE(scene->cfMonths.at(0).outH, 40);
        QCOMPARE(scene->cfMonths.at(0).bal, 100);
        QCOMPARE(scene->cfMonths.at(0).balY, 100);
        QCOMPARE(scene->cfLine.size(), 2);
        QCOMPARE(scene->cfLine.at(1).y(), 4);
        QCOMPARE(scene->sub, u"Jan – Mar"_s);
        QCOMPARE(scene->countLine, u"3 periods · from the answer"_s);
    }

    void cashflowOfOneLine_data() {
        QTest::addColumn<QByteArray>("series");
        QTest::addColumn<QString>("lines"); // range and count line
        QTest::newRow("unnamed periods") << QByteArray(R"([{"points":[1,2,3]}])")
                                         << u"First – Last; 3 periods · from the answer"_s;
        QTest::newRow("one of two")
            << QByteArray(R"([{"name":"North","points":[1,2]},{"name":"South","points":[3,4]}])")
            << u"First – Last; 2 periods of North · from the answer"_s;
        QTest::newRow("no figures first")
            << QByteArray(R"([{"name":"x","points":["a"]},{"name":"y","points":["a: 1","b: 2"]}])")
            << u"a – b; 2 periods · from the answer"_s;
        QTest::newRow("one period") << QByteArray(R"([{"points":[1,1e300]}])") << QString();
    }
    void cashflowOfOneLine() {
        QFETCH(QByteArray, series);
        const auto scene = drawn("cashflow", R"({"kind":"area","series":)" + series + "}");
        QTEST(scene ? scene->sub + u"; "_s + scene->countLine : QString(), "lines");
    }

    void okr_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("objectives");
        QTest::newRow("points by owner")
            << block("progress", R"([{"label":"a","value":60,"target":80,"owner":"Ann"},
                {"label":"b","value":200,"target":100,"owner":"Ann"},
                {"label":"c","value":0.3,"owner":"Bob"},{"label":"d"}])")
            << QStringList{u"Key results/Ann/0.9/2: a 75 b 200"_s,
                           u"Key results/Bob/0.3/4: c 30"_s};
        QTest::newRow("rows")
            << QByteArray(
                   R"({"kind":"table","columns":["Objective","Key result","Owner","Result","Target"],
                "rows":[["Grow","Users","Ann","600","1,000"],["Grow","NPS","Ann","40","50"],
                        ["Save","Costs","Bob","?","5"]]})")
            << QStringList{u"Grow/Ann/0.7/2: Users 60 NPS 80"_s};
        QTest::newRow("rows without a column of results")
            << QByteArray(R"({"kind":"table","columns":["Objective","Result","Target"],
                "rows":[["Grow",30,60]]})")
            << QStringList{u"Grow//0.5/3: Grow 50"_s};
        QTest::newRow("nothing measured") << block("progress", R"(["a","b"])") << QStringList{};
    }
    void okr() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("okr", json);
        QStringList objectives;
        for (const OkObj &one : scene.value_or(SceneOut()).okObjs) {
            QString text = u"%1/%2/%3/%4:"_s.arg(one.name, one.owner, one.score)
                               .arg(static_cast<int>(one.scoreColor));
            for (const KeyResult &result : one.krs)
                text += u" %1 %2"_s.arg(result.title).arg(result.pct);
            objectives.append(text);
        }
        QTEST(objectives, "objectives");
    }

    void workload_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("percent");
        QTest::addColumn<SceneColor>("color");
        QTest::newRow("0.95") << 0.95 << 95 << SceneColor::Amber;
        QTest::newRow("1.0") << 1.0 << 100 << SceneColor::Amber;
        QTest::newRow("1.2") << 1.2 << 1 << SceneColor::Green;
        QTest::newRow("89.5") << 89.5 << 90 << SceneColor::Amber;
        QTest::newRow("100.4") << 100.4 << 100 << SceneColor::Amber;
        QTest::newRow("130") << 130.0 << 130 << SceneColor::Red;
        QTest::newRow("0") << 0.0 << 0 << SceneColor::Green;
    }
    void workload() {
        QFETCH(double, value);
        const ViewSpec spec{.kind = u"hbar"_s,
                            .points = {{.label = u" Ann "_s, .value = value, .hint = u"Dev"_s},
                                       {.label = u"Bob"_s, .value = 50}}};
        const auto scene = SceneAdapter::build(spec, u"workload"_s);
        QVERIFY(scene);
        QCOMPARE(scene->wlRows.at(0).name, u"Ann"_s);
        QCOMPARE(scene->wlRows.at(0).role, u"Dev"_s);
        QTEST(scene->wlRows.at(0).pct, "percent");
        QTEST(scene->wlRows.at(0).color, "color");
    }

    void workloadNeedsTwo() {
        QVERIFY(!drawn("workload", block("bar", R"(["Ann: 50",{"label":" ","value":5},"Bob"])")));
        QCOMPARE(drawn("workload", R"({"kind":"kpi","items":["Ann: 50","Bob: 60"]})")->countLine,
                 u"2 people · from the answer"_s);
    }

    void budget_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QByteArray &json, const QStringList &lines) {
            QTest::newRow(name) << json << lines;
        };
        row("around the tolerance", block("bar", R"([{"label":"a","value":110,"target":100},
            {"label":"b","value":111,"target":100},{"label":"c","value":5,"target":0},
            {"label":"d","value":50,"target":200},{"label":"e","value":-1,"target":5}])"),
            {u"a 100/110 +10% 1 50"_s, u"b 100/111 +11% 0 50"_s, u"c 0/5 0% 0 0"_s,
             u"d 200/50 -75% 1 100"_s});
        row("no plan", block("bar", R"(["a: $7"])"), {u"a /$7 0% 1 0"_s});
        row("rows in any order",
            R"({"kind":"table","columns":["Line","Actual spend","Planned spend"],
            "rows":[["Ads","$50","$100"],["Tools","n/a","$5"]]})",
            {u"Ads $100/$50 -50% 1 100"_s});
        row("rows without names", R"({"kind":"table","columns":["Line","A","B"],
            "rows":[["Ads","100","50"]]})",
            {u"Ads 100/50 -50% 1 100"_s});
        row("income is no plan", R"({"kind":"table","columns":["Month","Income","Spend"],
            "rows":[["Jan","100","50"]]})",
            {u"Jan /50 0% 1 0"_s});
        row("series", R"({"kind":"stacked","series":[{"name":"Actual","points":["Ads: 3"]},
            {"name":"Plan","points":["Ads: 4"]}]})",
            {u"Ads 4/3 -25% 1 100"_s});
        row("nothing spent", block("bar", R"([{"label":"a","target":100}])"), {});
    }
    void budget() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("budget", json);
        QStringList lines;
        for (const BgRow &one : scene.value_or(SceneOut()).bgRows) {
            QCOMPARE(one.fill, one.deltaGood ? SceneColor::Blue : SceneColor::Red);
            lines.append(u"%1 %2/%3 %4 %5 %6"_s.arg(one.name, one.plan, one.actual, one.delta)
                             .arg(one.deltaGood)
                             .arg(one.planPct));
        }
        QTEST(lines, "lines");
    }

    void everyArtNamesItself() {
        const ViewSpec spec{
            .kind = u"bar"_s,
            .points = {{.label = u"a"_s, .value = 1}, {.label = u"b"_s, .value = 2}},
            .series = {{u"s"_s, {{.label = u"a"_s, .value = 1}, {.label = u"b"_s, .value = 2}}}},
            .items = {{.label = u"a"_s, .value = 1}},
            .columns = {u"c"_s, u"x"_s, u"y"_s},
            .rows = {{u"a"_s, u"1"_s, u"2"_s}, {u"b"_s, u"3"_s, u"4"_s}},
            .boardCols = {{u"b"_s, {{.label = u"card"_s}}}}};
        for (const QString &art : CanvasEngine::knownArts()) {
            const auto scene = SceneAdapter::build(spec, std::nullopt, art);
            QVERIFY2(scene, qPrintable(art));
            QCOMPARE(scene->art, art);
            QVERIFY(!scene->title.isEmpty() && !scene->countLine.isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(ArtsTest)
#include "tst_arts.moc"
