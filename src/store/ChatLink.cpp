#include "store/ChatLink.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

constexpr auto prefix = "kiv://chat/"_L1;
constexpr auto projectPart = "project"_L1;
constexpr auto agentPart = "agent"_L1;
constexpr qsizetype longestId = 128;

/// Ids become part of a path on the wire and of what the person reads: letters, figures and what
/// joins them, nothing that climbs, hides or has to be decoded.
bool isId(QStringView text) {
    const auto isPlain = [](QChar c) {
        return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'-' || c == u'_');
    };
    return !text.isEmpty() && text.size() <= longestId && std::ranges::all_of(text, isPlain);
}

} // namespace

std::optional<ChatLink> ChatLink::parse(const QString &link) {
    // The scheme and what stands where a host would may be written in any case.
    if (!link.startsWith(prefix, Qt::CaseInsensitive))
        return std::nullopt;
    const QList<QStringView> parts = QStringView(link).sliced(prefix.size()).split(u'/');
    if (parts.size() == 1 && parts[0] == "kiv"_L1)
        return ChatLink{};
    if (parts.size() != 2 || !isId(parts[1]))
        return std::nullopt;
    if (parts[0] == projectPart)
        return ChatLink{ScopeKind::Project, parts[1].toString()};
    if (parts[0] == agentPart)
        return ChatLink{ScopeKind::Agent, parts[1].toString()};
    return std::nullopt;
}

QString ChatLink::toString() const {
    switch (kind) {
    case ScopeKind::Project:
        return prefix + projectPart + u'/' + id;
    case ScopeKind::Agent:
        return prefix + agentPart + u'/' + id;
    case ScopeKind::Kiv:
        break;
    }
    return prefix + u"kiv"_s;
}

} // namespace kiv::store
