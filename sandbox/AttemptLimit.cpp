#include "AttemptLimit.h"

#include "Http.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr std::chrono::seconds window{60};
constexpr size_t mostWrong = 10;

} // namespace

void AttemptLimit::begin(const QString &whose) {
    const Clock::time_point now = Clock::now();
    const std::lock_guard lock(m_mutex);
    m_attempts.removeIf([now](const auto &entry) { return entry.value().back() < now - window; });
    std::deque<Clock::time_point> &attempts = m_attempts[whose];
    while (!attempts.empty() && attempts.front() < now - window)
        attempts.pop_front();
    if (attempts.size() >= mostWrong)
        throw Refusal(429, u"Too many attempts. Try again in a minute."_s, u"rate_limited"_s);
    attempts.push_back(now);
}

void AttemptLimit::succeeded(const QString &whose) {
    const std::lock_guard lock(m_mutex);
    m_attempts.remove(whose);
}

} // namespace kiv::sandbox
