#pragma once

#include "base/Await.h"
#include "base/Cancel.h"

#include <QCoroTask>
#include <QFutureWatcher>
#include <QScopedPointer>
#include <QtConcurrentRun>

#include <memory>
#include <type_traits>

namespace kiv {

/// Waits until a job on another thread is done.
template <typename Result>
class JobWait {
public:
    JobWait(QFuture<Result> future, Cancel cancel)
        : m_future(std::move(future)), m_cancel(std::move(cancel)) {}

    /// Goes on from the event loop, also when the job is faster.
    bool ready() const { return m_cancel.requested(); }

    void suspend(std::coroutine_handle<> waiting) {
        m_waiting = waiting;
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished, m_watcher.get(),
                         [this] { wake(); });
        m_watcher->setFuture(m_future);
        m_cancel.link(m_link, [this] { wake(); });
    }

    Result result() {
        m_cancel.throwIfRequested();
        return m_future.takeResult();
    }

private:
    void wake() {
        m_link.unlink();
        m_watcher->disconnect(m_watcher.get());
        if (const auto waiting = std::exchange(m_waiting, {}))
            waiting.resume();
    }

    QFuture<Result> m_future;
    Cancel m_cancel;
    // It may be the one that resumes us, and then lives a little longer.
    std::unique_ptr<QFutureWatcher<Result>, QScopedPointerDeleteLater> m_watcher{
        new QFutureWatcher<Result>};
    Cancel::Link m_link;
    std::coroutine_handle<> m_waiting;
};

/// Runs `job` on a thread of the pool and waits for what it returns; it does not throw. The wait
/// throws Cancelled when the work is given up: the job then runs to its end unheard, so that it
/// may hold values only.
template <typename Job>
QCoro::Task<std::invoke_result_t<Job>> inBackground(Job job, Cancel cancel) {
    cancel.throwIfRequested();
    JobWait<std::invoke_result_t<Job>> wait(QtConcurrent::run(std::move(job)), std::move(cancel));
    co_return co_await waitFor(wait);
}

} // namespace kiv
