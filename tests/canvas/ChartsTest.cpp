#include "Drawn.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

/// The rules of scenes whose lengths are figures: stages, parts, bars and lines.
class ChartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
        const auto widths = [](const QByteArray &points) {
            const auto drawing = drawn("funnel", block("funnel", points));
            QStringList list;
            for (const FnStage &stage : drawing->fnStages)
                list.append(QString::number(stage.w));
            return list.join(u' ');
        };
        QCOMPARE(widths(R"(["Ads: 40","Visits: 80","Paid: 10"])"), u"1 1 0.25"_s);
        QCOMPARE(widths(R"(["Ads: 0","Visits: 80","Paid: 10"])"), u"0 1 0.125"_s);
    }

    void unit_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("parts"); // widths, total and its unit; empty for no scene
        const auto row = [](const char *name, const char *points, const QString &parts) {
            QTest::newRow(name) << block("donut", points) << parts;
        };
        const auto inUnit = [](const char *unit, const QString &parts) {
            QByteArray json = R"({"kind":"donut","unit":"UNIT","points":["a: 3","b: 1"]})";
            QTest::newRow(unit) << json.replace("UNIT", unit) << parts;
        };
        inUnit("hours", u"75 25 = 4 hours"_s);
        inUnit("per invoice", u"75 25 = 4 per invoice"_s);
        inUnit("$", u"75 25 = $4"_s);
        inUnit("$/mo", u"75 25 = $4/mo"_s);
        row("amounts",
            R"([{"label":"a","value":30,"display":"$30"},{"label":"b","value":10,"display":"$10"}])",
            u"75 25 = $40"_s);
        row("shares beside amounts", R"j([{"label":"a","value":640,"display":"$640 (64%)"},
            {"label":"b","value":360,"display":"$360 (36%)"}])j",
            u"64 36 = $1\u202f000"_s);
        row("percentages leave a rest", R"(["a: 50%","b: 30%"])", u"50 30 = "_s);
        row("stated total", R"(["a: 3","b: 1","Total: 4"])", u"75 25 = 4"_s);
        row("more than a whole", R"(["a: 80%","b: 70%"])", QString());
        row("unlike", R"(["a: 80%","b: 7"])", QString());
        row("below zero", R"(["a: 80","b: -7"])", QString());
        row("fractions beside percentages",
            R"([{"label":"a","value":0.5,"display":"50%"},{"label":"b","value":0.3,"display":"30%"}])",
            u"50 30 = "_s);
        row("unknown part", R"(["a: 80","b","c: 3"])", QString());
        row("too large", R"([{"label":"a","value":1e300},{"label":"b","value":1}])", QString());
        row("one part", R"(["a: 80"])", QString());
    }
    void unit() {
        QFETCH(QByteArray, json);
        const auto scene = drawn("unit", json);
        QStringList widths;
        for (const UeRow &part : scene.value_or(SceneOut()).ueRows)
            widths.append(QString::number(part.w));
        QString parts;
        if (scene)
            parts = widths.join(u' ') + u" = "_s + scene->coTotal;
        if (scene && !scene->coTotalSub.isEmpty())
            parts += u' ' + scene->coTotalSub;
        QTEST(parts, "parts");
    }

    void unitOfKeyFigures() {
        const auto scene = drawn("unit", R"({"kind":"kpi","items":["CAC: $120","LTV: $900"]})");
        QVERIFY(scene && scene->ueRows.isEmpty());
        QCOMPARE(scene->ueKpis.size(), 2);
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
        row("stages", block("bar", R"(["Visitors: 100","Sign-ups: 50"])"), QString(), {100, 50}, 0);
        row("prices", R"({"kind":"bar","title":"Price per seat","points":["a: $10","b: $5"]})",
            QString(), {100, 50}, 0);
        row("scores", R"({"kind":"bar","unit":"/10","points":["a: 8","b: 4"]})", QString(),
            {100, 50}, 0);
        row("rate", R"({"kind":"bar","unit":"$/mo","points":["a: 8","b: 4"]})", u"$12/mo"_s,
            {100, 50}, 2);
        row("Russian plurals", block("bar", R"(["a: 21 задача","b: 42 задачи"])"), u"63"_s,
            {50, 100}, 2);
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
        row("several lines",
            R"({"kind":"line","series":[{"name":"In","points":["May: 6"]},{"name":"Out","points":["May: 3"]}]})",
            QString(), {100, 50}, 0);
        row("balances",
            R"({"kind":"line","series":[{"name":"Balance","points":["May: 6","June: 3"]}]})",
            QString(), {100, 50}, 0);
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
        QCOMPARE(scene->coRows.at(0).sub, u"Jan, Feb"_s);
        QCOMPARE(scene->coRows.at(1).name, u"Series 2"_s);
        QCOMPARE(scene->coRows.at(1).color, SceneColor::Blue);
        QCOMPARE(scene->countLine, u"2 rows · from the answer"_s);
    }

    void cashflow() {
        const auto scene = drawn("cashflow", R"({"kind":"line","series":[
            {"name":"Cost of income in $",
                "points":[{"label":"Jan","value":-50},{"label":"Feb","value":30}]},
            {"name":"Balance in $","points":[{"label":"Jan","value":100,"display":"$100"},
                {"label":"Mar","value":-20}]},
            {"name":"Income","points":[{"label":"Jan","value":80},{"label":"Feb","value":80}]}]})");
        QVERIFY(scene);
        QCOMPARE(scene->cfLow, -25);
        QCOMPARE(scene->cfHigh, 100);
        QCOMPARE(scene->cfMonths.size(), 3);
        QCOMPARE(scene->cfMonths.at(0).inH, 64);
        QCOMPARE(scene->cfMonths.at(0).outH, 40);
        QCOMPARE(scene->cfMonths.at(0).bal, 100);
        QCOMPARE(scene->cfMonths.at(0).balY, 100);
        QStringList shown;
        for (const CfMonth &month : scene->cfMonths)
            shown.append(month.in + u'/' + month.out + u'/' + month.balance);
        QCOMPARE(shown, (QStringList{u"80/−50/$100"_s, u"80/30/"_s, u"//−20"_s}));
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
};

QTEST_APPLESS_MAIN(ChartsTest)
#include "ChartsTest.moc"
