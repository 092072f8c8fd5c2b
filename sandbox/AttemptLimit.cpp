#include "AttemptLimit.h"

#include "Http.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr std::chrono::seconds window{60};
constexpr qsizetype mostFailures = 10;

} // namespace

void AttemptLimit::check(const QString &email) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_failures.constFind(email);
    if (found == m_failures.cend()) {
        return;
    }
    const auto recent = std::ranges::count_if(
        *found, [now = Clock::now()](Clock::time_point at) { return at >= now - window; });
    if (recent >= mostFailures) {
        throw Refusal(429, u"Too many attempts. Try again in a minute."_s, u"rate_limited"_s);
    }
}

void AttemptLimit::failed(const QString &email) {
    const Clock::time_point now = Clock::now();
    const std::lock_guard lock(m_mutex);
    m_failures.removeIf([now](const auto &entry) { return entry.value().back() < now - window; });
    m_failures[email].push_back(now);
}

void AttemptLimit::succeeded(const QString &email) {
    const std::lock_guard lock(m_mutex);
    m_failures.remove(email);
}

} // namespace kiv::sandbox
