#pragma once

#include "store/Msg.h"

#include <QHash>
#include <QSet>

namespace kiv::store {

/// Puts a page of stored rows together with what the page cannot know of: rows that came while it
/// was under way, and messages of ours that the server has not stored. Messages that are shown
/// already keep their identity.
class HistoryMerge {
public:
    /// `live` are the rows that came since the page was asked for.
    HistoryMerge(QList<Msg> shown, QHash<qint64, Msg> live);

    /// The conversation to show. `unsent` go where they stood when they were sent.
    QList<Msg> merge(const QList<net::ChatRow> &rows, const QList<Msg> &unsent);

private:
    void take(Msg message);
    void place(const Msg &message);
    qsizetype placeOf(const Msg &message) const;
    bool isStoredFormOf(const Msg &message, const Msg &stored) const;

    QList<Msg> m_shown;
    QSet<qint64> m_shownRows;
    QHash<qint64, Msg> m_live;
    QList<Msg> m_merged;
    QSet<qint64> m_claimed;
};

} // namespace kiv::store
