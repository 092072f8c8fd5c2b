#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

namespace kiv::canvas {

/// Which rules of the intent table can match a text at all, found in one pass over it: every
/// alternative of a pattern begins with letters that must stand in the text.
class IntentIndex {
public:
    /// Adds an alternative of the pattern of rule number `rule`; rules come in order.
    void add(std::size_t rule, const QString &alternative);

    /// A flag for every rule; a rule without a flag does not match.
    std::vector<bool> candidates(const QString &text) const;

private:
    struct Start {
        QString letters;
        std::size_t rule;
    };

    QHash<quint32, std::vector<Start>> m_starts; ///< by their first two letters
    std::vector<bool> m_always;                  ///< rules with an alternative that has no start
};

} // namespace kiv::canvas
