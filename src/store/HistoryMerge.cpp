#include "store/HistoryMerge.h"

#include <algorithm>

namespace kiv::store {

HistoryMerge::HistoryMerge(QList<Msg> shown, QHash<qint64, Msg> live)
    : m_shown(std::move(shown)), m_live(std::move(live)) {
    for (const Msg &message : m_shown) {
        if (message.serverID)
            m_shownRows.insert(*message.serverID);
    }
}

QList<Msg> HistoryMerge::merge(const QList<net::ChatRow> &rows, const QList<Msg> &unsent) {
    for (const net::ChatRow &row : rows) {
        if (auto message = rowToMsg(row))
            take(std::move(*message));
    }
    for (const Msg &message : m_shown) {
        if (message.serverID && m_live.contains(*message.serverID))
            take(m_live.value(*message.serverID));
    }
    for (const Msg &message : unsent)
        place(message);
    return m_merged;
}

void HistoryMerge::take(Msg message) {
    if (message.serverID) {
        const auto live = m_live.constFind(*message.serverID);
        // An answer only grows: the longer text is the newer one.
        if (live != m_live.cend() && live->text.size() > message.text.size())
            message = *live;
        m_live.remove(*message.serverID);
        const auto shown = std::ranges::find(m_shown, message.serverID, &Msg::serverID);
        if (shown != m_shown.end()) {
            message.id = shown->id;
            message.keepFilesOf(*shown);
        }
    }
    m_merged.append(std::move(message));
}

void HistoryMerge::place(const Msg &message) {
    qsizetype at = placeOf(message);
    const auto stored = std::find_if(m_merged.begin() + (message.follows ? at : 0), m_merged.end(),
                                     [&](const Msg &row) { return isStoredFormOf(message, row); });
    if (stored != m_merged.end()) {
        m_claimed.insert(*stored->serverID);
        stored->id = message.id;
        stored->keepFilesOf(message);
        return;
    }
    while (at < m_merged.size() && m_merged.at(at).isUnsent())
        ++at;
    m_merged.insert(at, message);
}

/// Behind the row it followed; above the page when that row is no longer on it.
qsizetype HistoryMerge::placeOf(const Msg &message) const {
    if (!message.follows)
        return m_merged.size();
    const auto above = std::ranges::find(m_merged, message.follows, &Msg::serverID);
    return above == m_merged.end() ? 0 : above - m_merged.begin() + 1;
}

/// A row with the same text that the screen did not show yet. Where the row above it is not known,
/// only the time tells whether it may be this one, and clocks differ: it counts unless it is
/// clearly older.
bool HistoryMerge::isStoredFormOf(const Msg &message, const Msg &stored) const {
    constexpr qint64 clockSkewSeconds = 120;
    const bool mayBeLater = message.follows || !message.at || !stored.at ||
                            message.at->secsTo(*stored.at) > -clockSkewSeconds;
    return mayBeLater && stored.who == Who::You && stored.serverID && stored.text == message.text &&
           !m_shownRows.contains(*stored.serverID) && !m_claimed.contains(*stored.serverID);
}

} // namespace kiv::store
