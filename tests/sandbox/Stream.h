#pragma once

#include "sandbox/Client.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace kiv::test {

/// Reads a chat's live stream on a thread and keeps the bytes as they came.
class Stream {
public:
    Stream(const Client &client, const QString &path);
    ~Stream();

    /// Waits until the stream holds `text`; false when it does not come in time.
    bool waitFor(const QByteArray &text);
    /// Waits until at least `count` rows came.
    bool waitForRows(qsizetype count);
    /// Waits until the server ended the stream.
    bool waitForEnd();

    int status();
    QByteArray bytes();
    /// The rows of the complete events so far.
    QList<QJsonObject> rows();

private:
    template <typename Condition>
    bool waitUntil(Condition condition);

    httplib::Client m_client;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    QByteArray m_bytes;
    int m_status = 0;
    bool m_ended = false;
    std::thread m_thread;
};

} // namespace kiv::test
