#pragma once

#include "ui/markdown/TextLines.h"

#include <QColor>
#include <QTextCharFormat>
#include <QTextCursor>

namespace kiv::ui {

/// What a document needs beside its own font and colour. Lengths are device-independent pixels.
struct TextLook {
    QColor link;
    QColor faint; ///< of figures, done tasks and heads of tables
    int codeSize = 12;
    int headSize = 12;
    double lineHeight = 0;
    friend bool operator==(const TextLook &, const TextLook &) = default;
};

/// Keeps a document at given lines. Only what differs is written, so that a text that grows is laid
/// out at its end alone and a selection in it stays.
class DocumentWriter {
public:
    /// The room that the ground of inline code takes beside the words, on either side.
    static constexpr double codeInset = 5;

    void setDocument(QTextDocument *document);
    /// True when the document has changed.
    bool write(QList<TextLine> lines, const TextLook &look);

    const QList<TextLine> &lines() const { return m_lines; }
    /// Where the words of a line begin: behind the mark of an item.
    int wordsStart(qsizetype line) const;
    static bool isCode(const QTextCharFormat &format);

private:
    /// A character in a line, by the run that it is in.
    struct Place {
        qsizetype run = 0;
        qsizetype character = 0;
    };

    static Place firstDifference(const TextLine &a, const TextLine &b);
    static qsizetype offsetOf(const TextLine &line, Place place);
    void writeFrom(qsizetype line, const QList<TextLine> &lines);
    void insert(QTextCursor &cursor, const TextLine &line, Place from) const;
    QTextBlockFormat blockFormat(const TextLine &line) const;
    QTextCharFormat charFormat(const TextRun &run) const;

    QTextDocument *m_document = nullptr;
    QList<TextLine> m_lines; ///< what the document holds; empty before it was written
    TextLook m_look;
};

} // namespace kiv::ui
