#include "canvas/CanvasIntents.h"
#include "canvas/CanvasNum.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"
#include "canvas/TextCues.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

namespace {

using Figure = std::optional<double>;

void compareFigures(const Figure &actual, const Figure &expected) {
    QCOMPARE(actual.has_value(), expected.has_value());
    if (expected)
        QCOMPARE(*actual, *expected);
}

ViewSpec specWithLabels(const QStringList &labels) {
    ViewSpec spec;
    for (const QString &label : labels)
        spec.points.append({.label = label});
    return spec;
}

} // namespace

/// The readers of figures and of what short texts hint at.
class ValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Figure>("value");
        const auto row = [](const QString &text, Figure value) {
            QTest::newRow(text.isEmpty() ? "empty" : qPrintable(text)) << text << value;
        };
        row(u"1.2 млн"_s, 1200000.0);
        row(u"3b"_s, 3e9);
        row(u"2 МЛРД"_s, 2e9);
        row(u"4.5k"_s, 4500.0);
        row(u"7 К"_s, 7000.0); // Cyrillic
        row(u"12 km"_s, 12e6);
        row(u"(300)"_s, -300.0);
        row(u"($1,200)"_s, -1200.0);
        row(u"-5%"_s, -5.0);
        row(u"−5"_s, 5.0);
        row(u"−"_s, std::nullopt);
        row(u"12 345,5"_s, 12345.5);
        row(u"12\u00a0345\u202f678"_s, 12345678.0);
        row(u"1,234"_s, 1234.0);
        row(u"1,234,567.89"_s, 1234567.89);
        row(u"1_000"_s, 1000.0);
        row(u"$1,2"_s, 1.2);
        row(u"+7"_s, 7.0);
        row(u"\u00a0 5\u2003"_s, 5.0);
        row(u"1e3"_s, 1000.0);
        row(u"1e400"_s, std::nullopt);
        row(u"1e308m"_s, std::nullopt);
        row(u"1-2"_s, std::nullopt);
        row(u"+-2"_s, std::nullopt);
        row(u"5 weeks"_s, std::nullopt);
        row(u"none"_s, std::nullopt);
        row(QString(), std::nullopt);
        row(u"  "_s, std::nullopt);
    }
    void parse() {
        QFETCH(QString, text);
        QFETCH(Figure, value);
        compareFigures(CanvasNum::parse(text), value);
    }

    void out_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("three groups") << u"1234567.5"_s << u"1\u202f234\u202f567.5"_s;
        QTest::newRow("four digits") << u"1234"_s << u"1\u202f234"_s;
        QTest::newRow("three digits") << u"999"_s << u"999"_s;
        QTest::newRow("long fraction") << u"0.12345"_s << u"0.12345"_s;
        QTest::newRow("negative") << u"-1234"_s << u"-1234"_s;
        QTest::newRow("separated") << u"1,234"_s << u"1,234"_s;
        QTest::newRow("two points") << u"1234.5.6"_s << u"1234.5.6"_s;
        QTest::newRow("no fraction") << u"1234."_s << u"1234."_s;
        QTest::newRow("line end") << u"1234\n"_s << u"1234\n"_s;
        QTest::newRow("empty") << QString() << QString();
    }
    void out() {
        QFETCH(QString, text);
        QTEST(CanvasNum::out(text), "shown");
    }

    void figureText_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("text");
        const auto row = [](double value, const QString &unit, const QString &text) {
            QTest::newRow(qPrintable(text)) << value << unit << text;
        };
        row(-1234.5, u"€"_s, u"−€1\u202f234.5"_s);
        row(1.0842, u"€/$"_s, u"€1.0842/$"_s); // a rate
        // Fractions without an end.
        row(1.0 / 3, {}, u"0.333"_s);
        row(-200.0 / 3, u"%"_s, u"−66.67%"_s);
        row(100000.0 / 7, u"days"_s, u"14\u202f285.71\u00a0days"_s);
        row(2.0 / 3000, {}, u"0.000667"_s);
        row(0, {}, u"0"_s);
    }
    void figureText() {
        QFETCH(double, value);
        QFETCH(QString, unit);
        QTEST(kiv::canvas::figureText(value, unit), "text");
    }

    void shareText_data() {
        QTest::addColumn<double>("percent");
        QTest::addColumn<QString>("text");
        const QList<std::pair<double, const char *>> cases{
            {0, "0%"},     {0.0001, "<0.1%"}, {0.0999, "<0.1%"}, {0.1, "0.1%"}, {0.96, "1%"},
            {41.4, "41%"}, {99.4, "99.4%"},   {99.95, ">99.9%"}, {100, "100%"}, {250, "250%"},
        };
        for (const auto &[percent, text] : cases)
            QTest::newRow(text) << percent << QString::fromLatin1(text);
    }
    void shareText() {
        QFETCH(double, percent);
        QTEST(kiv::canvas::shareText(percent, 100), "text");
    }

    void numsIn() {
        const auto found = CanvasNum::numsIn(u"from -1,5 to +20 of 10-30");
        QList<double> values;
        for (const auto &one : found)
            values.append(one.value);
        QCOMPARE(values, (QList<double>{-1.5, 20, 10, -30}));
        QCOMPARE(found.first().raw, u"-1,5"_s);
        QCOMPARE(found.first().range.start, 5);
        QCOMPARE(found.first().range.length, 4);
    }

    void numFromText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Figure>("value");
        const auto row = [](const QString &text, Figure value) {
            QTest::newRow(qPrintable(text)) << text << value;
        };
        row(u"10–20"_s, 15.0);
        row(u"10 - 20"_s, 15.0);
        row(u"10-20"_s, 10.0);
        row(u"from 3 to 5 days"_s, 4.0);
        row(u"от 3 ДО 5 дней"_s, 4.0);
        row(u"1…2"_s, 1.5);
        row(u"3 of 5"_s, 3.0);
        row(u"about 7"_s, 7.0);
        row(u"soon"_s, std::nullopt);
    }
    void numFromText() {
        QFETCH(QString, text);
        QFETCH(Figure, value);
        compareFigures(CanvasNum::numFromText(text), value);
    }

    void statusWord_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("status");
        QTest::newRow("doing") << u"In progress"_s << u"doing"_s;
        QTest::newRow("started is found first") << u"Not started"_s << u"doing"_s;
        QTest::newRow("unknown") << u"n/a"_s << u"unknown"_s;
        QTest::newRow("Russian done") << u"Готово!"_s << u"done"_s;
        QTest::newRow("Russian doing") << u"В работе"_s << u"doing"_s;
        QTest::newRow("Russian to do") << u"не начато"_s << u"todo"_s;
        QTest::newRow("Russian blocked") << u"Ошибка"_s << u"blocked"_s;
        QTest::newRow("sign") << u" ◌ "_s << u"unknown"_s;
        QTest::newRow("blocked before done") << u"done but stuck"_s << u"blocked"_s;
        QTest::newRow("inside a word") << u"delivery"_s << u"done"_s;
        QTest::newRow("empty") << u" "_s << QString();
        QTest::newRow("figure") << u"42"_s << QString();
    }
    void statusWord() {
        QFETCH(QString, text);
        QTEST(CanvasEngine::statusWord(text).value_or(QString()), "status");
    }

    void stripInline_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::newRow("bold link")
            << u"see [**the plan**](https://x/y) now"_s << u"see the plan now"_s;
        QTest::newRow("two links") << u"[a](b)[c](d)"_s << u"ac"_s;
        QTest::newRow("brackets before a link") << u"[x] [[y](z)"_s << u"[x] [y"_s;
        QTest::newRow("no target") << u"[x] (y) [z](w"_s << u"[x] (y) [z](w"_s;
        QTest::newRow("marks and spaces") << u" `a_b`\n\t*c* "_s << u"ab c"_s;
    }
    void stripInline() {
        QFETCH(QString, text);
        QTEST(CanvasEngine::stripInline(text), "plain");
    }

    void unitToken() {
        QCOMPARE(CanvasEngine::unitToken(u"12% of $5"), u"$"_s);
        QCOMPARE(CanvasEngine::unitToken(u"₽ 5"), u"₽"_s);
        QCOMPARE(CanvasEngine::unitToken(u"5 days"), QString());
    }

    void looksTemp_data() {
        QTest::addColumn<QString>("display");
        QTest::addColumn<bool>("temperature");
        QTest::newRow("plain") << u"-12,5 °C"_s << true;
        QTest::newRow("without spaces") << u"70°f"_s << true;
        QTest::newRow("an angle") << u"90°"_s << false;
        QTest::newRow("no figure") << u"in °C"_s << false;
    }
    void looksTemp() {
        QFETCH(QString, display);
        ViewSpec spec;
        spec.points.append({.label = u"Today"_s, .display = display});
        QTEST(CanvasEngine::looksTemp(spec), "temperature");
    }

    void looksDays_data() {
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<bool>("days");
        QTest::newRow("English") << QStringList{u"Mon"_s, u"Tuesday"_s, u" WED "_s} << true;
        QTest::newRow("Russian") << QStringList{u"Пн"_s, u"Вт"_s, u"Среда"_s, u"Ср"_s} << true;
        QTest::newRow("three of five")
            << QStringList{u"Mon"_s, u"Tue"_s, u"Fri"_s, u"Total"_s, u"Mean"_s} << true;
        QTest::newRow("half") << QStringList{u"Mon"_s, u"Total"_s} << false;
        QTest::newRow("more than a day") << QStringList{u"Mon 3"_s} << false;
        QTest::newRow("none") << QStringList{} << false;
    }
    void looksDays() {
        QFETCH(QStringList, labels);
        QTEST(CanvasEngine::looksDays(specWithLabels(labels)), "days");
    }

    void classify_data() {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("intent");
        const auto row = [](const QString &question, const QString &intent) {
            QTest::newRow(qPrintable(question)) << question << intent;
        };
        row(u"How long is our runway?"_s, u"cashflow"_s);
        row(u"Show the roadmap"_s, u"roadmap"_s);
        row(u"Weather forecast please"_s, u"costs"_s);
        row(u"Is 5 °  C cold"_s, u"costs"_s);
        row(u"Where are we against the plan?"_s, u"status"_s);
        row(u"Build or buy the voice stack?"_s, u"decision"_s);
        row(u"Compare these two options"_s, u"decision"_s);
        row(u"Compare us with them"_s, u"compare"_s);
        row(u"What did the agents do overnight?"_s, u"agents"_s);
        row(u"Покажи БЮДЖЕТ"_s, u"budget"_s);
        row(u"Сравни, что лучше"_s, u"compare"_s);
        row(u"какой отчёт готов"_s, u"report"_s);
        row(u"Обратная связь от них"_s, u"feedback"_s);
        row(u"обратную, пусть и редкую, связь"_s, u"feedback"_s);
        row(u"обратную\nсвязь"_s, QString());
        row(u"When are they most active"_s, u"heatmap"_s);
        row(u"Hello there"_s, QString());
        row(QString(u" "_s), QString());
    }
    void classify() {
        QFETCH(QString, question);
        QTEST(CanvasIntents::classify(question).value_or(QString()), "intent");
    }

    /// The index of starts must not hide a rule from a text that its pattern matches.
    void indexAgreesWithThePatterns_data() {
        QTest::addColumn<QString>("question");
        const QStringList words =
            u"TICKET|a/b|signups|sign up|heatmap|время: ЛИДЫ|cash-flow|°f|"
            "юнит экономика|wait on|timezone|приß|proceß ſupplier|ship tuesday|"
            "сравнися |vs|03:00|per seat|whirl|критическая путь|İ|progreß|g"_s.split(u'|');
        for (const QString &word : words)
            QTest::newRow(qPrintable(word)) << u"x "_s + word + u" y"_s;
    }
    void indexAgreesWithThePatterns() {
        QFETCH(QString, question);
        QString expected;
        for (const auto &rule : CanvasIntents::rules()) {
            if (rule.matches(question.toLower())) {
                expected = rule.intent();
                break;
            }
        }
        QCOMPARE(CanvasIntents::classify(question).value_or(QString()), expected);
    }

    void everyRuleIsThere() {
        QCOMPARE(CanvasIntents::rules().size(), 40U);
        QCOMPARE(CanvasIntents::rules().at(13).intent(), u"costs"_s);
    }
};

QTEST_APPLESS_MAIN(ValuesTest)
#include "ValuesTest.moc"
