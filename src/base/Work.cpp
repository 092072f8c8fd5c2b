#include "base/Work.h"

#include <QDebug>

#include <algorithm>

namespace kiv {

void Work::cancel() {
    const auto states = std::exchange(m_states, {});
    for (const auto &state : states)
        state->request();
}

bool Work::running() const {
    return std::ranges::any_of(m_states, [](const auto &state) { return !state->finished; });
}

std::shared_ptr<Cancel::State> Work::track() {
    std::erase_if(m_states, [](const auto &state) { return state->finished; });
    return m_states.emplace_back(std::make_shared<Cancel::State>());
}

QCoro::Task<void> Work::watch(QCoro::Task<void> task, std::shared_ptr<Cancel::State> state) {
    try {
        co_await task;
    } catch (const std::exception &error) {
        if (!state->requested)
            qWarning("A background task ended with an error: %s", error.what());
    }
    state->finished = true;
}

} // namespace kiv
