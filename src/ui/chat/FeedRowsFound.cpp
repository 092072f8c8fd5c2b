// What was found in the rows of a feed.

#include "ui/chat/FeedRows.h"

#include <algorithm>

namespace kiv::ui {

void FeedRows::setFinder(store::FindRoom *finder) {
    if (m_finder == finder)
        return;
    if (m_finder)
        m_finder->disconnect(this);
    m_finder = finder;
    if (finder)
        connect(finder, &store::FindRoom::foundChanged, this, &FeedRows::marksChanged);
    Q_EMIT finderChanged();
    Q_EMIT marksChanged();
}

FeedRow FeedRows::shown(int row) const {
    FeedRow shown = at(row);
    if (!m_finder || m_finder->count() == 0)
        return shown;
    const QList<FeedRow> &rows = m_shown.at(messageAt(row)).rows;
    const auto bubble = std::ranges::find(rows, true, &FeedRow::first);
    const auto part = row - m_starts.at(messageAt(row)) - (bubble - rows.begin());
    if (bubble == rows.end() || part < 0)
        return shown;
    const bool isCurrent = m_finder->currentMessage() == shown.messageId;
    for (const auto &place : m_finder->foundIn(shown.messageId, static_cast<int>(part)))
        shown.part.found.append({place, isCurrent && place == *m_finder->current()});
    return shown;
}

int FeedRows::rowOfPart(const QString &messageId, int part) const {
    const auto [first, end] = rowsOf(messageId);
    for (int row = first; row < end; ++row) {
        if (at(row).first)
            return row + part < end ? row + part : -1;
    }
    return -1;
}

} // namespace kiv::ui
