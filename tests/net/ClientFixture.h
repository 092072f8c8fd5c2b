#pragma once

#include "RawServer.h"
#include "net/APIClient.h"
#include "support/ManualClock.h"
#include "support/TestConnectivity.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

namespace kiv::test {

/// A client that talks to a server of the test's own, on a clock that the test moves.
struct ClientFixture {
    ClientFixture() { client->setBaseUrl(server.url()); }

    ManualClock clock;
    TestConnectivity connectivity;
    QTemporaryDir folder;
    RawServer server;
    std::unique_ptr<net::APIClient> client = std::make_unique<net::APIClient>(
        clock, connectivity, folder.filePath(QStringLiteral("session/cookies")));
};

/// A call under way and what came of it.
template <typename T>
class Call {
public:
    /// `begin(Cancel)` gives the call's task.
    template <typename Begin>
    explicit Call(Begin &&begin) {
        m_work.start([&](Cancel cancel) { return record(begin(std::move(cancel)), m_outcome); });
    }

    bool isDone() const { return m_outcome->done; }
    /// Lets the call go on until it is done.
    bool finish() {
        QEventLoop loop;
        m_outcome->whenDone = [&] { loop.quit(); };
        QTimer::singleShot(std::chrono::seconds(30), &loop, &QEventLoop::quit);
        if (!isDone())
            loop.exec();
        m_outcome->whenDone = [] {};
        return isDone();
    }
    void cancel() { m_work.cancel(); }

    bool succeeded() const { return m_outcome->done && !m_outcome->error; }
    const T &value() const { return *m_outcome->value; }
    std::exception_ptr error() const { return m_outcome->error; }
    QString errorText() const {
        return judge([](const std::exception &error) { return net::errorText(error); });
    }
    bool wasCancelled() const { return judge(net::isCancellation); }
    /// The error as an APIError; null for none and for any other.
    std::optional<net::APIError> apiError() const {
        return judge([](const std::exception &error) {
            const auto *known = dynamic_cast<const net::APIError *>(&error);
            return known ? std::optional(*known) : std::nullopt;
        });
    }
    bool failedWith(net::APIError::Kind kind) const {
        const auto known = apiError();
        return known && known->kind() == kind;
    }

private:
    struct Outcome {
        bool done = false;
        std::function<void()> whenDone = [] {};
        std::optional<T> value;
        std::exception_ptr error;
    };
    template <typename Of>
    std::invoke_result_t<Of, const std::exception &> judge(Of of) const {
        try {
            if (m_outcome->error)
                std::rethrow_exception(m_outcome->error);
        } catch (const std::exception &known) {
            return of(known);
        }
        return {};
    }
    static QCoro::Task<void> record(QCoro::Task<T> task, std::shared_ptr<Outcome> outcome) {
        try {
            outcome->value = co_await task;
        } catch (...) {
            outcome->error = std::current_exception();
        }
        outcome->done = true;
        outcome->whenDone();
    }

    std::shared_ptr<Outcome> m_outcome = std::make_shared<Outcome>();
    Work m_work;
};

} // namespace kiv::test
