#include "canvas/AnswerBlock.h"
#include "canvas/ProseFigure.h"
#include "canvas/ProseLifts.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

namespace {

/// What was lifted in one line: kind, title, unit and the points or items.
QString summary(const std::optional<ViewSpec> &spec) {
    if (!spec)
        return {};
    QStringList parts{spec->kind};
    if (spec->title)
        parts.append(u"“%1”"_s.arg(*spec->title));
    if (spec->unit)
        parts.append(u"in "_s + *spec->unit);
    for (const ViewSpec::Point &point : spec->points)
        parts.append(u"%1=%2"_s.arg(point.label).arg(point.value.value_or(-1)) +
                     (point.hint ? u'~' + *point.hint : QString()));
    for (const ViewSpec::Item &item : spec->items)
        parts.append(u"%1=%2%3"_s.arg(item.label, item.display.value_or(u"·"_s),
                                      item.delta ? u'~' + *item.delta : QString()));
    return parts.join(u' ');
}

} // namespace

/// What is lifted from prose, and above all what is not.
class LiftsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void figures_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("figure"); // value, unit, change, remark; empty for none
        const auto row = [](const QString &text, const QString &figure) {
            QTest::newRow(qPrintable(text)) << text << figure;
        };
        row(u"$1,200 (+4%)"_s, u"1200 $ +4% "_s);
        row(u"1 200,5 ₽."_s, u"1200.5 ₽  "_s);
        row(u"~3.5k"_s, u"3500   "_s);
        row(u"1.2 млн руб"_s, u"1.2e+06 руб  "_s);
        row(u"$2M (est.)"_s, u"2e+06 $  est."_s);
        row(u"(300)"_s, u"-300   "_s);
        row(u"−12 °C"_s, u"-12 °C  "_s);
        row(u"-$5"_s, u"-5 $  "_s);
        row(u"10–20 days"_s, u"15 days  "_s);
        row(u"from 3"_s, QString());
        row(u"3 to 5 hours"_s, u"4 hours  "_s);
        row(u"1–2k"_s, u"1500   "_s);
        row(u"8/10"_s, u"8 /10  "_s);
        row(u"5 m"_s, u"5 m  "_s);
        row(u"42 %"_s, u"42 %  "_s);
        row(u"12 story points"_s, u"12 story points  "_s);
        row(u"$50/mo."_s, u"50 $/mo  "_s);
        row(u"€1.2k per month"_s, u"1200 € per month  "_s);
        row(u"3.4k/s"_s, u"3400 /s  "_s);
        row(u"USD 640"_s, u"640 USD  "_s);
        row(u"$1.2M–$1.6M"_s, u"1.4e+06 $  "_s);
        row(u"$12.4k ↑ 12%"_s, u"12400 $ ↑ 12% "_s);
        row(u"$2m"_s, u"2e+06 $  "_s);
        row(u"$1.2 M"_s, u"1.2e+06 $  "_s);
        row(u"$1,000 USD"_s, u"1000 $  "_s);
        row(u"90m"_s, u"90 m  "_s);
        row(u"512B"_s, u"512 B  "_s);
        row(u"0.333333333333333333"_s, u"0.333333   "_s);
        row(u"3.125 s"_s, u"3.125 s  "_s);
        row(u"$0.125"_s, u"0.125 $  "_s);
        row(u"1.200 €"_s, QString());
        row(u"9–17"_s, QString());
        row(u"9 to 5 pm"_s, QString());
        row(u"500–1k"_s, QString());
        row(u"030 123 456"_s, QString());
        row(u"-5–5 °C"_s, QString());
        row(u"15 сент."_s, QString());
        row(u"3/5 of us"_s, QString());
        row(u"1/2"_s, QString());
        row(u"5 May"_s, QString());
        row(u"5 мая"_s, QString());
        row(u"2024-05-01"_s, QString());
        row(u"01.05.2024"_s, QString());
        row(u"10:30"_s, QString());
        row(u"3 pm"_s, QString());
        row(u"5th"_s, QString());
        row(u"v2.1"_s, QString());
        row(u"1.2.3"_s, QString());
        row(u"555-1234"_s, QString());
        row(u"+1 (555) 123-4567"_s, QString());
        row(u"2 of 3"_s, QString());
        row(u"2 people are out today"_s, QString());
        row(u"up 4%"_s, QString());
        row(u"12345678901234567890"_s, QString());
        row(u"$5 €"_s, QString());
        row(u"-"_s, QString());
    }
    void figures() {
        QFETCH(QString, text);
        const auto read = proseFigure(text);
        QTEST(read ? u"%1 %2 %3 %4"_s.arg(QString::number(read->value), read->unit, read->delta,
                                          read->remark)
                   : QString(),
              "figure");
    }

    void tables_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("spec");
        QTest::addColumn<QString>("left");
        const auto row = [](const char *name, const QString &text, const QString &spec,
                            const QString &left) { QTest::newRow(name) << text << spec << left; };
        row("bars",
            u"Here:\n\n### Spend by team\n\n| Team | Spend |\n|:---|--:|\n| **Ads** | $1,200 |\n| [Ops](/x) | $300 |\n\nDone."_s,
            u"hbar “Spend by team” in $ Ads=1200 Ops=300"_s,
            u"Here:\n\n### Spend by team\n\nDone."_s);
        row("header names the bars", u"Team|Hours, %\n---|---\nAds|12\nOps|3"_s,
            u"hbar “Hours, %” in % Ads=12 Ops=3"_s, QString());
        row("a text beside the figures",
            u"| Who | Role | Load |\n|---|---|---|\n| Ann | Dev | 80% |\n| Bob | QA | 120% |"_s,
            u"hbar “Load” in % Ann=80~Dev Bob=120~QA"_s, QString());
        row("scores",
            u"Build vs buy:\n| Criterion | Build | Buy |\n|---|:-:|---|\n| Cost | 7 | 5 |\n| Speed | 4 | 9 |\n| Total | 11 | 14 |"_s,
            u"compare “Build vs buy”"_s, u"Build vs buy:"_s);
        row("scores of ten",
            u"| | A | B |\n|---|---|---|\n| x | 7/10 | 5/10 |\n| y | 4/10 | 9/10 |"_s, u"compare"_s,
            QString());
        row("counts are no scores",
            u"| Team | Open | Closed |\n|---|---|---|\n| x | 7 | 5 |\n| y | 4 | 9 |"_s, u"table"_s,
            QString());
        row("amounts are no scores",
            u"| Criterion | Plan | Actual |\n|---|---|---|\n| x | 70 | 50 |\n| y | 40 | 90 |"_s,
            u"table"_s, QString());
        row("unlike units", u"| a | b |\n|---|---|\n| x | $7 |\n| y | 5% |"_s, u"table"_s,
            QString());
        row("a cell without a figure", u"| a | b |\n|---|---|\n| x | 7 |\n| y | – |"_s, u"table"_s,
            QString());
        row("one row", u"| a | b |\n|---|---|\n| x | 7 |"_s, u"table"_s, QString());
        row("thirteen rows", u"| a | b |\n|---|---|\n"_s + u"| x | 7 |\n"_s.repeated(13),
            u"table"_s, QString());
        row("unit of thousands in the header",
            u"| a | Выручка, тыс. ₽ |\n|---|---|\n| x | 12 |\n| y | 9 |"_s,
            u"hbar “Выручка, тыс. ₽” in тыс. ₽ x=12 y=9"_s, QString());
        row("unit of thousands that does not stand apart",
            u"| a | Cost $k |\n|---|---|\n| x | 12 |\n| y | 9 |"_s, u"hbar “Cost $k” x=12 y=9"_s,
            QString());
        row("years beside figures",
            u"| Name | Year | Users |\n|---|---|---|\n| x | 2019 | 7 |\n| y | 2021 | 5 |"_s,
            u"hbar “Users” x=7~2019 y=5~2021"_s, QString());
        row("years", u"| a | b |\n|---|---|\n| x | 2019 |\n| y | 2021 |"_s, u"table"_s, QString());
        row("marks", u"| ID | Name | Priority |\n|---|---|---|\n| 7 | x | 1 |\n| 8 | y | 2 |"_s,
            u"table"_s, QString());
        row("versions", u"| a | Version |\n|---|---|\n| x | 1.2 |\n| y | 3.4 |"_s, u"table"_s,
            QString());
        row("dates", u"| a | b |\n|---|---|\n| x | 2024-05-01 |\n| y | 2024-05-02 |"_s, u"table"_s,
            QString());
        row("ragged, CR LF", u"a | b\r\n---|---\r\nx | 1 | 2\r\ny |\r\nend\r\n"_s, u"table"_s,
            u"end"_s);
        row("in a fence", u"```\n| a | b |\n|---|---|\n| x | 7 |\n```"_s, QString(),
            u"```\n| a | b |\n|---|---|\n| x | 7 |\n```"_s);
        row("second table when the first is code",
            u"~~~\n| a | b |\n|---|---|\n| x | 7 |\n~~~\n| c | d |\n|---|---|\n| x | y |"_s,
            u"table"_s, u"~~~\n| a | b |\n|---|---|\n| x | 7 |\n~~~"_s);
        row("rules between rows",
            u"| a | b |\n|---|---|\n| x | 7 |\n| --- | :-: |\n|---|\n| y | 9 |"_s,
            u"hbar “b” x=7 y=9"_s, QString());
        row("no rows", u"| a | b |\n|---|---|\n"_s, QString(), u"| a | b |\n|---|---|"_s);
        row("rules alone", u"| a | b |\n|---|---|\n|---|---|"_s, QString(),
            u"| a | b |\n|---|---|\n|---|---|"_s);
        row("widths differ", u"a | b\n---\nx | 1"_s, QString(), u"a | b\n---\nx | 1"_s);
        row("underlined heading", u"Heading\n---\nx | 1"_s, QString(), u"Heading\n---\nx | 1"_s);
        row("one column", u"| a |\n|---|\n| x |"_s, QString(), u"| a |\n|---|\n| x |"_s);
        const QString hollow = u"|a"_s.repeated(500) + u'\n' + u"|---"_s.repeated(500) + u"\n|"_s +
                               u"\n|"_s.repeated(300);
        row("next to nothing in very many cells", hollow, QString(), hollow);
        row("bars in prose", u"a | b or c --- who knows"_s, QString(),
            u"a | b or c --- who knows"_s);
    }
    void tables() {
        QFETCH(QString, text);
        const auto answer = CanvasEngine::extractViewSpec(text);
        QTEST(summary(answer.spec), "spec");
        QTEST(answer.text, "left");
        QVERIFY(!answer.spec || !answer.spec->jsonKey.isEmpty());
    }

    void cells() {
        const auto spec =
            CanvasEngine::liftGfmTable(
                u"| `Na_me` | a \\| b |\n|---|---|\n| [x](y) **z** | one<br>two |\n| only |\n| 1 | 2 | 3 |\n"_s)
                .spec;
        QVERIFY(spec);
        QCOMPARE(spec->columns, (QStringList{u"Name"_s, u"a | b"_s}));
        QCOMPARE(spec->rows,
                 (QList<QStringList>{
                     {u"x z"_s, u"one two"_s}, {u"only"_s, QString()}, {u"1"_s, u"2"_s}}));
    }

    void lists_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("spec");
        const auto row = [](const char *name, const QString &text, const QString &spec) {
            QTest::newRow(name) << text << spec;
        };
        row("bars", u"**Spend:**\n- Ads: $1,200\n- **Events** — $800 (two)\n* Tools – $50"_s,
            u"hbar “Spend” in $ Ads=1200 Events=800~two Tools=50"_s);
        row("changes", u"1. Ads: $1,200 (+4%)\n2) Events: $800"_s,
            u"kpi Ads=$1,200~+4% Events=$800"_s);
        row("unlike units", u"• Revenue: $12k\n• Users: 340"_s, u"kpi Revenue=$12k Users=340"_s);
        row("one holds the other", u"- Revenue: $12k\n- Costs: $4k"_s,
            u"kpi Revenue=$12k Costs=$4k"_s);
        row("nested items are their parents'",
            u"- Ads: 3 days\n    - Web: 1 day\n  more: 5 days\n\n- Ops: 1 day\n"_s,
            u"hbar in days Ads=3 Ops=1"_s);
        row("a line without a figure", u"- Users: 3\n- Load: 5%\n- All is well"_s,
            u"kpi Users=3 Load=5% All is well=·"_s);
        row("Russian", u"- Реклама: 1,2 млн ₽\n- Офис: 300 тыс. ₽"_s,
            u"hbar in ₽ Реклама=1.2e+06 Офис=300000"_s);
        row("Russian plurals", u"- Скаут: 21 задача\n- Лум: 2 задачи\n- Анвил: 35 задач"_s,
            u"hbar in задач Скаут=21 Лум=2 Анвил=35"_s);
        row("remarks behind a dash", u"- Ads: $1,200 — mostly search\n- Ops — $300 – two people"_s,
            u"hbar in $ Ads=1200~mostly search Ops=300~two people"_s);
        row("minutes are no millions", u"- Draft: 3h\n- Review: 90m"_s,
            u"kpi Draft=3h Review=90m"_s);
        row("a mark with a unit", u"- Room: 25 m²\n- Kitchen: 9 m²"_s,
            u"hbar in m² Room=25 Kitchen=9"_s);
        row("second list", u"- one\n- two\n\nText\n\n- a: 1\n- b: 2"_s, u"hbar a=1 b=2"_s);
        row("one figure", u"- Ads: $5\n- Events: soon"_s, QString());
        row("mostly words", u"- a: 1\n- b: 2\n- c\n- d"_s, QString());
        row("times", u"- Standup: 10:30\n- Review: 3 pm"_s, QString());
        row("dates", u"- Start: 5 May\n- End: 7 May"_s, QString());
        row("steps", u"1. Open the file: it has 3 parts\n2. Close it: 2 clicks are enough"_s,
            QString());
        row("sentences", u"- We met them: 5 people\n- It took: 3 hours"_s, QString());
        row("marks", u"- IBAN: 12\n- Year: 2024\n- Phone: 5551234"_s, QString());
        row("numbered marks", u"- Chapter 1: 12\n- Chapter 2: 30"_s, QString());
        row("years", u"- Qt 5.15: 2020\n- Qt 6.4: 2022"_s, QString());
        row("days", u"Сроки проекта\n\n- Дизайн: 12.05\n- Код: 20.05"_s, QString());
        row("opening hours", u"- Monday: 9–17\n- Tuesday: 10 to 6"_s, QString());
        row("versions", u"Tool versions:\n- Python: 3.11\n- Node: 18.2"_s, QString());
        row("contents", u"Contents:\n- Introduction — 1\n- Results — 12"_s, QString());
        row("months", u"- Срок: 15 янв\n- Ревью: 17 фев"_s, QString());
        row("an amount that may be two", u"- Ads: 1.200 €\n- Ops: 2.500 €"_s, QString());
        row("tasks", u"- [x] Test: 3 cases\n- [ ] Docs: 2 pages"_s, QString());
        row("code", u"```\n- a: 1\n- b: 2\n```"_s, QString());
        row("indented code", u"    - a: 1\n    - b: 2"_s, QString());
        row("rules", u"---\n***\n- - -"_s, QString());
    }
    void lists() {
        QFETCH(QString, text);
        QTEST(summary(CanvasEngine::liftList(text)), "spec");
        const auto answer = CanvasEngine::extractViewSpec(text);
        QCOMPARE(answer.text, text.trimmed());
    }

    void manyItemsAreATable() {
        const auto spec = CanvasEngine::liftList(u"- a: 1\n"_s.repeated(13));
        QCOMPARE(spec->kind, u"table"_s);
        QCOMPARE(spec->rows.size(), 13);
    }

    void keyValues_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("spec");
        const auto row = [](const char *name, const QString &text, const QString &spec) {
            QTest::newRow(name) << text << spec;
        };
        row("cards",
            u"## Week 12\nRevenue: $12k (−3%)\n\n**Users** — 340\nMood: good\nThe rest is prose."_s,
            u"kpi “Week 12” Revenue=$12k~−3% Users=340 Mood=good"_s);
        row("Russian", u"Выручка: 1,2 млн\nКлиенты – 15"_s, u"kpi Выручка=1,2 млн Клиенты=15"_s);
        row("ends of sentences", u"Ads: $5;\nOps: 7 задач.\nWeb: 3 тыс."_s,
            u"kpi Ads=$5 Ops=7 задач Web=3 тыс."_s);
        row("foreign bullets", u"– Ads: $5\n▪ Ops: $6"_s, u"kpi Ads=$5 Ops=$6"_s);
        row("remarks", u"Note: 3 failures\nP.S.: 5 days left"_s, QString());
        row("years", u"Born: 1970\nDied: 2020"_s, QString());
        row("telephones", u"Тел.: 5551234\nФакс: 5551235"_s, QString());
        row("numbers of documents", u"Заказ №: 12345\nДоговор: 67890"_s, QString());
        row("one figure", u"Revenue: $12k\nMood: good"_s, QString());
        row("mostly words", u"a: 1\nb: 2\nc: x\nd: y\ne: z"_s, QString());
        row("apart", u"Revenue: $12k\nProse between them.\nUsers: 340"_s, QString());
        row("prose with colons",
            u"Two things happened: we shipped 3 features.\nThe next step: 2 reviews remain open."_s,
            QString());
        row("prose with dashes", u"The team – 5 people strong – met.\nAnn – 3 tasks done – left."_s,
            QString());
        row("sentences", u"We are: 5\nThey are: 6"_s, QString());
        row("options", u"Pick one\nDays: 5\nOPTIONS: 5 | 6"_s, QString());
        row("times", u"Start: 10:30\nEnd: 11:45"_s, QString());
        row("quote", u"> Revenue: $12k\n> Users: 340"_s, QString());
        row("code", u"```yaml\nport: 80\nworkers: 5\n```"_s, QString());
        row("long label",
            u"A label of far more than forty characters in all: 5\nB label of far more than forty characters in all: 6"_s,
            QString());
        row("addresses", u"See https://a.example/5: 5\nhttps://b.example: 6"_s, QString());
    }
    void keyValues() {
        QFETCH(QString, text);
        QTEST(summary(CanvasEngine::extractViewSpec(text).spec), "spec");
    }

    void tablesComeBeforeLists() {
        const QString text = u"- a: 1\n- b: 2\n\n| x | y |\n|---|---|\n| p | q |\n"_s;
        const auto answer = CanvasEngine::extractViewSpec(text);
        QCOMPARE(answer.spec->kind, u"table"_s);
        QCOMPARE(answer.text, u"- a: 1\n- b: 2"_s);
    }
};

QTEST_APPLESS_MAIN(LiftsTest)
#include "LiftsTest.moc"
