#include "text/MDParser.h"
#include "text/WebLink.h"

#include <algorithm>
#include <array>
#include <md4c.h>
#include <vector>

namespace kiv::text::MDParser {

namespace {

using namespace Qt::StringLiterals;

/// The reader sees a block's text as one line of a paragraph: line feeds travel as vertical tabs,
/// which are white space to it, and a comma at both ends keeps it from seeing block mark-up and
/// from dropping white space there. Emphasis opens and closes beside a comma as it does at the ends
/// of a text.
constexpr char16_t lineFeed = u'\v';
constexpr char16_t guard = u',';

QByteArray asOneLine(const QString &text) {
    QString line(text.size() + 2, Qt::Uninitialized);
    QChar *out = line.data();
    *out++ = guard;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\n')
            *out++ = QChar(lineFeed);
        else if (c == u'\r' || c == u'\v')
            *out++ = u' ';
        else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            *out++ = c;
            *out++ = text[++i];
        } else
            *out++ = c.isSurrogate() ? QChar(QChar::ReplacementCharacter) : c;
    }
    *out = guard;
    return line.toUtf8();
}

/// Whether any character of a text can mean more than itself.
bool hasMarks(QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        switch (text[i].unicode()) {
        case u'*':
        case u'_':
        case u'`':
        case u'~':
        case u'[':
        case u'<':
        case u'&':
        case u'\\':
            return true;
        case u':': // of a bare address
            if (text.sliced(i).startsWith(u"://"_s))
                return true;
            break;
        default:
            break;
        }
    }
    return false;
}

QString entity(QStringView name) {
    static constexpr std::array<std::pair<QStringView, char16_t>, 6> named{{{u"&amp;", u'&'},
                                                                            {u"&lt;", u'<'},
                                                                            {u"&gt;", u'>'},
                                                                            {u"&quot;", u'"'},
                                                                            {u"&apos;", u'\''},
                                                                            {u"&nbsp;", 0xa0}}};
    for (const auto &[entry, character] : named) {
        if (name == entry)
            return QChar(character);
    }
    if (!name.startsWith(u"&#"_s))
        return name.toString();
    const QStringView digits = name.sliced(2).chopped(1);
    bool valid = false;
    const uint code = digits.startsWith(u'x', Qt::CaseInsensitive)
                          ? digits.sliced(1).toUInt(&valid, 16)
                          : digits.toUInt(&valid, 10);
    if (!valid || code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return QString(QChar::ReplacementCharacter);
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(&code), 1);
}

/// Collects the spans that the reader calls out.
class SpanBuilder {
public:
    QList<InlineSpan> take() {
        if (!m_spans.isEmpty()) {
            // The guards are in the first and the last span.
            m_spans.first().text.remove(0, 1);
            m_spans.last().text.chop(1);
        }
        m_spans.removeIf([](const InlineSpan &span) { return span.text.isEmpty(); });
        return std::move(m_spans);
    }

    void enter(MD_SPANTYPE type, const void *detail) {
        m_open.push_back({type, m_styles, m_link});
        switch (type) {
        case MD_SPAN_EM:
            m_styles |= Style::Italic;
            break;
        case MD_SPAN_STRONG:
            m_styles |= Style::Bold;
            break;
        case MD_SPAN_CODE:
            m_styles |= Style::Code;
            break;
        case MD_SPAN_DEL:
            m_styles |= Style::Strike;
            break;
        case MD_SPAN_A:
            m_link = target(static_cast<const MD_SPAN_A_DETAIL *>(detail)->href);
            break;
        default: // an image shows its words
            break;
        }
    }

    /// The reader may leave a span that it never entered, where marks and a bare address overlap.
    void leave(MD_SPANTYPE type) {
        const auto last = std::find_if(m_open.rbegin(), m_open.rend(),
                                       [type](const Open &span) { return span.type == type; });
        if (last == m_open.rend())
            return;
        m_styles = last->outerStyles;
        m_link = last->outerLink;
        m_open.erase(std::prev(last.base()), m_open.end());
    }

    void append(QString text) {
        std::replace(text.begin(), text.end(), QChar(lineFeed), QChar(u'\n'));
        InlineSpan *last = m_spans.isEmpty() ? nullptr : &m_spans.last();
        if (last && last->styles == m_styles && last->link == m_link)
            last->text += text;
        else
            m_spans.append({std::move(text), m_styles, m_link});
    }

private:
    /// A span that is open, and what holds again behind it.
    struct Open {
        MD_SPANTYPE type;
        Styles outerStyles;
        QString outerLink;
    };

    static QString target(const MD_ATTRIBUTE &href) {
        return linkTarget(QString::fromUtf8(href.text, href.size));
    }

    QList<InlineSpan> m_spans;
    Styles m_styles;
    QString m_link;
    std::vector<Open> m_open;
};

SpanBuilder &builder(void *userdata) {
    return *static_cast<SpanBuilder *>(userdata);
}

int onText(MD_TEXTTYPE type, const MD_CHAR *text, MD_SIZE size, void *userdata) {
    const QString words = type == MD_TEXT_NULLCHAR ? QString(QChar::ReplacementCharacter)
                                                   : QString::fromUtf8(text, size);
    builder(userdata).append(type == MD_TEXT_ENTITY ? entity(words) : words);
    return 0;
}

MD_PARSER parser() {
    MD_PARSER parser{};
    parser.flags = MD_FLAG_NOHTML | MD_FLAG_STRIKETHROUGH | MD_FLAG_PERMISSIVEURLAUTOLINKS |
                   MD_FLAG_NOINDENTEDCODEBLOCKS;
    parser.enter_block = [](MD_BLOCKTYPE, void *, void *) { return 0; };
    parser.leave_block = [](MD_BLOCKTYPE, void *, void *) { return 0; };
    parser.enter_span = [](MD_SPANTYPE type, void *detail, void *userdata) {
        builder(userdata).enter(type, detail);
        return 0;
    };
    parser.leave_span = [](MD_SPANTYPE type, void *, void *userdata) {
        builder(userdata).leave(type);
        return 0;
    };
    parser.text = onText;
    return parser;
}

} // namespace

QList<InlineSpan> inlineSpans(const QString &text) {
    if (text.isEmpty())
        return {};
    if (!hasMarks(text))
        return {{text, {}, {}}};
    static const MD_PARSER reader = parser();
    const QByteArray line = asOneLine(text);
    SpanBuilder spans;
    if (md_parse(line.constData(), static_cast<MD_SIZE>(line.size()), &reader, &spans) != 0)
        return {{text, {}, {}}};
    return spans.take();
}

} // namespace kiv::text::MDParser
