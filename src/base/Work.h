#pragma once

#include "base/Cancel.h"

#include <QCoroTask>

#include <vector>

namespace kiv {

/// The waiting work of one owner: a member beside the state that the work touches.
/// Cancelling, or destroying this, wakes every wait of the work with `Cancelled`, so that it has
/// unwound before the owner is gone.
class Work {
public:
    Work() = default;
    Work(const Work &) = delete;
    Work &operator=(const Work &) = delete;
    ~Work() { cancel(); }

    /// Starts one more piece of work: `begin(Cancel)` gives its task, which runs at once up to its
    /// first wait. What escapes from it is reported in the log.
    template <typename Begin>
    void start(Begin &&begin) {
        auto state = track();
        watch(begin(Cancel(state)), state);
    }

    /// Gives up what runs, then starts anew.
    template <typename Begin>
    void restart(Begin &&begin) {
        cancel();
        start(std::forward<Begin>(begin));
    }

    void cancel();
    bool running() const;

private:
    std::shared_ptr<Cancel::State> track();
    static QCoro::Task<void> watch(QCoro::Task<void> task, std::shared_ptr<Cancel::State> state);

    std::vector<std::shared_ptr<Cancel::State>> m_states;
};

} // namespace kiv
