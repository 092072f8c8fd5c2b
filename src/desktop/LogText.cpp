#include "desktop/LogText.h"

#include "base/Regex.h"

#include <QDir>

#include <span>

namespace kiv::desktop {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostCharacters = 400;

struct Rule {
    Regex pattern;
    QString instead;
};

// clang-format off
/// In this order: what a rule leaves is what the next one reads. Words alone are read in either case:
/// a set of characters takes far longer to be made ready for both.
std::span<const Rule> rules() {
    const QString value = uR"re((?:\\*"(?:[^"\\]|\\.)*"?|'[^']*'?|[^\s,;&}]+))re"_s;
    static const Rule table[] = {
        // Whole headers: everything up to the end is theirs.
        {Regex(uR"(\b((?i:(?:set-)?cookie|authorization))\b(\W{0,3}[:=]).*)"), u"$1$2 […]"_s},
        // The name in an address of the web may carry a password, its end what was asked for.
        {Regex(uR"(\b([A-Za-z][A-Za-z0-9+.-]*://)[^\s/"'<>]*@)"), u"$1"_s},
        {Regex(uR"(\b([A-Za-z][A-Za-z0-9+.-]*://[^\s?#"'<>]*)[?#][^\s"'<>]*)"), u"$1[…]"_s},
        {Regex(uR"(\b(?i:bearer)\s+\S+)"), u"bearer […]"_s},
        // What follows a name that has no value may be the name of one that has.
        {Regex(uR"(\b([\w-]*(?i:password|passwd|secret|token|session|sid|api[_-]?key))(\\*["']?\s*[:=]\s*))"_s +
               value + uR"((?:\s*[:=]\s*)"_s + value + u")*"_s),
         u"$1$2[…]"_s},
        {Regex(uR"([^\s"'<>@:/]+@[^\s"'<>@]+\.\p{L}{2,})"), u"[address]"_s},
        // What is long and means nothing to a reader: keys, signatures, cookies without a name.
        {Regex(uR"([A-Za-z0-9+_=-]{32,})"), u"[…]"_s},
        // A quotation of some length is what somebody wrote.
        {Regex(uR"("[^"]{60,}"?)"), u"\"[…]\""_s},
    };
    return table;
}
// clang-format on

} // namespace

void LogText::prepare() {
    rules();
}

QString LogText::redacted(const QString &line) {
    QString text = line.simplified().left(4 * mostCharacters);
    for (const Rule &rule : rules())
        text = rule.pattern.replaceAll(text, rule.instead);
    text.replace(QDir::homePath(), u"~"_s);
    if (text.size() > mostCharacters)
        text = text.left(mostCharacters) + u'…';
    return text;
}

} // namespace kiv::desktop
