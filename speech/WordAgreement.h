#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kiv::speech {

/// Tells which words of a growing utterance can be shown: those on which two readings in a row
/// agree. The last words of a single reading change with nearly every one of them.
class WordAgreement {
public:
    /// Takes the next reading; the words to show when they are others than before. What is shown
    /// never gets shorter.
    std::optional<QString> add(const QString &reading);
    /// The latest reading that had words, whole.
    const QString &lastReading() const { return m_lastReading; }
    /// Begins another utterance.
    void clear() { *this = WordAgreement(); }

private:
    QStringList m_previous;
    QStringList m_shown;
    QString m_lastReading;
};

} // namespace kiv::speech
