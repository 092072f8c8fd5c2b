#include "AttemptLimit.h"

#include "Http.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr std::chrono::seconds window{60};
constexpr size_t mostFailures = 10;

} // namespace

void AttemptLimit::check(const QString &email) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_failures.find(email);
    if (found == m_failures.end()) {
        return;
    }
    while (!found->empty() && found->front() < Clock::now() - window) {
        found->pop_front();
    }
    if (found->size() >= mostFailures) {
        throw Refusal(429, u"Too many attempts. Try again in a minute."_s, u"rate_limited"_s);
    }
}

void AttemptLimit::failed(const QString &email) {
    const std::lock_guard lock(m_mutex);
    m_failures[email].push_back(Clock::now());
}

void AttemptLimit::succeeded(const QString &email) {
    const std::lock_guard lock(m_mutex);
    m_failures.remove(email);
}

} // namespace kiv::sandbox
