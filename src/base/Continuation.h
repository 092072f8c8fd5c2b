#pragma once

#include "base/Await.h"
#include "base/Cancel.h"

#include <optional>
#include <utility>
#include <variant>

namespace kiv {

/// A wait that somebody else ends, once: with a value, with an error, or by giving the work up.
/// Stands in the frame of the coroutine that waits: `co_await waitFor(continuation)`.
template <typename T>
class Continuation {
public:
    explicit Continuation(Cancel cancel) : m_cancel(std::move(cancel)) {}

    void resume(T value) { end(std::move(value)); }
    void fail(std::exception_ptr error) { end(std::move(error)); }

    bool ready() const { return m_cancel.requested() || !isPending(); }
    void suspend(std::coroutine_handle<> waiting) {
        m_waiting = waiting;
        m_cancel.link(m_link, [waiting] { waiting.resume(); });
    }
    T result() {
        if (isPending())
            throw Cancelled();
        if (const auto *error = std::get_if<std::exception_ptr>(&m_outcome))
            std::rethrow_exception(*error);
        return std::get<T>(std::move(m_outcome));
    }

private:
    bool isPending() const { return std::holds_alternative<std::monostate>(m_outcome); }
    template <typename Outcome>
    void end(Outcome outcome) {
        m_outcome = std::move(outcome);
        m_link.unlink();
        if (m_waiting)
            m_waiting.resume();
    }

    Cancel m_cancel;
    Cancel::Link m_link;
    std::coroutine_handle<> m_waiting;
    std::variant<std::monostate, T, std::exception_ptr> m_outcome;
};

} // namespace kiv
