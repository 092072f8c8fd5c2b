#include "Drawn.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

/// The rules of scenes that measure against something: a target, a whole week, a plan.
class PlansTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void status_data() {
        QTest::addColumn<QByteArray>("point");
        QTest::addColumn<QString>("stream"); // percentage, target, good, note; empty for none
        const auto row = [](const char *point, const QString &stream) {
            QTest::newRow(point) << QByteArray(point) << stream;
        };
        row(R"({"label":"a","value":62,"display":"62%","target":70,"hint":"Ann"})",
            u"62 70 0 Ann"_s);
        row(R"({"label":"a","value":0.62,"display":"62%"})", u"62 -1 1 "_s);
        row(R"({"label":"a","value":0.62,"display":"62%","target":70})", u"62 70 0 "_s);
        row(R"({"label":"a","value":0,"display":"0%","target":0.7})", u"0 70 0 "_s);
        row(R"({"label":"a","value":0.62,"display":"0.62%"})", u"1 -1 1 "_s);
        row(R"({"label":"a","value":42,"target":60})", u"70 100 0 42 of 60"_s);
        row(R"j({"label":"a","value":18,"target":20,"display":"18 of 20 (90%)"})j",
            u"90 100 0 18 of 20 (90%)"_s);
        row(R"({"label":"a","value":62,"display":"about 62% of all"})", u"62 -1 1 "_s);
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

    void okr_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("objectives");
        QTest::newRow("points by owner")
            << block("progress", R"([{"label":"a","value":60,"target":80,"owner":"Ann"},
                {"label":"b","value":200,"target":100,"owner":"Ann"},
                {"label":"c","value":0.3,"owner":"Bob"},{"label":"d"}])")
            << QStringList{u"Key results/Ann/0.9/2: a 75 b 200"_s,
                           u"Key results/Bob/0.3/4: c 30"_s};
        QTest::newRow("points by objective and owner")
            << block("progress", R"([{"label":"a","value":60,"target":80,"hint":"Grow · Ann"},
                {"label":"b","value":1,"target":2,"hint":"Save · Ann"}])")
            << QStringList{u"Grow/Ann/0.8/2: a 75"_s, u"Save/Ann/0.5/3: b 50"_s};
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
        QTest::newRow("-5") << -5.0 << -5 << SceneColor::Green;
        QTest::newRow("1e-12") << 1e-12 << 0 << SceneColor::Green;
        QTest::newRow("2 million") << 2e6 << 2'000'000 << SceneColor::Red;
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
        QVERIFY(!drawn("workload", block("bar", R"(["Ann: 50",{"label":" ","value":5},
            {"label":"Cy","value":1e300},"Bob"])")));
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
        row("far over plan", block("bar", R"([{"label":"a","value":1000,"target":0.01},
                {"label":"b","value":199.9,"target":200}])"),
            {u"a 0.01/1\u202f000 +9999900% 0 0.001"_s, u"b 200/199.9 0% 1 20"_s});
        row("a line without a plan",
            block("bar", R"([{"label":"a","value":7},{"label":"b","value":2,"target":4}])"),
            {u"a /7 0% 1 0"_s, u"b 4/2 -50% 1 57.1429"_s});
        row("no plan at all", block("bar", R"(["a: $7"])"), {});
        row("rows in any order",
            R"({"kind":"table","columns":["Line","Actual spend","Planned spend"],
            "rows":[["Ads","$50","$100"],["Tools","n/a","$5"]]})",
            {u"Ads $100/$50 -50% 1 100"_s});
        row("named by the first column",
            R"({"kind":"table","columns":["Line","Result","Lead","Plan","Actual"],
            "rows":[["Ads","ok","Ann","100","50"]]})",
            {u"Ads 100/50 -50% 1 100"_s});
        row("rows without names", R"({"kind":"table","columns":["Line","A","B"],
            "rows":[["Ads","100","50"]]})",
            {u"Ads 100/50 -50% 1 100"_s});
        row("income is no plan", R"({"kind":"table","columns":["Month","Income","Spend"],
            "rows":[["Jan","100","50"]]})",
            {});
        row("Russian figures", R"({"kind":"table","columns":["Статья","План","Факт"],
            "rows":[["Реклама","1,2 млн ₽","1,5 млн ₽"],["Офис","300 тыс. ₽","2 из 3"]]})",
            {u"Реклама 1,2 млн ₽/1,5 млн ₽ +25% 0 80"_s});
        row("letters apart, and codes beside signs",
            R"({"kind":"table","columns":["Line","Plan","Actual"],
            "rows":[["Ads","1.2 M","900 K"],["Tools","$1 M","$1,000,000 USD"],
                    ["Rent","$600 K","600000 USD"],["Office","1000 €","$900"]]})",
            {u"Ads 1.2 M/900 K -25% 1 100"_s, u"Tools $1 M/$1,000,000 USD 0% 1 83.3333"_s,
             u"Rent $600 K/600000 USD 0% 1 50"_s, u"Office 1000 €/$900  1 0"_s});
        row("letters that are units", R"({"kind":"table","columns":["Line","Plan","Actual"],
            "rows":[["Log","1 KB","512 B"],["Cache","1 B","900 M"]]})",
            {u"Log 1 KB/512 B  1 0"_s, u"Cache 1 B/900 M -10% 1 100"_s});
        row("series", R"({"kind":"stacked","series":[{"name":"Actual","points":["Ads: 3"]},
            {"name":"Plan","points":["Ads: 4"]}]})",
            {u"Ads 4/3 -25% 1 100"_s});
        row("two series without a plan", R"({"kind":"stacked","series":[
            {"name":"Ads","points":["Jan: 3"]},{"name":"Tools","points":["Jan: 4"]}]})",
            {});
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
};

QTEST_APPLESS_MAIN(PlansTest)
#include "PlansTest.moc"
