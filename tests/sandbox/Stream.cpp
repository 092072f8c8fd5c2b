#include "Stream.h"

using namespace std::chrono_literals;

namespace kiv::test {

namespace {

constexpr auto patience = 10s;

QList<QJsonObject> rowsIn(const QByteArray &bytes) {
    QList<QJsonObject> rows;
    const qsizetype whole = bytes.lastIndexOf("\n\n");
    if (whole < 0)
        return rows;
    QByteArray event;
    for (const QByteArray &line : bytes.first(whole).split('\n')) {
        if (line.startsWith("event: "))
            event = line.sliced(7);
        else if (line.startsWith("data: ") && event == "message-insert")
            rows.append(QJsonDocument::fromJson(line.sliced(6)).object());
    }
    return rows;
}

} // namespace

Stream::Stream(const Client &client, const QString &path) : m_client("127.0.0.1", client.port()) {
    m_client.set_read_timeout(30);
    m_thread = std::thread([this, path = path.toStdString(), headers = client.headers] {
        m_client.Get(
            path, headers,
            [this](const httplib::Response &response) {
                const std::lock_guard lock(m_mutex);
                m_status = response.status;
                m_wake.notify_all();
                return true;
            },
            [this](const char *data, size_t size) {
                const std::lock_guard lock(m_mutex);
                m_bytes.append(data, static_cast<qsizetype>(size));
                m_wake.notify_all();
                return true;
            });
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_wake.notify_all();
    });
}

Stream::~Stream() {
    m_client.stop();
    m_thread.join();
}

template <typename Condition>
bool Stream::waitUntil(Condition condition) {
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, patience, [&] { return m_ended || condition(); });
    return condition();
}

bool Stream::waitFor(const QByteArray &text) {
    return waitUntil([&] { return m_bytes.contains(text); });
}

bool Stream::waitForRows(qsizetype count) {
    return waitUntil([&] { return rowsIn(m_bytes).size() >= count; });
}

bool Stream::waitForEnd() {
    return waitUntil([&] { return m_ended; });
}

int Stream::status() {
    waitUntil([&] { return m_status != 0 || m_ended; });
    const std::lock_guard lock(m_mutex);
    return m_status;
}

QByteArray Stream::bytes() {
    const std::lock_guard lock(m_mutex);
    return m_bytes;
}

QList<QJsonObject> Stream::rows() {
    return rowsIn(bytes());
}

} // namespace kiv::test
