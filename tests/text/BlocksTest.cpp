#include "text/MDParser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::text;

namespace {

/// A block in one line, such as "h2 Title" or "ul one / two".
QString described(const MDBlock &block) {
    struct Describe {
        QString operator()(const MDBlock::Heading &heading) const {
            return u"h%1 %2"_s.arg(heading.level).arg(heading.text);
        }
        QString operator()(const MDBlock::Paragraph &paragraph) const {
            return u"p "_s + paragraph.text;
        }
        QString operator()(const MDBlock::Bullets &bullets) const {
            return u"ul "_s + bullets.items.join(u" / ");
        }
        QString operator()(const MDBlock::Ordered &ordered) const {
            QStringList items;
            for (const auto &item : ordered.items)
                items.append(u"%1 %2"_s.arg(item.number).arg(item.text));
            return u"ol "_s + items.join(u" / ");
        }
        QString operator()(const MDBlock::Tasks &tasks) const {
            QStringList items;
            for (const auto &item : tasks.items)
                items.append((item.done ? u"+"_s : u"-"_s) + item.text);
            return u"tasks "_s + items.join(u" / ");
        }
        QString operator()(const MDBlock::Quote &quote) const {
            return u"quote "_s + quote.lines.join(u" / ");
        }
        QString operator()(const MDBlock::Code &code) const { return u"code "_s + code.text; }
        QString operator()(const MDBlock::Table &table) const {
            QStringList rows{table.header.join(u",")};
            for (const QStringList &row : table.rows)
                rows.append(row.join(u","));
            return u"table "_s + rows.join(u" / ");
        }
        QString operator()(const MDBlock::Rule &) const { return u"rule"_s; }
    };
    return std::visit(Describe(), block.kind);
}

QStringList described(const QString &text) {
    QStringList result;
    for (const MDBlock &block : MDParser::parse(text))
        result.append(described(block));
    return result;
}

} // namespace

class BlocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void blocks_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QString &text, const QStringList &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("nothing", u""_s, {});
        row("blank lines", u"\n \t\n\u00a0\n"_s, {});

        row("headings", u"# a\n## b ##\n### x ###\n##### deep\n  # inset"_s,
            {u"h1 a"_s, u"h2 b"_s, u"h3 x"_s, u"h3 deep"_s, u"h1 inset"_s});
        row("no headings", u"####### seven\n\n#word\n\n# ##\n\n#\ttab"_s,
            {u"p ####### seven"_s, u"p #word"_s, u"p # ##"_s, u"p #\ttab"_s});
        row("closing hashes apart", u"## a # #"_s, {u"h2 a"_s});

        row("rules", u"---\n***\n_____"_s, {u"rule"_s, u"rule"_s, u"rule"_s});
        row("lists before rules", u"* * *\n- - -"_s, {u"ul * * / - -"_s});
        row("no rules", u"--\n\n-*-\n\n__ _"_s, {u"p --"_s, u"p -*-"_s, u"p __ _"_s});

        row("bullets", u"- a\n* b\n•\tc\n  - d"_s, {u"ul a / b / c / d"_s});
        row("no bullets", u"+ a\n\n-a\n\n- \n\n-"_s, {u"p + a"_s, u"p -a"_s, u"p -"_s, u"p -"_s});
        row("tasks", u"- [x] done\n* [ ] open\n- [X]close"_s, {u"tasks +done / -open / +close"_s});
        row("tasks end bullets", u"- a\n- [ ] b\n- [y] c"_s,
            {u"ul a"_s, u"tasks -b"_s, u"ul [y] c"_s});
        row("an empty task is a bullet", u"- [x]\n- [ ] "_s, {u"ul [x] / [ ]"_s});

        row("numbers as written", u"1) a\n2. b\n7.c"_s, {u"ol 1 a / 2 b / 7 c"_s});
        row("a list from seven", u"7. a\n7. b"_s, {u"ol 7 a / 7 b"_s});
        row("no numbers", u"1.\n\n1 a\n\n٣. a\n\n99999999999999999999. a"_s,
            {u"p 1."_s, u"p 1 a"_s, u"p ٣. a"_s, u"p 99999999999999999999. a"_s});

        row("quote", u"> a\n>b\n  >  > c\nd"_s, {u"quote a / b / > c"_s, u"p d"_s});
        row("code", u"```cpp\n  a\n\n- b\n```\nc"_s, {u"code   a\n\n- b"_s, u"p c"_s});
        row("unclosed code", u"```\na\n# b"_s, {u"code a\n# b"_s});
        row("code without a line", u"```"_s, {u"code "_s});
        row("a fence with words closes", u"```\na\n```b\nc"_s, {u"code a"_s, u"p c"_s});

        row("table", u"| a | b |\n|---|:-:|\n| 1 ||\n|---|\n|2|3|4\nend"_s,
            {u"table a,b / 1, / 2,3,4"_s, u"p end"_s});
        row("a spaced rule", u"|a|b\n | - - - | : "_s, {u"table a,b"_s});
        row("pipes without a rule", u"| a | b |\n| 1 | 2 |"_s,
            {u"p | a | b |"_s, u"p | 1 | 2 |"_s});
        row("a short rule is none", u"|a|\n|--|"_s, {u"p |a|"_s, u"p |--|"_s});

        row("two paragraphs", u"a\nb\n\nc"_s, {u"p a\nb"_s, u"p c"_s});
        row("lines are trimmed", u"  a \n\tb\u2003"_s, {u"p a\nb"_s});
        row("what ends a paragraph",
            u"a\n```\n```\nb\n> q\nc\n|d\ne\n- [ ] t\nf\n- g\nh\n1. i\nj\n# k\nl\n---\nm"_s,
            {u"p a"_s, u"code "_s, u"p b"_s, u"quote q"_s, u"p c"_s, u"p |d\ne"_s, u"tasks -t"_s,
             u"p f"_s, u"ul g"_s, u"p h"_s, u"ol 1 i"_s, u"p j"_s, u"h1 k"_s, u"p l"_s, u"rule"_s,
             u"p m"_s});
        row("line ends with a return", u"a\r\nb\r\n\r\n```\r\nc\r\n```\r\n|h|\r\n|---|\r\n|1|"_s,
            {u"p a\nb"_s, u"code c"_s, u"table h / 1"_s});
    }
    void blocks() {
        QFETCH(QString, text);
        QFETCH(QStringList, expected);
        QCOMPARE(described(text), expected);
    }

    /// The same text keeps its ids, and every block has one of its own; parsing makes new ones.
    void ids() {
        const QString text = u"- a\n\nb\n\n- a"_s;
        const auto first = MDParser::blocks(text);
        const auto again = MDParser::blocks(QString(text.constData(), text.size()));
        const auto fresh = MDParser::parse(text);
        QSet<QUuid> ids;
        for (qsizetype i = 0; i < first.size(); ++i) {
            QCOMPARE(first[i].id, again[i].id);
            ids << first[i].id << fresh[i].id;
        }
        QCOMPARE(ids.size(), 6);
        for (const QUuid &id : ids)
            QCOMPARE(id.version(), QUuid::Random);
    }
    void cacheForgets_data() {
        QTest::addColumn<int>("others");
        QTest::addColumn<int>("length");
        QTest::newRow("many texts") << 400 << 1;
        QTest::newRow("few long ones") << 4 << 1'000'000;
    }
    void cacheForgets() {
        QFETCH(int, others);
        QFETCH(int, length);
        const auto before = MDParser::blocks(u"kept"_s);
        QCOMPARE(MDParser::blocks(u"kept"_s).first().id, before.first().id);
        for (int i = 0; i < others; ++i)
            MDParser::blocks(QString::number(i) + QString(length, u'x'));
        QVERIFY(MDParser::blocks(u"kept"_s).first().id != before.first().id);
    }
};

QTEST_APPLESS_MAIN(BlocksTest)
#include "BlocksTest.moc"
