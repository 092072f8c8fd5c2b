// Finding words in a message as it shows: what counts as the same word, and where it stands.

#include "text/MDParser.h"
#include "text/SearchText.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::text;

namespace {

/// What `words` find in `text`, as pieces of it.
QStringList found(const QString &text, const QString &words) {
    QStringList pieces;
    for (const FoldedText::Range &range : FoldedText(text).find(FoldedText(words)))
        pieces.append(text.mid(range.start, range.length));
    return pieces;
}

QStringList places(const QString &markdown, const QString &words) {
    const SearchText text(partsOf(MDParser::parse(markdown)), SearchText::Markup::Read);
    QStringList places;
    for (const WordPlace &place : text.find(FoldedText(words)))
        places.append(
            u"%1.%2 %3+%4"_s.arg(place.part).arg(place.line).arg(place.start).arg(place.length));
    return places;
}

} // namespace

class SearchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameWord_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("pieces");
        const auto row = [](const char *name, const QString &text, const QString &words,
                            const QStringList &pieces) {
            QTest::newRow(name) << text << words << pieces;
        };
        row("nothing to look for", u"abc"_s, u""_s, {});
        row("apart from each other", u"aaaa"_s, u"aa"_s, {u"aa"_s, u"aa"_s});
        row("case", u"Total, TOTAL and total"_s, u"tOtAl"_s, {u"Total"_s, u"TOTAL"_s, u"total"_s});
        row("Cyrillic", u"Отчёт и ОТЧЁТ"_s, u"отчёт"_s, {u"Отчёт"_s, u"ОТЧЁТ"_s});
        row("another letter", u"МОЙ мои"_s, u"мой"_s, {u"МОЙ"_s});
        row("sharp s", u"Straße STRASSE strasse STRAẞE"_s, u"STRASSE"_s,
            {u"Straße"_s, u"STRASSE"_s, u"strasse"_s, u"STRAẞE"_s});
        row("sharp s, looked for", u"STRASSE, Straße"_s, u"straße"_s, {u"STRASSE"_s, u"Straße"_s});
        row("half a sharp s", u"aß"_s, u"as"_s, {});
        row("sigma", u"ΣΟΦΟΣ σοφός σοφος"_s, u"σοφοσ"_s, {u"ΣΟΦΟΣ"_s, u"σοφος"_s});
        row("Turkish i", u"İstanbul istanbul Istanbul ıstanbul"_s, u"istanbul"_s,
            {u"İstanbul"_s, u"istanbul"_s, u"Istanbul"_s, u"ıstanbul"_s});
        row("Turkish i, looked for", u"DİYARBAKIR"_s, u"Diyarbakır"_s, {u"DİYARBAKIR"_s});
        row("accent as a mark", u"caf\u00e9, cafe\u0301, cafe"_s, u"CAFE\u0301"_s,
            {u"caf\u00e9"_s, u"cafe\u0301"_s});
        row("letter without its accent", u"cafe\u0301 cafe"_s, u"cafe"_s, {u"cafe"_s});
        row("ligature", u"o\ufb03ce"_s, u"OFFICE"_s, {u"o\ufb03ce"_s});
        row("beyond the first plane", u"x𐐀y𐐨z"_s, u"𐐨"_s, {u"𐐀"_s, u"𐐨"_s});
        row("blanks", u"€1\u00a0240 and\u202f5"_s, u"1 240 and 5"_s, {u"1\u00a0240 and\u202f5"_s});
        row("broken pairs", QChar(0xd801) + u"aß"_s + QChar(0xdc00), u"ass"_s, {u"aß"_s});
    }
    void sameWord() {
        QFETCH(QString, text);
        QFETCH(QString, words);
        QTEST(found(text, words), "pieces");
    }

    void whereItShows_data() {
        QTest::addColumn<QString>("markdown");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("found");
        const auto row = [](const char *name, const QString &markdown, const QString &words,
                            const QStringList &found) {
            QTest::newRow(name) << markdown << words << found;
        };
        row("across marks", u"The **to**tal `sum`"_s, u"total sum"_s, {u"0.0 4+9"_s});
        row("marks themselves", u"**bold**"_s, u"*"_s, {});
        row("address of a link", u"[notes](https://a.example/total)"_s, u"total"_s, {});
        row("lines", u"# One\nfirst one\nsecond ONE"_s, u"one"_s,
            {u"0.0 0+3"_s, u"1.0 6+3"_s, u"1.1 7+3"_s});
        row("not over a line's end", u"first\nsecond"_s, u"first second"_s, {});
        row("over the cut of a long paragraph", QString(2490, u'x') + u" left rightmost"_s,
            u"left right"_s, {u"0.0 2491+5"_s});
        row("items", u"- a\n- *b* a\n\n3. a\n4. b\n\n- [x] b a"_s, u"a"_s,
            {u"0.0 0+1"_s, u"0.1 2+1"_s, u"1.0 0+1"_s, u"2.0 2+1"_s});
        row("cells", u"| Sum | B |\n|---|---|\n| 1 | **sum** |\n| sum |"_s, u"sum"_s,
            {u"0.0 0+3"_s, u"0.3 0+3"_s, u"0.4 0+3"_s});
        row("code as it is", u"```\n**a**\n  a\n```\n> a"_s, u"a"_s,
            {u"0.0 2+1"_s, u"0.1 2+1"_s, u"1.0 0+1"_s});
    }
    void whereItShows() {
        QFETCH(QString, markdown);
        QFETCH(QString, words);
        QTEST(places(markdown, words), "found");
    }

    void typedWordsStand() {
        const SearchText text(plainParts(u"a **b**\n`b`"_s), SearchText::Markup::None);
        QCOMPARE(text.find(FoldedText(u"*B"_s)), (QList<WordPlace>{{0, 0, 3, 2}}));
        QCOMPARE(text.find(FoldedText(u"b"_s)), (QList<WordPlace>{{0, 0, 4, 1}, {0, 1, 1, 1}}));
    }
};

QTEST_APPLESS_MAIN(SearchTest)
#include "SearchTest.moc"
