#include "text/MDParser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::text;
using MDParser::Style;

namespace {

/// Spans in one line: the letters of the styles, the text, the link, such as "b{word}" or
/// "{word}(https://x)".
QString described(const QString &text) {
    QString result;
    for (const MDParser::InlineSpan &span : MDParser::inlineSpans(text)) {
        if (span.styles & Style::Bold)
            result += u'b';
        if (span.styles & Style::Italic)
            result += u'i';
        if (span.styles & Style::Code)
            result += u'c';
        if (span.styles & Style::Strike)
            result += u's';
        result += u'{' + span.text + u'}';
        if (!span.link.isEmpty())
            result += u'(' + span.link + u')';
    }
    return result;
}

} // namespace

class SpansTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void spans_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &text, const QString &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("nothing", u""_s, u""_s);
        row("plain", u"a b"_s, u"{a b}"_s);
        row("styles", u"**b** *i* _i_ ***bi*** `c` ~~s~~"_s,
            u"b{b}{ }i{i}{ }i{i}{ }bi{bi}{ }c{c}{ }s{s}"_s);
        row("nested", u"**a *b* c**"_s, u"b{a }bi{b}b{ c}"_s);
        row("unclosed", u"**a and `b"_s, u"{**a and `b}"_s);
        row("inside a word", u"snake_case_name and 2*3*4"_s, u"{snake_case_name and 2}i{3}{4}"_s);
        row("code keeps its marks", u"`**a** [b](https://c)`"_s, u"c{**a** [b](https://c)}"_s);
        row("escaped", u"\\*a\\*"_s, u"{*a*}"_s);
        row("spaces at the ends stay", u" **a** \t"_s, u"{ }b{a}{ \t}"_s);
        row("line feeds stay", u"**a\nb**\nc"_s, u"b{a\nb}{\nc}"_s);

        row("link", u"see [the **page**](https://a.b/c?d=e&f) now"_s,
            u"{see }{the }(https://a.b/c?d=e&f)b{page}(https://a.b/c?d=e&f){ now}"_s);
        row("mail", u"[us](mailto:a@b.c)"_s, u"{us}(mailto:a@b.c)"_s);
        row("bare address", u"at https://a.b/c."_s, u"{at }{https://a.b/c}(https://a.b/c){.}"_s);
        row("marks across an address", u"https://a.bm***a** b *c*"_s,
            u"{https://a.bm*}b{a}{ b }i{c}"_s);
        row("in angles", u"<https://a.b>"_s, u"{https://a.b}(https://a.b)"_s);
        row("other schemes are words", u"[a](javascript:x) [b](file:///etc) [c](//d) [e](data:x)"_s,
            u"{a b c e}"_s);
        row("a path of the platform", u"[a](/project/b?tab=tasks)"_s,
            u"{a}(/project/b?tab=tasks)"_s);
        row("an image shows its words", u"![a *cat*](https://a.b/c.png)"_s, u"{a }i{cat}"_s);

        row("HTML is text", u"<b>a</b> <script>x</script>"_s, u"{<b>a</b> <script>x</script>}"_s);
        row("entities", u"&lt;a&gt; &amp; &#65;&#x42; &nbsp;&unknown; &#0;"_s,
            u"{<a> & AB \u00a0&unknown; \ufffd}"_s);

        row("no blocks", u"# *a*\n===\n> b\n--\n+ c\n~~~\n    d\n[e]: /f\nhttps://g.h"_s,
            u"{# }i{a}{\n===\n> b\n--\n+ c\n~~~\n    d\n[e]: /f\n}{https://g.h}(https://g.h)"_s);
        row("commas stay", u",*a*,"_s, u"{,}i{a}{,}"_s);
        row("marks at both ends", u"*a*"_s, u"i{a}"_s);
        row("Cyrillic", u"**Выручка** и _план_"_s, u"b{Выручка}{ и }i{план}"_s);
        row("a lone surrogate", u"*a*"_s + QChar(0xd800), u"i{a}{\ufffd}"_s);
        row("a null", u"*a*"_s + QChar(0), u"i{a}{\ufffd}"_s);
    }
    void spans() {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(described(text), expected);
    }
};

QTEST_APPLESS_MAIN(SpansTest)
#include "SpansTest.moc"
