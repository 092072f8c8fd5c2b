#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kiv::speech {

/// Tells which words of a growing utterance can be shown: those on which the latest reading agrees
/// with one of the two before it. The last words of a reading change with nearly every one. Where
/// no three agree on how an utterance begins, the latest counts but for its last word: somebody
/// waits.
class WordAgreement {
public:
    /// Takes the next reading; the words to show when they are others than before. What is shown
    /// never gets shorter.
    std::optional<QString> add(const QString &reading);
    /// Whether there have been words to show.
    bool shown() const { return !m_shown.isEmpty(); }
    /// The latest reading that had words, whole.
    const QString &lastReading() const { return m_lastReading; }
    /// Begins another utterance.
    void clear() { *this = WordAgreement(); }

private:
    QList<QStringList> m_before; ///< at most two
    QStringList m_shown;
    QString m_lastReading;
};

} // namespace kiv::speech
