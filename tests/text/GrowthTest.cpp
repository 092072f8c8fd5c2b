// Every reader of what comes from outside, on four times the input: it takes about four times as
// long. What grows with the square takes sixteen times.

#include "base/JVal.h"
#include "canvas/AnswerBlock.h"
#include "canvas/ReplyOptions.h"
#include "canvas/SurfaceMatcher.h"
#include "net/ChatRecords.h"
#include "net/Decode.h"
#include "net/LineSplitter.h"
#include "support/WorkingTime.h"
#include "text/BlockParts.h"
#include "text/FoldedText.h"
#include "text/HtmlText.h"
#include "text/MDParser.h"
#include "text/SearchText.h"

#include <QTest>

#include <limits>
#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace kiv;

using Read = std::function<void(const QByteArray &)>;
Q_DECLARE_METATYPE(Read)

namespace {

constexpr double times = 4;
constexpr double bound = 9; // between the 4 of a line and the 16 of a square
constexpr qsizetype least = 16 * 1024;
constexpr qsizetype most = 512 * 1024;

/// The least of some runs: what disturbs one makes it longer only.
double timeOf(const Read &read, const QByteArray &input) {
    double best = 1e9;
    for (int run = 0; run < 3; ++run) {
        const double start = test::workingTime();
        read(input);
        best = std::min(best, test::workingTime() - start);
    }
    return best;
}

/// `piece` over and over between `open` and `close`, of about this size.
using Input = std::array<QByteArray, 3>;
QByteArray inputOf(const Input &input, qsizetype size) {
    return input[0] + input[1].repeated(size / input[1].size()) + input[2];
}

void readStream(const QByteArray &bytes, qsizetype piece) {
    net::LineSplitter lines;
    net::SSEFrameParser frames;
    for (qsizetype at = 0; at < bytes.size(); at += piece)
        lines.feed(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)),
                   [&](QByteArrayView line) { frames.feed(line); });
}

void readJson(const QByteArray &bytes) {
    if (const auto value = JVal::parse(bytes))
        value->canonical();
}

void readPage(const QByteArray &bytes) {
    try {
        net::decodeBody<net::ChatPage>(bytes);
    } catch (const DecodingError &) {
    }
}

void readMessage(const QByteArray &bytes) {
    const auto blocks = text::MDParser::parse(QString::fromUtf8(bytes));
    const auto parts = text::partsOf(blocks);
    text::htmlOf(blocks);
    text::SearchText(parts, text::SearchText::Markup::Read).find(text::FoldedText(u"ab"_s));
}

void readAnswer(const QByteArray &bytes) {
    const QString text = QString::fromUtf8(bytes);
    canvas::CanvasEngine::extractViewSpec(text);
    canvas::SurfaceMatcher::match(text, QUrl(u"https://kiv.example"_s));
    canvas::ReplyOptions::parse(text);
}

void search(const QByteArray &bytes) {
    const QString text = QString::fromUtf8(bytes);
    const text::FoldedText folded(text);
    folded.find(text::FoldedText(text.left(1)));
    folded.find(text::FoldedText(text.left(100) + u'!'));
}

} // namespace

Q_DECLARE_METATYPE(Input)

class GrowthTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Memory stays with the program once it has it: what the system takes to hand it out, page by
    /// page, does not grow evenly, and is nobody's work here.
    void initTestCase() {
        mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
        mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    }

    void isLinear_data() {
        QTest::addColumn<Read>("read");
        QTest::addColumn<Input>("input");
        const auto rows = [](const char *name, const Read &read, const QList<Input> &inputs) {
            for (const Input &input : inputs)
                QTest::addRow("%s: %s%s", name, input[0].left(12).constData(),
                              input[1].left(24).constData())
                    << read << input;
        };
        rows("bytes", [](const QByteArray &bytes) { readStream(bytes, 1); }, {{"", "x", "\n"}});
        rows("stream", [](const QByteArray &bytes) { readStream(bytes, 1400); },
             {{"", "data: x\n\n", ""},
              {"", "\n", ""},
              {"", "a\n", "\r"},
              {"", "data: x\n", "\n"},
              {"", "\r", ""},
              {"", "\n\r", ""},
              {"data: ", "x", "\n\n"},
              {"", ": comment\n", ""},
              {"", "event: x\r\n", "\n"}});
        rows("JSON", readJson,
             {{"[", "1,", "1]"},
              {"[", "1e400,", "1]"},
              {"[\"", "\\ud83d", "\"]"},
              {"[\"", "\\\\", "\"]"},
              {"{", "\"a\":1,", "\"b\":1}"},
              {"", "[", ""},
              {"[", "[],", "[]]"},
              {"[\"", "\xd0\x96", "\"]"},
              {"[18446744073709551616,\"", "\\u", "\"]"}});
        rows("page", readPage,
             {{R"({"messages":[)", R"({"role":"user","content":"x","metadata":{"view":[1]}},)",
               R"({"role":"a","content":""}]})"},
              {R"({"messages":[{"role":"a","content":"")", R"(,"more":1)", "}]}"}});
        QList<Input> texts;
        for (const char *piece :
             {"| a | b |\n",  "|a\n|---\n", "|",         "- a\n",   "- [x] a\n", "> q\n", ">\n",
              "> ",           "```\n",      "# h\n",     "# #",     "#",         "a\n\n", "1. a\n",
              "1.a\n",        "7",          "---\n",     "-",       "\n",        " ",     "*a",
              "*a_b",         "**",         "**a *",     "_",       "[a](",      "[",     "](",
              "![",           "![a](",      "`",         "`a``",    "~~",        "~~a~",  "<",
              "<a ",          "&",          "&#",        "&amp;",   "\\",        "a:",    "http://",
              "https://a.b ", "a@b.c ",     "e\xcc\x81", "\xc3\x9f"})
            texts.append({"", piece, ""});
        texts.append({"", "a **b** `c` [d](https://e.f)\n", ""});
        texts.append({"| a |\n|---|\n", "| 1 |\n", ""});
        texts.append({"", "|a", "\n|-\n"});
        rows("message", readMessage, texts);
        rows("search", search,
             {{"", "a", ""}, {"", "ab", ""}, {"", "\xc3\x9f", ""}, {"", "Straße, e\xcc\x81 ", ""}});
        rows("answer", readAnswer, texts);
    }
    void isLinear() {
        QFETCH(Read, read);
        QFETCH(Input, input);
        // From where it takes long enough to be measured.
        constexpr double measurable = 0.002;
        qsizetype size = least;
        double once = timeOf(read, inputOf(input, size));
        while (once < measurable && size < most) {
            size *= 2;
            once = timeOf(read, inputOf(input, size));
        }
        const double more = timeOf(read, inputOf(input, static_cast<qsizetype>(times) * size));
        const QString found = u"%1 KiB: %2 ms, %3 times that: %4 ms"_s.arg(size / 1024)
                                  .arg(once * 1e3, 0, 'f', 2)
                                  .arg(times)
                                  .arg(more * 1e3, 0, 'f', 2);
        if (qEnvironmentVariableIsSet("KIV_TIMINGS"))
            qInfo("%s", qPrintable(found));
        // What is too quick to be measured cannot be slow.
        QVERIFY2(more < measurable || more < bound * once, qPrintable(found));
    }
};

QTEST_APPLESS_MAIN(GrowthTest)
#include "GrowthTest.moc"
