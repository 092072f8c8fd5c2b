#include "base/ChildProcess.h"

#include "base/Await.h"

namespace kiv {

namespace {

/// Waits until the process has a whole line to read, has ended, or the patience is over.
class FirstLine {
public:
    FirstLine(QProcess *process, Clock *clock, Clock::Milliseconds patience, Cancel cancel)
        : m_process(process), m_clock(clock), m_patience(patience), m_cancel(std::move(cancel)) {}

    bool ready() const { return m_cancel.requested() || settled(); }

    void suspend(std::coroutine_handle<> waiting) {
        m_waiting = waiting;
        auto look = [this] {
            if (settled())
                wake();
        };
        QObject::connect(m_process, &QProcess::readyReadStandardOutput, &m_context, look);
        QObject::connect(m_process, &QProcess::finished, &m_context, look);
        QObject::connect(m_process, &QProcess::errorOccurred, &m_context, look);
        m_timer = m_clock->after(m_patience, [this] { wake(); });
        m_cancel.link(m_link, [this] { wake(); });
    }

    void result() const { m_cancel.throwIfRequested(); }

private:
    bool settled() const {
        return m_process->canReadLine() || m_process->state() == QProcess::NotRunning;
    }
    void wake() {
        m_timer.stop();
        m_link.unlink();
        m_process->disconnect(&m_context);
        if (const auto waiting = std::exchange(m_waiting, {}))
            waiting.resume();
    }

    QProcess *m_process;
    Clock *m_clock;
    Clock::Milliseconds m_patience;
    Cancel m_cancel;
    QObject m_context;
    Clock::Timer m_timer;
    Cancel::Link m_link;
    std::coroutine_handle<> m_waiting;
};

/// Waits until the process has ended.
class End {
public:
    End(QProcess *process, Cancel cancel) : m_process(process), m_cancel(std::move(cancel)) {}

    bool ready() const {
        return m_cancel.requested() || m_process->state() == QProcess::NotRunning;
    }
    void suspend(std::coroutine_handle<> waiting) {
        m_waiting = waiting;
        QObject::connect(m_process, &QProcess::finished, &m_context, [this] { wake(); });
        m_cancel.link(m_link, [this] { wake(); });
    }
    void result() const { m_cancel.throwIfRequested(); }

private:
    void wake() {
        m_link.unlink();
        m_process->disconnect(&m_context);
        if (const auto waiting = std::exchange(m_waiting, {}))
            waiting.resume();
    }

    QProcess *m_process;
    Cancel m_cancel;
    QObject m_context;
    Cancel::Link m_link;
    std::coroutine_handle<> m_waiting;
};

} // namespace

QCoro::Task<void> untilEnded(QProcess *process, Cancel cancel) {
    End end(process, std::move(cancel));
    co_await waitFor(end);
}

QCoro::Task<QByteArray> startAndReadLine(QProcess *process, Clock *clock,
                                         Clock::Milliseconds patience, Cancel cancel) {
    process->setReadChannel(QProcess::StandardOutput);
    process->start();
    FirstLine line(process, clock, patience, std::move(cancel));
    co_await waitFor(line);
    if (!process->canReadLine())
        throw ProcessError(
            (process->program() + QLatin1String(": ") +
             (process->state() == QProcess::NotRunning ? process->errorString()
                                                       : QStringLiteral("no answer in time")))
                .toStdString());
    co_return process->readLine().trimmed();
}

} // namespace kiv
