#pragma once

#include <coroutine>

namespace kiv {

/// Lets a coroutine wait on an object in its own frame: `Sleep sleep(...); co_await
/// waitFor(sleep);` The compiler copies what stands behind co_await, and a wait that others point
/// to cannot be copied; this handle can.
template <typename Wait>
struct WaitFor {
    Wait *wait;
    bool await_ready() const { return wait->ready(); }
    void await_suspend(std::coroutine_handle<> waiting) { wait->suspend(waiting); }
    auto await_resume() { return wait->result(); }
};

template <typename Wait>
WaitFor<Wait> waitFor(Wait &wait) {
    return {&wait};
}

} // namespace kiv
