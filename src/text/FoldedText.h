#pragma once

#include <QList>
#include <QString>

namespace kiv::text {

/// A text in the form in which searching compares it: without case in every script ("STRASSE" is
/// "Straße", a sigma is a sigma wherever it stands, and the four kinds of the letter i are one), an
/// accent being one with its letter however it is encoded, every blank a space. Line feeds stay.
class FoldedText {
public:
    /// A piece of the text as it was given, in UTF-16 units.
    struct Range {
        qsizetype start = 0;
        qsizetype length = 0;
        friend bool operator==(const Range &, const Range &) = default;
    };

    FoldedText() = default;
    explicit FoldedText(const QString &text);

    bool isEmpty() const { return m_folded.isEmpty(); }
    /// Where `words` stand, from the start to the end and apart from each other. A letter is found
    /// whole: no match begins or ends within what folding made of one.
    QList<Range> find(const FoldedText &words) const;

private:
    void append(QStringView letter, qsizetype origin);
    bool isLetterStart(qsizetype at) const;
    qsizetype originOf(qsizetype at) const { return m_origins.isEmpty() ? at : m_origins.at(at); }

    QString m_folded;
    /// Where the letter of each folded unit begins in the text, then the text's end. Empty when
    /// every unit stands where it stood.
    QList<qsizetype> m_origins;
};

} // namespace kiv::text
