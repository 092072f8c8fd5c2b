// What a program that takes rich text gets of a message.

#include "text/HtmlText.h"
#include "text/MDParser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::text;

class HtmlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void blocks_data() {
        QTest::addColumn<QString>("markdown");
        QTest::addColumn<QString>("html");
        QTest::newRow("styles") << u"a **b** *c* ~~d~~ `e<`"_s
                                << u"<p>a <strong>b</strong> <em>c</em> <s>d</s> "
                                   "<code>e&lt;</code></p>"_s;
        QTest::newRow("lines") << u"## T\none\ntwo"_s << u"<h2>T</h2>\n<p>one<br>two</p>"_s;
        QTest::newRow("lists") << u"- a\n- b\n\n3. c\n\n- [x] d\n- [ ] e"_s
                               << u"<ul><li>a</li><li>b</li></ul>\n"
                                  "<ol><li value=\"3\">c</li></ol>\n"
                                  "<ul><li>☑ d</li><li>☐ e</li></ul>"_s;
        QTest::newRow("table") << u"| A | B |\n|---|---|\n| 1 | **2** |"_s
                               << u"<table><thead><tr><th>A</th><th>B</th></tr></thead><tbody><tr>"
                                  "<td>1</td><td><strong>2</strong></td></tr></tbody></table>"_s;
        QTest::newRow("code, quote, rule") << u"```\na &amp; <b>\n```\n> q\n\n---"_s
                                           << u"<pre><code>a &amp;amp; &lt;b&gt;</code></pre>\n"
                                              "<blockquote><p>q</p></blockquote>\n<hr>"_s;
        // Nothing of it runs, and nothing is fetched.
        QTest::newRow("hostile")
            << u"<script>x</script> ![p](https://a.example/p.png) [l](javascript:x) "
               "[q](https://a.example/\"onclick=x)"_s
            << u"<p>&lt;script&gt;x&lt;/script&gt; p l <a href=\"https://a.example/&quot;"
               "onclick=x\">q</a></p>"_s;
    }
    void blocks() {
        QFETCH(QString, markdown);
        QTEST(htmlOf(MDParser::parse(markdown)), "html");
    }
};

QTEST_APPLESS_MAIN(HtmlTest)
#include "HtmlTest.moc"
