// A megabyte of answers as markdown, beside what other readers make of the same text.

#include "Measure.h"

#include "text/MDParser.h"

#include <QTextDocument>

#include <benchmark/benchmark.h>
#include <cmark.h>
#include <md4c.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;
using text::MDBlock;

namespace {

constexpr QStringView answer =
    u"## Where we stand, week %1\n\n"
    "Revenue grew by **4.2 %** to €18,%1; the *pilot* in `region-%1` "
    "is ahead of [its plan](https://example.org/plan/%1).\n"
    "Two contracts wait for a signature — see below.\n\n"
    "- Ads: $1,200 (+4%)\n- Hosting: $17,300, **1,800** over plan\n"
    "- Travel: none\n\n"
    "1. Sign the contract\n2. Move the `billing` job\n\n"
    "| Name | Plan | Actual |\n|---|---:|---:|\n"
    "| Ads | 1,000 | 1,200 |\n| Hosting | 15,500 | 17,300 |\n\n"
    "> The quarter ends on the 31st.\n\n"
    "- [x] Report sent\n- [ ] Budget agreed\n\n"
    "```sql\nselect name, plan, actual\nfrom lines where week = %1;\n```\n\n"
    "---\n\n";

QString corpus() {
    QString text;
    for (int week = 0; text.size() < 1'000'000; ++week)
        text += answer.toString().arg(week);
    return text;
}

void readSpans(const QString &text) {
    auto spans = text::MDParser::inlineSpans(text);
    benchmark::DoNotOptimize(spans);
}

/// What the bubble reads of each block that has words.
struct ReadSpans {
    void operator()(const MDBlock::Heading &heading) const { readSpans(heading.text); }
    void operator()(const MDBlock::Paragraph &paragraph) const { readSpans(paragraph.text); }
    void operator()(const MDBlock::Bullets &bullets) const {
        std::ranges::for_each(bullets.items, readSpans);
    }
    void operator()(const MDBlock::Ordered &ordered) const {
        for (const auto &item : ordered.items)
            readSpans(item.text);
    }
    void operator()(const MDBlock::Tasks &tasks) const {
        for (const auto &item : tasks.items)
            readSpans(item.text);
    }
    void operator()(const MDBlock::Quote &quote) const {
        std::ranges::for_each(quote.lines, readSpans);
    }
    void operator()(const MDBlock::Table &table) const {
        std::ranges::for_each(table.header, readSpans);
        for (const QStringList &row : table.rows)
            std::ranges::for_each(row, readSpans);
    }
    void operator()(const MDBlock::Code &) const {}
    void operator()(const MDBlock::Rule &) const {}
};

double md4cTime(const QByteArray &utf8) {
    MD_PARSER parser{};
    parser.flags = MD_FLAG_NOHTML | MD_FLAG_TABLES | MD_FLAG_TASKLISTS | MD_FLAG_STRIKETHROUGH |
                   MD_FLAG_PERMISSIVEURLAUTOLINKS;
    parser.enter_block = parser.leave_block = [](MD_BLOCKTYPE, void *, void *) { return 0; };
    parser.enter_span = parser.leave_span = [](MD_SPANTYPE, void *, void *) { return 0; };
    parser.text = [](MD_TEXTTYPE, const MD_CHAR *, MD_SIZE size, void *sum) {
        *static_cast<quint64 *>(sum) += size;
        return 0;
    };
    return measure(u"md4c"_s, [&] {
        quint64 sum = 0;
        md_parse(utf8.constData(), static_cast<MD_SIZE>(utf8.size()), &parser, &sum);
        benchmark::DoNotOptimize(sum);
    });
}

double cmarkTime(const QByteArray &utf8) {
    return measure(u"cmark"_s, [&] {
        cmark_node *document = cmark_parse_document(
            utf8.constData(), static_cast<size_t>(utf8.size()), CMARK_OPT_DEFAULT);
        benchmark::DoNotOptimize(document);
        cmark_node_free(document);
    });
}

/// It takes many seconds.
double textDocumentTime(const QString &text) {
    return measureOnce([&] {
        QTextDocument document;
        document.setMarkdown(text);
        benchmark::DoNotOptimize(document);
    });
}

} // namespace

QList<Row> markdown() {
    const QString text = corpus();
    const QByteArray utf8 = text.toUtf8();
    const double blocks = measure(u"blocks"_s, [&] {
        auto parsed = text::MDParser::parse(text);
        benchmark::DoNotOptimize(parsed);
    });
    const double spans = measure(u"blocks and spans"_s, [&] {
        for (const MDBlock &block : text::MDParser::parse(text))
            std::visit(ReadSpans(), block.kind);
    });
    const double md4c = md4cTime(utf8);
    const double cmark = cmarkTime(utf8);
    const double document = textDocumentTime(text);
    return {{u"markdown"_s, blocks, u"md4c"_s, md4c, 2 * md4c},
            {u"markdown, spans"_s, spans, u"cmark"_s, cmark, cmark},
            {u"markdown, spans"_s, spans, u"QTextDocument"_s, document, document}};
}

} // namespace kiv::bench
