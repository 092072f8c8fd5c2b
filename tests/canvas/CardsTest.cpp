#include "Drawn.h"
#include "canvas/ArtChoice.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

/// The rules of scenes made of cards, rows and lanes.
class CardsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decision_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("outcome"); // totals, recommendation, most, count line
        const auto row =
            [](const char *name, const QByteArray &rows, const QString &outcome) {
                QTest::newRow(name)
                    << R"({"kind":"compare","columns":["Criterion","Build","Buy"],"rows":)" + rows +
                           "}"
                    << outcome;
            };
        row("winner", R"([["Cost",4,8],["Speed",9,"7"],["Note","x","y"]])",
            u"13 15 Buy/15 to 13 of 9 2 · from the answer"_s);
        row("tie", R"([["Cost",4,6],["Speed",5,3]])",
            u"9 9 Tie./Build and Buy both score 9. of 6 from the answer · even"_s);
        row("fractions", R"([["Cost","4.5","6"],["Speed","0,7","3"]])",
            u"5.2 9 Buy/9 to 5.2 of 6 2 · from the answer"_s);
        row("of ten", R"([["Cost","8/10","6/10"],["Speed","7/10","3/10"]])",
            u"15 9 Build/15 to 9 of 10 2 · from the answer"_s);
        row("stated total is no criterion", R"([["Cost",4,8],["Speed",9,7],["**Total**",14,15]])",
            u"14 15 Buy/15 to 14 of 9 2 · from the answer"_s);
        row("amounts are no scores", R"([["Cost","$400","$800"],["Speed",9,7],["Fit",1,1]])",
            u"  / of 9 2 · from the answer"_s);
        row("third option", R"([["Cost",4,8,1],["Speed",9,7,1]])", QString());
        row("one criterion", R"([["Cost",4,8],["Price","$1","$2"]])", QString());
        row("below zero", R"([["Cost",-4,8],["Speed",9,-7]])", QString());
    }
    void decision() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("decision", json);
        QTEST(scene ? QStringList({scene->totalA, scene->totalB,
                                   scene->recTitle + u'/' + scene->recText,
                                   u"of "_s + QString::number(scene->scoreMost), scene->countLine})
                          .join(u' ')
                    : QString(),
              "outcome");
        if (scene && !scene->recTitle.isEmpty() && !scene->tie)
            QCOMPARE(scene->recTitle, scene->better == Option::A ? scene->optionA : scene->optionB);
        if (scene)
            QCOMPARE(scene->optionA + u'|' + scene->optionB + u'|' + scene->sub,
                     u"Build|Buy|Build vs Buy"_s);
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

    void agentsInOrder_data() {
        QTest::addColumn<QByteArray>("owners");
        QTest::addColumn<QString>("places"); // lane by lane, in steps of the common width
        QTest::newRow("in turns") << QByteArray("abacb") << u"0 2/1 4/3 of 5"_s;
        QTest::newRow("one after the other") << QByteArray("aabccc") << u"0 1/0/0 1 2 of 3"_s;
        QTest::newRow("one event each") << QByteArray("abc") << u"0/1/2 of 3"_s;
        QTest::newRow("one lane") << QByteArray("aaa") << u"0 1 2 of 3"_s;
    }
    void agentsInOrder() {
        QFETCH(QByteArray, owners);
        QByteArrayList points;
        for (const char owner : owners)
            points.append(QByteArray(R"({"label":"x","owner":")") + owner + "\"}");
        const auto scene = drawn("agents", block("timeline", '[' + points.join(',') + ']'));
        QStringList lanes;
        const double width = scene->lanes.first().tasks.first().width;
        for (const Lane &lane : scene->lanes) {
            QStringList places;
            for (const LaneTask &task : lane.tasks)
                places.append(QString::number(task.left / width));
            lanes.append(places.join(u' '));
        }
        QTEST(lanes.join(u'/') + u" of "_s + QString::number(1 / width), "places");
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

QTEST_APPLESS_MAIN(CardsTest)
#include "CardsTest.moc"
