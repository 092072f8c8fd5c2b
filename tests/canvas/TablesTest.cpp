#include "canvas/AnswerReading.h"
#include "canvas/TableText.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

namespace {

using Lines = QList<QStringList>;

/// Reads quoted cells as spreadsheets do. A quote out of place fails the test.
Lines parsed(const QString &text, QChar separator, const QString &lineEnd) {
    Lines lines;
    QStringList cells;
    QString cell;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isQuoted && c == u'"' && i + 1 < text.size() && text.at(i + 1) == u'"') {
            cell += text.at(++i);
        } else if (c == u'"') {
            if (!isQuoted && !cell.isEmpty())
                qFatal("A quote inside the bare cell %s", qPrintable(cell));
            isQuoted = !isQuoted;
        } else if (!isQuoted && c == separator) {
            cells.append(std::exchange(cell, {}));
        } else if (!isQuoted && QStringView(text).sliced(i).startsWith(lineEnd)) {
            cells.append(std::exchange(cell, {}));
            lines.append(std::exchange(cells, {}));
            i += lineEnd.size() - 1;
        } else {
            cell += c;
        }
    }
    if (isQuoted || !cell.isEmpty() || !cells.isEmpty())
        qFatal("The last line does not end");
    return lines;
}

QList<AnswerTable> tablesOf(const QString &answer) {
    const auto spec = readAnswer(answer).spec;
    return spec ? answerTables(*spec) : QList<AnswerTable>();
}

QString view(const char *json) {
    return u"Here.\n\n```view\n"_s + QString::fromUtf8(json) + u"\n```\n"_s;
}

} // namespace

