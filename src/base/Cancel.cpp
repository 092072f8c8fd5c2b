#include "base/Cancel.h"

#include <utility>

namespace kiv {

void Cancel::State::request() {
    requested = true;
    while (!waiters.empty()) {
        auto first = waiters.extract(waiters.begin());
        first.mapped()();
    }
}

void Cancel::Link::unlink() {
    if (m_state)
        m_state->waiters.erase(m_waiter);
    m_state.reset();
}

void Cancel::throwIfRequested() const {
    if (requested())
        throw Cancelled();
}

void Cancel::link(Link &link, std::function<void()> wake) const {
    link.unlink();
    if (!m_state)
        return;
    link.m_state = m_state;
    link.m_waiter = m_state->nextWaiter++;
    m_state->waiters.emplace(link.m_waiter, std::move(wake));
}

} // namespace kiv
