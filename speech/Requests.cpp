#include "speech/Requests.h"

#include "speech/SampleRing.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace kiv::speech {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t mostWaiting = samplesIn(60'000);

Sound decoded(const QString &base64) {
    const auto bytes =
        QByteArray::fromBase64Encoding(base64.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes || bytes.decoded.size() % 2 != 0)
        throw ProtocolError("The sound is not base64 of whole samples.");
    Sound sound;
    sound.samples.reserve(static_cast<size_t>(bytes.decoded.size() / 2));
    for (qsizetype at = 0; at < bytes.decoded.size(); at += 2) {
        constexpr float full = 32768;
        sound.samples.push_back(qFromLittleEndian<qint16>(bytes.decoded.constData() + at) / full);
    }
    return sound;
}

} // namespace

std::optional<Request> parseRequest(const QByteArray &line) {
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject())
        throw ProtocolError("A line is not a JSON object.");
    const QJsonObject object = document.object();
    if (const QJsonValue audio = object.value("audio"_L1); audio.isString())
        return decoded(audio.toString());
    if (object.value("end"_L1).toBool())
        return End{};
    if (object.value("cancel"_L1).toBool())
        return Drop{};
    return {};
}

void RequestQueue::put(Request request) {
    std::unique_lock lock(m_mutex);
    if (const auto *sound = std::get_if<Sound>(&request)) {
        m_changed.wait(lock, [this] { return m_samples < mostWaiting; });
        m_samples += sound->samples.size();
    } else if (std::holds_alternative<Close>(request)) {
        while (!m_requests.empty() && !std::holds_alternative<End>(m_requests.back()))
            m_requests.pop_back();
        m_dropping = m_dropping || (m_requests.empty() && !m_ending);
    } else if (std::holds_alternative<Drop>(request)) {
        // An end is answered whatever becomes of its sound.
        std::erase_if(m_requests, [](const Request &waiting) {
            return std::holds_alternative<Sound>(waiting);
        });
        m_samples = 0;
        m_dropping = true;
    }
    m_requests.push_back(std::move(request));
    m_changed.notify_all();
}

Request RequestQueue::take() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_requests.empty(); });
    Request request = std::move(m_requests.front());
    m_requests.pop_front();
    m_ending = std::holds_alternative<End>(request);
    if (const auto *sound = std::get_if<Sound>(&request))
        m_samples -= sound->samples.size();
    else if (std::holds_alternative<Drop>(request))
        m_dropping = std::ranges::any_of(m_requests, [](const Request &waiting) {
            return std::holds_alternative<Drop>(waiting);
        });
    m_changed.notify_all();
    return request;
}

bool RequestQueue::empty() const {
    const std::lock_guard lock(m_mutex);
    return m_requests.empty();
}

bool RequestQueue::dropping() const {
    const std::lock_guard lock(m_mutex);
    return m_dropping;
}

} // namespace kiv::speech
