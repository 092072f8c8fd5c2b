#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>

namespace kiv {

/// Thrown out of a wait whose owner gave the work up.
class Cancelled : public std::exception {
public:
    const char *what() const noexcept override { return "Cancelled"; }
};

/// What a piece of waiting work knows of its owner's wish to give it up. A value: coroutines
/// take it as a parameter and hand it to everything they await. Made by Work.
class Cancel {
public:
    /// What owner and work share.
    struct State {
        bool requested = false;
        bool finished = false;
        int nextWaiter = 0;
        std::map<int, std::function<void()>> waiters;

        /// Marks the work as given up and wakes every wait under it.
        void request();
    };

    /// A wait that is to be woken; unlinked when it is destroyed.
    class Link {
    public:
        Link() = default;
        Link(const Link &) = delete;
        Link &operator=(const Link &) = delete;
        ~Link() { unlink(); }
        void unlink();

    private:
        std::shared_ptr<State> m_state;
        int m_waiter = 0;
        friend class Cancel;
    };

    /// Work that nobody cancels.
    Cancel() = default;
    explicit Cancel(std::shared_ptr<State> state) : m_state(std::move(state)) {}

    bool requested() const { return m_state && m_state->requested; }
    void throwIfRequested() const;

    /// Calls `wake` once when the owner cancels, unless the link is gone by then.
    void link(Link &link, std::function<void()> wake) const;

private:
    std::shared_ptr<State> m_state;
};

} // namespace kiv
