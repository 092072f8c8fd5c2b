#include "text/BlockParts.h"
#include "text/MDParser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::text;
using Joint = BlockPart::Joint;

namespace {

QStringList linesOf(const MDBlock::Kind &content) {
    struct LinesOf {
        QStringList operator()(const MDBlock::Heading &heading) const { return {heading.text}; }
        QStringList operator()(const MDBlock::Paragraph &text) const {
            return text.text.split(u'\n');
        }
        QStringList operator()(const MDBlock::Bullets &bullets) const { return bullets.items; }
        QStringList operator()(const MDBlock::Ordered &ordered) const {
            QStringList lines;
            for (const auto &item : ordered.items)
                lines.append(item.text);
            return lines;
        }
        QStringList operator()(const MDBlock::Tasks &tasks) const {
            QStringList lines;
            for (const auto &item : tasks.items)
                lines.append(item.text);
            return lines;
        }
        QStringList operator()(const MDBlock::Quote &quote) const { return quote.lines; }
        QStringList operator()(const MDBlock::Code &code) const { return code.text.split(u'\n'); }
        QStringList operator()(const MDBlock::Table &table) const {
            QStringList lines;
            for (const QStringList &row : table.rows)
                lines.append(row.join(u'|'));
            return lines;
        }
        QStringList operator()(const MDBlock::Rule &) const { return {}; }
    };
    return std::visit(LinesOf(), content);
}

/// The lines of a block, put together from its parts as their joints say.
QStringList rejoined(const QList<BlockPart> &parts) {
    QStringList lines;
    for (const BlockPart &part : parts) {
        QStringList more = linesOf(part.content);
        if (part.joint == Joint::Text)
            lines.last() += more.takeFirst();
        lines += more;
    }
    return lines;
}

QString repeated(const QString &line, int count) {
    return line.repeated(count);
}

} // namespace

/// Blocks of any size come in parts that can be laid out at once.
class PartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void usualBlocksStayWhole() {
        const auto blocks = MDParser::parse(
            u"# a\n\nb\nc\n\n- d\n- e\n\n1. f\n\n- [ ] g\n\n> h\n\n```\ni\n```\n|j|\n|---|\n|k|\n---"_s);
        const auto parts = partsOf(blocks);
        QCOMPARE(parts.size(), blocks.size());
        for (qsizetype i = 0; i < parts.size(); ++i)
            QCOMPARE(parts.at(i), (BlockPart{blocks.at(i).kind, Joint::Block, int(i), true}));
    }

    void hugeBlocksAreCut_data() {
        QTest::addColumn<QString>("text");
        const QString word = u"word "_s;
        const QString face = u"\U0001F600"_s;
        QTest::newRow("a line without a space") << repeated(u"x"_s, 100'000);
        QTest::newRow("a line of words") << repeated(word, 20'000).trimmed();
        QTest::newRow("pairs") << u"x"_s + repeated(face, 50'000);
        QTest::newRow("many lines") << repeated(u"a\n"_s, 20'000).trimmed();
        QTest::newRow("bullets") << repeated(u"- item\n"_s, 20'000);
        QTest::newRow("a huge bullet between others")
            << u"- a\n- "_s + repeated(u"y"_s, 50'000) + u"\n- b"_s;
        QTest::newRow("figures") << repeated(u"7. item\n"_s, 20'000);
        QTest::newRow("tasks") << repeated(u"- [x] item\n"_s, 20'000);
        QTest::newRow("quote") << repeated(u"> q\n"_s, 20'000);
        QTest::newRow("nested quote marks") << repeated(u">"_s, 100'000);
        QTest::newRow("heading") << u"# "_s + repeated(word, 20'000).trimmed();
        QTest::newRow("code") << u"```\n"_s + repeated(u"let a = 1;\n"_s, 20'000);
        QTest::newRow("a line of code") << u"```\n"_s + repeated(u"z"_s, 100'000);
        QTest::newRow("long lines of code")
            << u"```\n"_s + repeated(repeated(u"z"_s, 1'500) + u"\nlet a = 1;\n"_s, 40);
        QTest::newRow("table") << u"|a|b|\n|---|---|\n"_s + repeated(u"|1|2|\n"_s, 5'000);
    }
    void hugeBlocksAreCut() {
        QFETCH(QString, text);
        const auto blocks = MDParser::parse(text);
        QCOMPARE(blocks.size(), 1);
        const auto parts = partsOf(blocks);
        QCOMPARE_GT(parts.size(), 1);
        QCOMPARE(parts.first().joint, Joint::Block);
        for (qsizetype i = 0; i < parts.size(); ++i) {
            QCOMPARE(parts.at(i).ends, i == parts.size() - 1);
            QCOMPARE(parts.at(i).joint == Joint::Block, i == 0);
            const QStringList lines = linesOf(parts.at(i).content);
            QCOMPARE_LE(lines.size(), 201);
            const QString words = lines.join(u'\n');
            QCOMPARE_LE(words.size(), 12'400);
            QVERIFY(words.isEmpty() || !words.front().isLowSurrogate());
            QCOMPARE_LE(words.count(u"\U0001F600"_s), 125);
        }
        QCOMPARE(rejoined(parts), linesOf(blocks.first().kind));
    }

    /// Lines of code do not wrap: what shows at once is as many of them as the view is high.
    void linesOfCodeAreBounded() {
        const QString text = u"```\na\n"_s + repeated(u"z"_s, 100'000) + u"\nb"_s;
        for (const BlockPart &part : partsOf(MDParser::parse(text))) {
            for (const QString &line : linesOf(part.content))
                QCOMPARE_LE(line.size(), 1'000);
        }
    }

    void tablesAreBounded() {
        const QString wide = u"|"_s + repeated(u"c|"_s, 5'000) + u"\n|---|\n|"_s +
                             repeated(u"d|"_s, 5'000) + u"\n|"_s + repeated(u"e"_s, 50'000);
        const auto parts = partsOf(MDParser::parse(wide));
        for (const BlockPart &part : parts) {
            const auto &table = std::get<MDBlock::Table>(part.content);
            QCOMPARE_LE(table.header.size(), 200);
            for (const QStringList &row : table.rows) {
                QCOMPARE_LE(row.size(), 200);
                QCOMPARE_LE(row.join(QString()).size(), 2'000);
            }
        }
    }

    void plainTextIsNotRead() {
        const auto parts = plainParts(u"# a\n- b"_s);
        QCOMPARE(parts.size(), 1);
        QCOMPARE(linesOf(parts.first().content), QStringList({u"# a"_s, u"- b"_s}));
    }
};

QTEST_APPLESS_MAIN(PartsTest)
#include "PartsTest.moc"
