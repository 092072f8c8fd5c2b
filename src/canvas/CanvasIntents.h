#pragma once

#include "base/Regex.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// What kind of view a question asks for, guessed before its answer has arrived.
namespace kiv::canvas::CanvasIntents {

/// One pattern of the table and the intent it stands for. Patterns are plain substrings in English
/// and Russian, without case; they match anywhere.
class Rule {
public:
    Rule(QString intent, const QString &pattern);
    const QString &intent() const { return m_intent; }
    const QString &pattern() const { return m_pattern; }
    /// Whether the pattern is found in `question`, in time linear to its length.
    bool matches(QStringView question) const;

private:
    /// An alternative `before.*after` within one line.
    struct Gap {
        Regex before;
        Regex after;
        bool matches(QStringView question) const;
    };

    QString m_intent;
    QString m_pattern;
    std::unique_ptr<Regex> m_plain; ///< the alternatives without a gap
    std::vector<Gap> m_gaps;
};

/// In order of evaluation: the first that matches wins.
const std::vector<Rule> &rules();

/// The intent of a question; nothing when no rule matches.
std::optional<QString> classify(const QString &question);

} // namespace kiv::canvas::CanvasIntents
