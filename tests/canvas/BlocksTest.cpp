#include "canvas/AnswerBlock.h"
#include "canvas/AnswerReading.h"
#include "canvas/ArtChoice.h"
#include "canvas/RestoredCanvas.h"
#include "canvas/SpecReader.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

namespace {

QString fenced(const QString &language, const QString &body) {
    return u"```%1\n%2\n```"_s.arg(language, body);
}

std::optional<ViewSpec> specOf(const char *json) {
    return CanvasEngine::spec(*JVal::parse(json), u"key"_s);
}

QList<ViewSpec::Point> pointsWith(const QList<double> &values) {
    QList<ViewSpec::Point> points;
    for (const double value : values)
        points.append({.label = u"p"_s, .value = value});
    return points;
}

} // namespace

/// From an answer's block to the art that draws it.
class BlocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void kpiArray() {
        const auto answer = CanvasEngine::extractViewSpec(
            fenced(u"KPI"_s, u"[\"**Revenue**: $1,200\", \"Users — 3k\"]"_s));
        QVERIFY(answer.spec);
        QCOMPARE(answer.text, QString());
        QCOMPARE(answer.spec->kind, u"kpi"_s);
        QCOMPARE(answer.spec->items.size(), 2);
        QCOMPARE(answer.spec->items.at(0).label, u"Revenue"_s);
        QCOMPARE(answer.spec->items.at(0).display, u"$1,200"_s);
        QCOMPARE(answer.spec->items.at(0).value, 1200.0);
        QCOMPARE(answer.spec->items.at(1).label, u"Users"_s);
        QCOMPARE(answer.spec->items.at(1).value, 3000.0);
    }

    void textLeft_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kind");
        const QString bars = u"{\"kind\":\"bar\",\"points\":[{\"label\":\"a\",\"value\":1}]}"_s;
        const QString block = fenced(u"view"_s, bars);
        QTest::newRow("between paragraphs")
            << u"One.\n\n"_s + block + u"\n\nTwo."_s << u"One.\n\nTwo."_s << u"bar"_s;
        QTest::newRow("CR LF") << u"One.\r\n```view\r\n"_s + bars + u"\r\n```\r\nTwo."_s
                               << u"One.\r\n\r\nTwo."_s << u"bar"_s;
        QTest::newRow("second block stays")
            << block + fenced(u"kpi"_s, u"[1]"_s) << fenced(u"kpi"_s, u"[1]"_s) << u"bar"_s;
        QTest::newRow("broken JSON stays") << u"Hi\n```chart\n{\"kind\":\n```\n"_s
                                           << u"Hi\n```chart\n{\"kind\":\n```"_s << QString();
        QTest::newRow("not renderable stays")
            << fenced(u"view"_s, u"{\"type\":\"Table\",\"columns\":[\"a\"],\"rows\":[]}"_s)
            << fenced(u"view"_s, u"{\"type\":\"Table\",\"columns\":[\"a\"],\"rows\":[]}"_s)
            << QString();
        QTest::newRow("array of a view block stays")
            << fenced(u"view"_s, u"[\"a: 1\"]"_s) << fenced(u"view"_s, u"[\"a: 1\"]"_s)
            << QString();
        QTest::newRow("still open") << u"```view\n"_s + bars << u"```view\n"_s + bars << QString();
        QTest::newRow("other language")
            << fenced(u"json"_s, bars) << fenced(u"json"_s, bars) << QString();
        QTest::newRow("words after the language")
            << fenced(u"view it"_s, bars) << fenced(u"view it"_s, bars) << QString();
        QTest::newRow("kpi object without a kind")
            << fenced(u"kpi"_s, u"{\"items\":[{\"name\":\"a\",\"value\":1}]}"_s) << QString()
            << u"kpi"_s;
        QTest::newRow("kpi object of another kind")
            << fenced(u"kpi"_s, bars) << QString() << u"bar"_s;
    }
    void textLeft() {
        QFETCH(QString, answer);
        QFETCH(QString, kind);
        const auto read = CanvasEngine::extractViewSpec(answer);
        QTEST(read.text, "text");
        QCOMPARE(read.spec ? read.spec->kind : QString(), kind);
    }

    void closedFence() {
        QVERIFY(!CanvasEngine::closedFenceRe().contains(u"```view\n{}"));
        QVERIFY(CanvasEngine::closedFenceRe().contains(u"a ``` VIEW \t\r\n{}```"));
    }

    void whole_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isWhole");
        const QString list = u"- a: 1\n- b: 2"_s;
        const QString table = u"| a | b |\n|---|---|\n| x | y |"_s;
        QTest::newRow("block") << u"```kpi\n[\"a: 1\"]\n```"_s << true;
        QTest::newRow("list") << list << false;
        QTest::newRow("list behind an unreadable block") << u"```kpi\n[\n```\n"_s + list << false;
        QTest::newRow("table") << table << false;
        QTest::newRow("table and more") << table + u"\nSo"_s << true;
    }
    /// What may still grow is not drawn before the answer ends.
    void whole() {
        QFETCH(QString, text);
        const AnswerReading reading = readAnswer(text);
        QVERIFY(reading.spec);
        QTEST(reading.isWhole, "isWhole");
    }

    void structuredView() {
        const auto view = JVal::parse(R"({"kind":"hbar","points":["Ads: 5","Events: 7"]})");
        const QString broken = u"Text\n```view\n{\n```"_s;
        const auto answer = CanvasEngine::extractViewSpec(broken, view);
        QCOMPARE(answer.text, broken);
        QVERIFY(answer.spec);
        QCOMPARE(answer.spec->kind, u"hbar"_s);
        QCOMPARE(answer.spec->jsonKey, view->canonical());
        const auto own = CanvasEngine::extractViewSpec(fenced(u"kpi"_s, u"[\"a: 1\"]"_s), view);
        QCOMPARE(own.spec->kind, u"kpi"_s);
    }

    void renderable_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("drawn");
        const auto row = [](const char *json, bool drawn) {
            QTest::newRow(json) << QByteArray(json) << drawn;
        };
        row(R"({"points":["a"]})", false);
        row(R"({"kind":"kpi","items":[]})", false);
        row(R"({"kind":"compare","columns":["a"],"rows":[["x"]]})", false);
        row(R"({"kind":"compare","columns":["a","b"],"rows":[["x"]]})", true);
        row(R"({"kind":"choice","options":["a"]})", false);
        row(R"({"kind":"choice","options":["a",1,"b"]})", true);
        row(R"({"kind":"line","points":[1,2]})", false);
        row(R"({"kind":"line","series":[{"points":[]},{"points":[1]}]})", true);
        row(R"({"kind":"board","columns":["a",{"name":"b","points":[]}]})", false);
        row(R"({"kind":"board","columns":[{"name":"b","points":["c"]}]})", true);
        row(R"({"kind":"gauge","points":["a"]})", true);
        row(R"({"kind":3,"type":"Bar","points":["a"]})", true);
        row(R"([1])", false);
    }
    void renderable() {
        QFETCH(QByteArray, json);
        QTEST(specOf(json).has_value(), "drawn");
    }

    void fieldsOfTheWrongType() {
        const auto spec = specOf(R"({"kind":"TABLE","title":5,"unit":"$","art":" okr ",
            "columns":["Name",7,{"label":"Plan"},{}],"points":{"a":1},"options":"x",
            "rows":[["Ads",1234.5,null,true,5],"text",[-1200000]]})");
        QVERIFY(spec);
        QCOMPARE(spec->kind, u"table"_s);
        QVERIFY(!spec->title);
        QCOMPARE(spec->declaredArt, u"okr"_s);
        QCOMPARE(spec->columns, (QStringList{u"Name"_s, u"Plan"_s, u"Column 3"_s}));
        QCOMPARE(spec->rows,
                 (QList<QStringList>{{u"Ads"_s, u"1\u202f234.5"_s, QString(), u"1"_s, u"5"_s},
                                     {u"-1200000"_s}}));
        QVERIFY(spec->points.isEmpty() && spec->options.isEmpty());
    }

    void points_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<ViewSpec::Point>("point");
        using Point = ViewSpec::Point;
        QTest::newRow("everything")
            << QByteArray(R"({"name":"A","value":"$1.5k","display":"1.5k","target":"2k",
                              "status":"In progress","owner":"Ann"})")
            << Point{u"A"_s, 1500.0, u"1.5k"_s, 2000.0, u"doing"_s, u"Ann"_s};
        QTest::newRow("value that is a status")
            << QByteArray(R"({"label":1,"title":"T","value":"Shipped"})")
            << Point{u"T"_s, std::nullopt, std::nullopt, std::nullopt, u"done"_s, std::nullopt};
        QTest::newRow("unknown status word falls to the value")
            << QByteArray(R"({"text":"T","status":"?","value":"pending"})")
            << Point{u"T"_s, std::nullopt, std::nullopt, std::nullopt, u"todo"_s, std::nullopt};
        QTest::newRow("boolean is a number")
            << QByteArray(R"({"label":"T","value":true})")
            << Point{u"T"_s, 1.0, std::nullopt, std::nullopt, std::nullopt, std::nullopt};
        QTest::newRow("string") << QByteArray(R"("A: b – 5")")
                                << Point{u"A: b"_s,    5.0,          u"5"_s,
                                         std::nullopt, std::nullopt, std::nullopt};
        QTest::newRow("string with a status")
            << QByteArray(R"("Ship — done")")
            << Point{u"Ship"_s, std::nullopt, u"done"_s, std::nullopt, u"done"_s, std::nullopt};
        QTest::newRow("null") << QByteArray("null") << Point{};
    }
    void points() {
        QFETCH(QByteArray, json);
        QFETCH(ViewSpec::Point, point);
        QVERIFY(CanvasEngine::point(*JVal::parse(json)) == point);
    }

    void items_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<ViewSpec::Item>("item");
        using Item = ViewSpec::Item;
        QTest::newRow("object") << QByteArray(R"({"name":"A","value":"3b","delta":-2})")
                                << Item{u"A"_s, 3e9, std::nullopt, u"-2"_s};
        QTest::newRow("no label") << QByteArray(R"({"value":2,"display":"two","delta":"+5%"})")
                                  << Item{u"Metric"_s, 2.0, u"two"_s, u"+5%"_s};
        QTest::newRow("string without a figure")
            << QByteArray(R"("[Just](x) text")")
            << Item{u"Just text"_s, std::nullopt, std::nullopt, std::nullopt};
    }
    void items() {
        QFETCH(QByteArray, json);
        QFETCH(ViewSpec::Item, item);
        QVERIFY(CanvasEngine::item(*JVal::parse(json)) == item);
    }

    void art_data() {
        QTest::addColumn<ViewSpec>("spec");
        QTest::addColumn<QString>("intent");
        QTest::addColumn<QString>("art");
        const auto row = [](const char *name, const ViewSpec &spec, const QString &intent,
                            const QString &art) { QTest::newRow(name) << spec << intent << art; };
        ViewSpec bar{.kind = u"bar"_s, .points = pointsWith({1, 2})};
        row("default", bar, QString(), u"costs"_s);
        row("intent among the alternatives", bar, u"workload"_s, u"workload"_s);
        row("intent outside them", bar, u"okr"_s, u"costs"_s);
        row("intent without an art", {.kind = u"hbar"_s}, u"week"_s, u"costs"_s);
        bar.declaredArt = u"budget"_s;
        row("declared", bar, QString(), u"budget"_s);
        row("intent wins over declared", bar, u"compare"_s, u"compare"_s);
        bar.declaredArt = u"retro"_s;
        row("declared outside the alternatives", bar, QString(), u"costs"_s);
        row("no kind: any art", {.declaredArt = u"retro"_s}, QString(), u"retro"_s);
        row("choice", {.kind = u"choice"_s}, u"decision"_s, QString());

        const QStringList scored{u"x"_s, u"3"_s, u"4"_s};
        const QStringList words{u"x"_s, u"good"_s, u"bad"_s};
        row("decision", {.kind = u"compare"_s, .rows = {scored, scored, scored, words, words}},
            QString(), u"decision"_s);
        row("too few scores", {.kind = u"compare"_s, .rows = {scored, scored, words, words}},
            QString(), u"compare"_s);
        row("one row decides nothing", {.kind = u"compare"_s, .rows = {scored}}, QString(),
            u"compare"_s);

        row("rank", {.kind = u"rank"_s, .points = pointsWith({0, 1})}, QString(), u"costs"_s);
        row("rank of nothing", {.kind = u"rank"_s, .points = pointsWith({0, 0})}, QString(),
            u"compare"_s);

        const auto line = [](qsizetype count) {
            return ViewSpec{.kind = u"line"_s,
                            .series = {{u"s"_s, pointsWith(QList<double>(count, 1))}}};
        };
        row("short line asked as costs", line(7), u"costs"_s, u"costs"_s);
        row("short line", line(7), QString(), u"cashflow"_s);
        ViewSpec degrees = line(7);
        degrees.title = u"Up to 21 °C"_s;
        row("temperatures", degrees, QString(), u"costs"_s);
        row("temperatures asked as cash flow", degrees, u"cashflow"_s, u"cashflow"_s);
        ViewSpec days = line(5);
        days.points = {{.label = u"Mon"_s}, {.label = u"Tue"_s}};
        row("days", days, QString(), u"costs"_s);
        ViewSpec longLine = line(9);
        longLine.unit = u"5 °C"_s;
        row("long line stays", longLine, QString(), u"cashflow"_s);
    }
    void art() {
        QFETCH(ViewSpec, spec);
        QFETCH(QString, intent);
        const auto asked = intent.isEmpty() ? std::nullopt : std::optional(intent);
        QTEST(CanvasEngine::artForSpec(spec, asked).value_or(QString()), "art");
    }

    void alternativesNameKnownKinds() {
        QCOMPARE(CanvasEngine::knownArts().size(), 14);
        QCOMPARE(CanvasEngine::kindToArt().size(), 16);
        for (const QString &art : CanvasEngine::kindToArt())
            QVERIFY(CanvasEngine::knownArts().contains(art));
        QCOMPARE(CanvasEngine::kindAlts().value(u"hbar"_s).last(), u"quality"_s);
    }

    void latestDrawable() {
        using Who = ConversationLine::Who;
        const QUrl base(u"https://kiv.example"_s);
        const auto latest = [&base](const QList<ConversationLine> &lines) {
            return CanvasEngine::latestDrawable(lines, base);
        };
        const QString block = fenced(u"kpi"_s, u"[\"a: 1\"]"_s);
        QVERIFY(std::holds_alternative<std::monostate>(latest({})));
        QVERIFY(std::holds_alternative<std::monostate>(latest({{Who::You, u"Hi"_s, {}}})));
        QVERIFY(std::holds_alternative<std::monostate>(latest({{Who::Agent, u"Hi"_s, {}}})));

        const auto drawn = latest({{Who::You, u" First "_s, {}},
                                   {Who::Agent, u"prose"_s, {}},
                                   {Who::Agent, block + u"\nOPTIONS: x | y"_s, {}},
                                   {Who::You, u"Unanswered"_s, {}}});
        QVERIFY(std::holds_alternative<RestoredArt>(drawn));
        QCOMPARE(std::get<RestoredArt>(drawn).query, u"First"_s);
        QCOMPARE(std::get<RestoredArt>(drawn).chips.size(), 2);

        const auto page = latest({{Who::Agent, u"[it](/project/x)"_s, {}}});
        QCOMPARE(std::get<RestoredPage>(page).link.url, QUrl(u"https://kiv.example/project/x"_s));

        const auto prose = latest({{Who::You, u"Q"_s, {}}, {Who::Agent, u"no data"_s, {}}});
        QCOMPARE(std::get<RestoredHint>(prose).query, u"Q"_s);
        const auto undrawable = latest(
            {{Who::Agent, QString(), JVal::parse(R"({"kind":"choice","options":["a","b"]})")}});
        QVERIFY(std::holds_alternative<RestoredHint>(undrawable));
    }
};

QTEST_APPLESS_MAIN(BlocksTest)
#include "BlocksTest.moc"
