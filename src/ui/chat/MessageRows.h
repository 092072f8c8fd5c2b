#pragma once

#include "ui/chat/FeedRow.h"

#include <QModelIndex>

namespace kiv::ui {

/// What of a message's rows depends on where it stands in its feed.
struct MessagePlace {
    bool belowOlder = false; ///< a link to older messages stands above it
    bool isUnread = false;   ///< the first that the person has not seen
    QString day;             ///< the name of the day that begins with it; empty when none does
};

/// What shows of a message: its head, the blocks of its text and what goes with it.
struct MessageRows {
    QString body; ///< that the rows were made of
    QList<FeedRow> rows;
};

/// The rows of a message now, a row of a `store::MessageModel`. Parts of a text that has not
/// changed since `before` are taken from there.
MessageRows messageRows(const QModelIndex &message, const MessagePlace &place,
                        const MessageRows &before = {});

} // namespace kiv::ui
