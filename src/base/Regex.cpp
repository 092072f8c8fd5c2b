#include "base/Regex.h"

#include <unicode/regex.h>

namespace kiv {

struct Regex::Compiled {
    std::unique_ptr<icu::RegexPattern> pattern;

    std::unique_ptr<icu::RegexMatcher> matcher(const icu::UnicodeString &text) const {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<icu::RegexMatcher>(pattern->matcher(text, status));
    }
};

namespace {

/// The text itself, not a copy of it.
icu::UnicodeString aliasOf(QStringView text) {
    return icu::UnicodeString(false, text.utf16(), static_cast<int32_t>(text.size()));
}

QList<Regex::Range> groupsOf(const icu::RegexMatcher &matcher) {
    QList<Regex::Range> groups;
    UErrorCode status = U_ZERO_ERROR;
    for (int32_t group = 0; group <= matcher.groupCount(); ++group) {
        const qsizetype start = matcher.start(group, status);
        const qsizetype end = matcher.end(group, status);
        groups.append({start, start < 0 ? 0 : end - start});
    }
    return groups;
}

} // namespace

QStringView Regex::Match::captured(qsizetype group) const {
    const Range part = range(group);
    return part.start < 0 ? QStringView() : m_text.mid(part.start, part.length);
}

Regex::Regex(QStringView pattern, Options options) : m_compiled(std::make_unique<Compiled>()) {
    UErrorCode status = U_ZERO_ERROR;
    UParseError where;
    uint32_t flags = 0;
    if (options.testFlag(CaseInsensitive))
        flags |= UREGEX_CASE_INSENSITIVE;
    if (options.testFlag(AnchorsMatchLines))
        flags |= UREGEX_MULTILINE;
    m_compiled->pattern.reset(icu::RegexPattern::compile(aliasOf(pattern), flags, where, status));
    if (U_FAILURE(status))
        qFatal("The pattern %s does not compile: %s", qUtf8Printable(pattern.toString()),
               u_errorName(status));
}

Regex::Regex(Regex &&) noexcept = default;
Regex &Regex::operator=(Regex &&) noexcept = default;
Regex::~Regex() = default;

std::optional<Regex::Match> Regex::find(QStringView text, qsizetype from) const {
    if (from < 0 || from > text.size())
        return std::nullopt;
    const icu::UnicodeString input = aliasOf(text);
    const auto matcher = m_compiled->matcher(input);
    UErrorCode status = U_ZERO_ERROR;
    if (!matcher || !matcher->find(from, status) || U_FAILURE(status))
        return std::nullopt;
    return Match(text, groupsOf(*matcher));
}

QList<Regex::Match> Regex::findAll(QStringView text) const {
    QList<Match> matches;
    const icu::UnicodeString input = aliasOf(text);
    const auto matcher = m_compiled->matcher(input);
    UErrorCode status = U_ZERO_ERROR;
    while (matcher && matcher->find(status) && U_SUCCESS(status))
        matches.append(Match(text, groupsOf(*matcher)));
    return matches;
}

QString Regex::replaceAll(QStringView text, QStringView replacement) const {
    const icu::UnicodeString input = aliasOf(text);
    const auto matcher = m_compiled->matcher(input);
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString result = matcher->replaceAll(aliasOf(replacement), status);
    if (U_FAILURE(status))
        return text.toString();
    return QString(reinterpret_cast<const QChar *>(result.getBuffer()), result.length());
}

} // namespace kiv
