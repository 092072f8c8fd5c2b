#pragma once

#include <QString>
#include <QStringList>

namespace kiv::sandbox {

/// What a call knows of the chat before it: the digest that came with it, and what was added since.
struct CallMemory {
    QString digest; ///< lines that begin with "You: " or "Agent: "
    QStringList additions;

    /// Keeps the newest of what is added.
    void add(const QString &text);
    /// The answer to a question about the chat before the call; empty for any other question.
    QString recall(const QString &question) const;
};

} // namespace kiv::sandbox
