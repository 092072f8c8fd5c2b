#include "../FuzzText.h"

#include "store/ChatLink.h"

using namespace Qt::StringLiterals;
using kiv::store::ChatLink;
using kiv::store::ScopeKind;

namespace {

void checkLink(const QString &text) {
    const auto link = ChatLink::parse(text);
    if (!link)
        return;
    mustHold((link->kind == ScopeKind::Kiv) == link->id.isEmpty());
    for (const QChar c : link->id)
        mustHold(c.unicode() < 128 && (c.isLetterOrNumber() || c == u'-' || c == u'_'));
    mustHold(link->toString().compare(text, Qt::CaseInsensitive) == 0);
    mustHold(ChatLink::parse(link->toString()) == link);
}

} // namespace

/// A link that is followed names a chat and nothing else, and says the same when it is written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    checkLink(text);
    for (const QString &start :
         {u"kiv://chat/"_s, u"KIV://Chat/agent/"_s, u"kiv://chat/project/"_s})
        checkLink(start + text);
    return 0;
}