/// Answers as tables in a file and on the clipboard.
class TablesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<Lines>("lines");

        QTest::newRow("markdown table")
            << u"| Name | Plan | Actual |\n|---|---:|---:|\n| Реклама | 1 000 | −1,200.50 |\n"
               "| Hosting | 15,500 | 17,300 |\n"_s
            << Lines{{u"Name"_s, u"Plan"_s, u"Actual"_s},
                     {u"Реклама"_s, u"1 000"_s, u"−1,200.50"_s},
                     {u"Hosting"_s, u"15,500"_s, u"17,300"_s}};
        QTest::newRow("bars of a table, once")
            << u"| Team | Spend | Note |\n|---|---|---|\n| Ads | $5 | soon |\n| Ops | $3 | |\n"_s
            << Lines{{u"Team"_s, u"Spend"_s, u"Note"_s},
                     {u"Ads"_s, u"$5"_s, u"soon"_s},
                     {u"Ops"_s, u"$3"_s, QString()}};
        QTest::newRow("quotes, commas, tabs and lines")
            << view(R"({"kind":"table","columns":["Name, place","Said"],"rows":[
                ["Ann \u0022Annie\u0022 Lee","yes,\nthen no"],["\u0022Bo\u0022","a\tb"],["Кот, «Мурка»",""]]})")
            << Lines{{u"Name, place"_s, u"Said"_s},
                     {u"Ann \"Annie\" Lee"_s, u"yes,\nthen no"_s},
                     {u"\"Bo\""_s, u"a\tb"_s},
                     {u"Кот, «Мурка»"_s, QString()}};
        QTest::newRow("rows of unlike length")
            << view(R"({"kind":"table","columns":["Name"],"rows":[["A",1,-2],["B"]]})")
            << Lines{{u"Name"_s, QString(), QString()},
                     {u"A"_s, u"1"_s, u"-2"_s},
                     {u"B"_s, QString(), QString()}};
        QTest::newRow("the figure as the answer shows it")
            << view(R"({"kind":"progress","unit":"€","points":[
                {"label":"Ferry","value":0.62,"display":"62.4%","target":-80,"owner":"Ona"},
                {"label":"Glass","value":-1234.56,"status":"blocked"}]})")
            << Lines{{u"Name"_s, u"Value"_s, u"Target"_s, u"Status"_s, u"Note"_s},
                     {u"Ferry"_s, u"62.4%"_s, u"−€80"_s, QString(), u"Ona"_s},
                     {u"Glass"_s, u"−€1\u202f234.56"_s, QString(), u"blocked"_s, QString()}};
        QTest::newRow("a column for each series")
            << view(R"({"kind":"line","series":[{"name":"In","points":["May: 5","June: 6.25"]},
                {"name":"Out","points":["June: -4"]}]})")
            << Lines{{u"Name"_s, u"In"_s, u"Out"_s},
                     {u"May"_s, u"5"_s, QString()},
                     {u"June"_s, u"6.25"_s, u"-4"_s}};
        QTest::newRow("series that tell more than values")
            << view(R"({"kind":"line","series":[{"name":"In","points":["May: 5","May: 7"]},
                {"name":"Out","points":[{"label":"May","value":3,"target":4}]}]})")
            << Lines{{u"Name"_s, u"Series"_s, u"Value"_s, u"Target"_s},
                     {u"May"_s, u"In"_s, u"5"_s, QString()},
                     {u"May"_s, u"In"_s, u"7"_s, QString()},
                     {u"May"_s, u"Out"_s, u"3"_s, u"4"_s}};
        QTest::newRow("board")
            << view(R"({"kind":"board","columns":[{"name":"Good","points":["Fast"]},
                {"name":"Bad","points":[{"label":"Late","hint":"by 3 days"}]}]})")
            << Lines{{u"Card"_s, u"Column"_s, u"Note"_s},
                     {u"Fast"_s, u"Good"_s, QString()},
                     {u"Late"_s, u"Bad"_s, u"by 3 days"_s}};
        QTest::newRow("key figures, rows and points")
            << view(R"({"kind":"kpi","items":[{"label":"Revenue","display":"€418,200",
                "delta":"+6.2% on last week"},"All is well"],"rows":[["Best week",42]],
                "points":["Ads: 5"]})")
            << Lines{{u"Best week"_s, u"42"_s, QString()},
                     {QString(), QString(), QString()},
                     {u"Name"_s, u"Value"_s, QString()},
                     {u"Ads"_s, u"5"_s, QString()},
                     {QString(), QString(), QString()},
                     {u"Name"_s, u"Value"_s, u"Change"_s},
                     {u"Revenue"_s, u"€418,200"_s, u"+6.2% on last week"_s},
                     {u"All is well"_s, QString(), QString()}};
        QTest::newRow("nothing to draw") << u"Good morning."_s << Lines{};
    }
    void answers() {
        QFETCH(QString, answer);
        const QList<AnswerTable> tables = tablesOf(answer);
        const Lines csv = parsed(csvText(tables), u',', u"\r\n"_s);
        QTEST(csv, "lines");
        QCOMPARE(parsed(tsvText(tables), u'\t', u"\n"_s), csv);
    }

    void formulas_data() {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("written");
        for (const char *figure :
             {"-12", "+6.2%", "-1,234.50 km", "-$1,200.50", "- 5", "+6.2% on last week", "−12",
              "-12\u202f500\u00a0₽", "-", "--", "Q1=Q2", "a@b.example", "(300)", "5-3", ""})
            QTest::newRow(figure) << QString::fromUtf8(figure) << QString::fromUtf8(figure);
        for (const char *formula : {"=1+1", "=", "@SUM(A1:A9)", "@ada", "-A1", "+cmd|' /C calc'!A0",
                                    "-2+3+cmd|' /C calc'!A0", "-1(2)", "- later", "＝1+1",
                                    "=HYPERLINK(\"https://kiv.example\")"})
            QTest::newRow(formula)
                << QString::fromUtf8(formula) << u'\'' + QString::fromUtf8(formula);
        QTest::newRow("behind a tab") << u"\t=1+1"_s << u"\t'=1+1"_s;
        QTest::newRow("behind a line") << u"a\n=1+1"_s << u"a\n'=1+1"_s;
        QTest::newRow("behind semicolons") << u"a;;=1+1;-3;-;-b"_s << u"a;;'=1+1;-3;-;'-b"_s;
    }
    void formulas() {
        QFETCH(QString, cell);
        QFETCH(QString, written);
        const QList<AnswerTable> tables{{{u"Name"_s}, {{cell}}}};
        QCOMPARE(parsed(csvText(tables), u',', u"\r\n"_s).at(1).first(), written);
        QCOMPARE(parsed(tsvText(tables), u'\t', u"\n"_s).at(1).first(), written);
    }
};

QTEST_APPLESS_MAIN(TablesTest)
#include "TablesTest.moc"
