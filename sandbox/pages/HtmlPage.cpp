#include "HtmlPage.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

const QString style = uR"(
:root{color-scheme:light dark;--bg:#fff;--t1:#141722;--t2:#474d5f;--t3:#616880;--line:#e4e6ee;
--inset:#f7f8fb;--accent:#5a38d6;--tint:#f1edff}
@media (prefers-color-scheme:dark){:root{--bg:#181b25;--t1:#f1f2f7;--t2:#b6bccb;--t3:#949bb0;
--line:#272b38;--inset:#1d212d;--accent:#b3a3ff;--tint:#2a274c}}
*{box-sizing:border-box}
body{margin:0;background:var(--bg);color:var(--t1);font:14px/21px Inter,system-ui,sans-serif;
font-variant-numeric:tabular-nums}
main{max-width:1000px;margin:0 auto;padding:16px 32px 32px}
h1{font-size:24px;line-height:30px;letter-spacing:-.4px;margin:0 0 4px;font-weight:600}
h2{font-size:16px;line-height:22px;margin:32px 0 8px;font-weight:600}
p{margin:0 0 4px;color:var(--t2);max-width:68ch}
a{color:var(--accent)}
nav{display:flex;flex-wrap:wrap;gap:4px;margin:16px 0 24px;border-bottom:1px solid var(--line);
padding-bottom:8px}
nav a{padding:6px 12px;border-radius:8px;text-decoration:none;color:var(--t2);font-weight:500}
nav a:hover,nav a[aria-current]{background:var(--tint);color:var(--accent)}
a:focus-visible{outline:2px solid var(--accent);outline-offset:1px}
dl{display:grid;grid-template-columns:repeat(auto-fit,minmax(170px,1fr));gap:12px;margin:16px 0 0}
dl div{background:var(--inset);border:1px solid var(--line);border-radius:12px;padding:12px 16px}
dt{color:var(--t3);font-size:12px;line-height:16px}
dd{margin:4px 0 0;font-size:20px;line-height:26px;font-weight:600}
ul{margin:8px 0;padding-left:20px}li{margin:4px 0}
.scroll{overflow-x:auto}
table{border-collapse:collapse;width:100%}
th,td{text-align:left;padding:8px 16px 8px 0;border-bottom:1px solid var(--line);font-weight:400}
thead th{color:var(--t3);font-size:12px;font-weight:600}
tbody th{font-weight:500}
::-webkit-scrollbar{width:12px;height:12px}
::-webkit-scrollbar-thumb{background:var(--line);border:3px solid var(--bg);border-radius:6px}
.n{text-align:right;white-space:nowrap;padding-right:0;padding-left:16px}
)"_s;

} // namespace

HtmlPage::HtmlPage(const QString &heading) : m_title(heading.toHtmlEscaped()) {
    m_body = u"<h1>%1</h1>"_s.arg(m_title);
}

HtmlPage &HtmlPage::line(const QString &text) {
    m_body += u"<p>%1</p>"_s.arg(text.toHtmlEscaped());
    return *this;
}

HtmlPage &HtmlPage::section(const QString &heading) {
    m_body += u"<h2>%1</h2>"_s.arg(heading.toHtmlEscaped());
    return *this;
}

HtmlPage &HtmlPage::links(const QList<Link> &links) {
    m_body += u"<nav>"_s;
    for (const Link &link : links)
        m_body += u"<a href=\""_s + link.path.toHtmlEscaped() + u'"' +
                  (link.isHere ? u" aria-current=\"page\""_s : QString()) + u'>' +
                  link.text.toHtmlEscaped() + u"</a>"_s;
    m_body += u"</nav>"_s;
    return *this;
}

HtmlPage &HtmlPage::figures(const QList<Figure> &figures) {
    m_body += u"<dl>"_s;
    for (const Figure &figure : figures)
        m_body += u"<div><dt>"_s + figure.label.toHtmlEscaped() + u"</dt><dd>"_s +
                  figure.value.toHtmlEscaped() + u"</dd></div>"_s;
    m_body += u"</dl>"_s;
    return *this;
}

HtmlPage &HtmlPage::list(const QStringList &points) {
    m_body += u"<ul>"_s;
    for (const QString &point : points)
        m_body += u"<li>"_s + point.toHtmlEscaped() + u"</li>"_s;
    m_body += u"</ul>"_s;
    return *this;
}

HtmlPage &HtmlPage::table(const QList<Column> &columns, const QList<QStringList> &rows) {
    if (rows.isEmpty())
        return line(u"Nothing yet."_s);
    const auto cell = [&](const QString &tag, qsizetype column, const QString &text) {
        const QString mark = columns.at(column).isFigure ? u" class=\"n\""_s : QString();
        return u'<' + tag + mark + u'>' + text.toHtmlEscaped() + u"</"_s + tag + u'>';
    };
    m_body += u"<div class=\"scroll\"><table><thead><tr>"_s;
    for (qsizetype column = 0; column < columns.size(); ++column)
        m_body += cell(u"th"_s, column, columns.at(column).name);
    m_body += u"</tr></thead><tbody>"_s;
    for (const QStringList &row : rows) {
        m_body += u"<tr>"_s;
        for (qsizetype column = 0; column < columns.size(); ++column)
            m_body += cell(column == 0 ? u"th"_s : u"td"_s, column, row.value(column));
        m_body += u"</tr>"_s;
    }
    m_body += u"</tbody></table></div>"_s;
    return *this;
}

Reply HtmlPage::reply(int status) const {
    Reply reply =
        Reply::html(u"<!doctype html><html lang=\"en\"><head><meta charset=\"utf-8\">"
                    "<meta name=\"viewport\" content=\"width=device-width\"><title>"_s +
                        m_title + u"</title><style>"_s + style + u"</style></head><body><main>"_s +
                        m_body + u"</main></body></html>"_s,
                    status);
    reply.headers = {{"Content-Security-Policy", "default-src 'none'; style-src 'unsafe-inline'; "
                                                 "base-uri 'none'; form-action 'none'; "
                                                 "frame-ancestors 'none'"},
                     {"Cache-Control", "no-store"}};
    return reply;
}

} // namespace kiv::sandbox
