#include "canvas/ReplyOptions.h"
#include "canvas/Suggestions.h"
#include "canvas/SurfaceMatcher.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

namespace {

QStringList labelsOf(const QList<ReplyChip> &chips) {
    QStringList labels;
    for (const ReplyChip &chip : chips)
        labels.append(chip.label);
    return labels;
}

const QStringList recovery{u"Try again"_s, u"Skip and continue"_s, u"Try another way"_s};

} // namespace

/// What an answer offers beside its figures: replies and links.
class RepliesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optionsLine_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("labels");
        const QStringList two{u"Yes please"_s, u"Later"_s};
        QTest::newRow("last line") << u"Go?\n\nOPTIONS: Yes please | Later"_s << u"Go?"_s << two;
        QTest::newRow("Russian") << u"Идём?\n \tВариАнты :Yes please|Later \t"_s << u"Идём?"_s
                                 << two;
        QTest::newRow("other Russian word") << u"опции:Yes please|Later"_s << QString() << two;
        QTest::newRow("final line end")
            << u"Go?\nOptions: Yes please | Later\r\n"_s << u"Go?"_s << two;
        QTest::newRow("prose after it")
            << u"OPTIONS: a | b\nMore."_s << u"OPTIONS: a | b\nMore."_s << QStringList{};
        QTest::newRow("inside a line")
            << u"The OPTIONS: a | b"_s << u"The OPTIONS: a | b"_s << QStringList{};
        QTest::newRow("six") << u"OPTIONS: 1|2||3|4|5|6"_s << QString()
                             << QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s};
        QTest::newRow("nothing in it") << u"Go?\nOPTIONS: "_s << u"Go?"_s << QStringList{};
        QTest::newRow("two lines: the last")
            << u"OPTIONS: a|b\nOPTIONS: c|d"_s << u"OPTIONS: a|b"_s << QStringList{u"c"_s, u"d"_s};
    }
    void optionsLine() {
        QFETCH(QString, answer);
        const auto parsed = ReplyOptions::parse(answer);
        QTEST(parsed.text, "text");
        QTEST(labelsOf(parsed.chips), "labels");
        for (const ReplyChip &chip : parsed.chips)
            QCOMPARE(chip.send, chip.label);
    }

    void sources_data() {
        QTest::addColumn<ReplySources>("sources");
        QTest::addColumn<QStringList>("labels");
        const auto row = [](const char *name, const ReplySources &sources,
                            const QStringList &labels) {
            QTest::newRow(name) << sources << labels;
        };
        const QString family = u"👨‍👩‍👧"_s; // one character of eight code units
        row("choice wins, white space", {.choiceOptions = QStringList{u" a\r\nb "_s, u"c  d"_s}},
            {u"a b"_s, u"c  d"_s});
        row("longest option",
            {.choiceOptions = QStringList{family.repeated(80), u"b"_s, QString(81, u'x')}},
            {family.repeated(80), u"b"_s});
        row("empty choice",
            {.choiceOptions = QStringList{},
             .starters = QList<Starter>{{u"a"_s, u"A"_s}, {u"b"_s, u"B"_s}}},
            {});
        row("starters",
            {.starters = QList<Starter>{{u" a "_s, u"A"_s},
                                        {QString(60, u'y'), u"B"_s},
                                        {QString(61, u'n'), u"C"_s},
                                        {u"no prompt"_s, u" "_s},
                                        {u" "_s, u"no label"_s}}},
            {u"a"_s, QString(60, u'y')});
        row("confirmation", {.choiceOptions = QStringList{u"only"_s}, .confirmAsk = true},
            {u"Yes"_s, u"No"_s});
        row("confirmation wins over an error", {.confirmAsk = true, .errorMessage = u"broken"_s},
            {u"Yes"_s, u"No"_s});
        row("error", {.confirmAsk = false, .errorMessage = u"broken"_s}, recovery);
        row("error of spaces", {.confirmAsk = false, .errorMessage = u" \u00a0 "_s}, {});
        row("two options need no fallback",
            {.choiceOptions = QStringList{u"a"_s, u"b"_s}, .confirmAsk = true}, {u"a"_s, u"b"_s});
        row("one option alone stays", {.choiceOptions = QStringList{u"a"_s}}, {u"a"_s});
    }
    void sources() {
        QFETCH(ReplySources, sources);
        const auto parsed = ReplyOptions::parse(u" text "_s, sources);
        QCOMPARE(parsed.text, u" text "_s);
        QTEST(labelsOf(parsed.chips), "labels");
    }

    void longPromptIsCut() {
        const ReplySources sources{.starters = QList<Starter>{{u"a"_s, QString(401, u'x')}}};
        const auto chips = ReplyOptions::parse(QString(), sources).chips;
        QCOMPARE(chips.at(0).send.size(), 400);
    }

    void link_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("title");
        const auto row = [](const char *name, const QString &text, const QString &url,
                            const QString &title) { QTest::newRow(name) << text << url << title; };
        const QString home = u"https://kiv.example"_s;
        const QString none;
        row("path only", u"See [the plan](/project/alpha-1)."_s, home + u"/project/alpha-1"_s,
            u"Project"_s);
        row("bare, full stop", u"At https://kiv.example/team/x."_s, home + u"/team/x"_s, u"Team"_s);
        row("bare, in parentheses", u"(so: https://kiv.example/p/x)"_s, home + u"/p/x"_s,
            u"Project · public view"_s);
        row("bare on its own line", u"Look:\nhttps://kiv.example/dashboard/x…"_s,
            home + u"/dashboard/x"_s, u"Dashboard"_s);
        row("bare inside a word", u"(https://kiv.example/p/x"_s, none, none);
        row("host in capitals", u"HTTPS://KIV.Example/project/ABC"_s, home + u"/project/ABC"_s,
            u"Project"_s);
        row("foreign host", u"[x](https://other.example/project/a)"_s, none, none);
        row("foreign first",
            u"https://other.example/project/a [ ](/x) [y](https://kiv.example/team/b)"_s,
            home + u"/team/b"_s, u"Team"_s);
        row("host in the path", u"[x](//other.example/project/a)"_s, none, none);
        row("own host without a scheme", u"[x](//kiv.example/team/a)"_s, home + u"/team/a"_s,
            u"Team"_s);
        row("no host at all", u"[x](https:///project/a)"_s, none, none);
        row("second segment", u"[x](/project/a/b)"_s, none, none);
        row("profile", u"[x](/agent-profile?id=7)"_s, home + u"/agent-profile?id=7"_s,
            u"Agent profile"_s);
        row("tab", u"[x](/project/a?v=1&tab=tasks)"_s, home + u"/project/a?v=1&tab=tasks"_s,
            u"Project Work"_s);
        row("unknown tab", u"[x](/project/a?tab=other)"_s, home + u"/project/a?tab=other"_s,
            u"Project"_s);
        row("tab anywhere", u"[x](/team/a?tab=feed)"_s, home + u"/team/a?tab=feed"_s,
            u"Project Goals"_s);
        row("brackets in front", u"[[[x](/team/a)"_s, home + u"/team/a"_s, u"Team"_s);
        row("space in the target", u"[x](/team/a b)"_s, none, none);
        row("never closed", u"[x](/team/a"_s, none, none);
        row("other path", u"[x](/settings)"_s, none, none);
    }
    void link() {
        QFETCH(QString, text);
        const auto link = SurfaceMatcher::match(text, QUrl(u"https://kiv.example"_s));
        QTEST(link ? link->url.toString() : QString(), "url");
        QTEST(link ? link->title : QString(), "title");
    }

    void suggestions() {
        QCOMPARE(Suggestions::chips(u"P"_s, u"Ann"_s).at(1), u"Where is Ann stuck?"_s);
        QCOMPARE(Suggestions::chips(u"P"_s, std::nullopt).at(1), u"What's blocked in P?"_s);
        QCOMPARE(Suggestions::chips(u"P"_s, std::nullopt).size(), 4);
        QCOMPARE(Suggestions::chips(std::nullopt, std::nullopt).size(), 3);
    }

    void linkKeepsThePort() {
        const auto link =
            SurfaceMatcher::match(u"[x](/team/a)"_s, QUrl(u"http://127.0.0.1:8080"_s));
        QCOMPARE(link->url, QUrl(u"http://127.0.0.1:8080/team/a"_s));
        QVERIFY(!SurfaceMatcher::match(u"[x](/team/a)"_s, QUrl()));
    }
};

QTEST_APPLESS_MAIN(RepliesTest)
#include "RepliesTest.moc"
