#include "Answerer.h"

#include "ChatHub.h"
#include "Database.h"
#include "Http.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr std::chrono::milliseconds thinking = 500ms;
constexpr std::chrono::milliseconds writing = 2500ms;
constexpr qsizetype fewestPieces = 20;
constexpr qsizetype mostPieces = 60;
constexpr qsizetype charactersPerPiece = 12;

/// Where an answer is cut: evenly, never inside a character of two code units.
QList<qsizetype> cutsOf(const QString &text) {
    const qsizetype pieces = std::clamp(text.size() / charactersPerPiece, fewestPieces, mostPieces);
    QList<qsizetype> cuts;
    for (qsizetype i = 1; i <= pieces; ++i) {
        qsizetype cut = text.size() * i / pieces;
        if (cut > 0 && cut < text.size() && text.at(cut).isLowSurrogate())
            ++cut;
        if (cut > 0 && (cuts.isEmpty() || cut > cuts.constLast()))
            cuts.append(cut);
    }
    return cuts;
}

} // namespace

QByteArray rowEvent(const QJsonObject &row) {
    return "event: message-insert\ndata: " + compact(row) + "\n\n";
}

Answerer::Answerer(ChatStore &chats, ChatHub &hub, double pace)
    : m_chats(chats), m_hub(hub), m_pace(pace), m_thread([this] { work(); }) {}

Answerer::~Answerer() {
    close();
    m_thread.join();
}

void Answerer::close() {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    m_wake.notify_one();
}

Answerer::Clock::duration Answerer::paced(std::chrono::milliseconds time) const {
    return std::chrono::duration_cast<Clock::duration>(time * m_pace);
}

void Answerer::begin(const ChatKey &key, const QString &origin, Compose compose) {
    const std::lock_guard lock(m_mutex);
    Growth growth;
    growth.origin = origin;
    growth.compose = std::move(compose);
    growth.due = Clock::now() + paced(thinking);
    m_growing[key].push_back(std::move(growth));
    m_wake.notify_one();
}

bool Answerer::isAnswering(const ChatKey &key) {
    const std::lock_guard lock(m_mutex);
    return m_growing.contains(key);
}

bool Answerer::stop(const ChatKey &key) {
    const std::lock_guard lock(m_mutex);
    return m_growing.erase(key) > 0;
}

void Answerer::work() {
    std::unique_lock lock(m_mutex);
    while (!m_closed) {
        if (m_growing.empty()) {
            m_wake.wait(lock);
            continue;
        }
        const auto next = std::min_element(
            m_growing.begin(), m_growing.end(), [](const auto &one, const auto &other) {
                return one.second.front().due < other.second.front().due;
            });
        std::deque<Growth> &queue = next->second;
        const Clock::time_point due = queue.front().due; // stop() may drop the queue meanwhile
        if (due > Clock::now()) {
            m_wake.wait_until(lock, due);
            continue;
        }
        // The lock is held while a piece is stored, so that nothing grows once stop() returned.
        if (!grow(next->first, queue.front()))
            queue.pop_front();
        if (queue.empty())
            m_growing.erase(next);
    }
}

bool Answerer::grow(const ChatKey &key, Growth &growth) {
    if (growth.cuts.isEmpty()) {
        try {
            growth.answer = growth.compose();
        } catch (const std::exception &error) {
            qWarning("An answer failed: %s", error.what());
            growth.answer = {u"Something went wrong while I looked that up."_s,
                             {{u"error"_s, u"lookup_failed"_s}}};
        }
        growth.cuts = cutsOf(growth.answer.content);
        if (growth.cuts.isEmpty())
            return false;
        growth.due = std::max(growth.due, Clock::now());
    }
    try {
        show(key, growth, growth.cuts.at(growth.shown));
    } catch (const std::exception &error) {
        qCritical("An answer cannot be stored: %s", error.what());
        showUnstored(key, growth, error);
        return false;
    }
    ++growth.shown;
    growth.due += paced(writing) / growth.cuts.size();
    return growth.shown < growth.cuts.size();
}

/// Who listens has the whole answer, and what has become of it; a reload shows what was stored.
void Answerer::showUnstored(const ChatKey &key, Growth &growth, const std::exception &error) {
    const auto *stored = dynamic_cast<const DatabaseError *>(&error);
    const bool isFull = stored && stored->kind() == DatabaseError::Kind::Full;
    growth.message.role = u"assistant"_s;
    growth.message.content = growth.answer.content + u"\n\n⚠ This answer could not be stored"_s +
                             (isFull ? u": the disk is full."_s : u"."_s);
    growth.message.metadata = growth.answer.metadata;
    QJsonObject row = growth.message.rowObject(growth.origin);
    if (growth.message.id == 0)
        row.insert(u"id"_s, QJsonValue());
    m_hub.publish(key, rowEvent(row));
}

void Answerer::show(const ChatKey &key, Growth &growth, qsizetype length) {
    const bool whole = length == growth.answer.content.size();
    const QString content = growth.answer.content.first(length);
    // What a row offers besides its text (views, options) is known when the text is.
    QJsonObject metadata = growth.answer.metadata;
    if (!whole) {
        metadata = {};
        const QJsonValue label = growth.answer.metadata.value(u"member_label"_s);
        if (label.isString())
            metadata.insert(u"member_label"_s, label);
    }
    if (growth.message.id == 0) {
        growth.message = m_chats.append(key, u"assistant"_s, content, metadata);
    } else {
        growth.message.content = content;
        growth.message.metadata = metadata;
        m_chats.update(growth.message);
    }
    m_hub.publish(key, rowEvent(growth.message.rowObject(growth.origin)));
}

} // namespace kiv::sandbox
