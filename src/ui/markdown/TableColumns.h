#pragma once

#include "text/SearchText.h"
#include "ui/markdown/DocumentWriter.h"

namespace kiv::ui {

/// Lays a table out as lines of text whose cells stand at tabs: as one text it is selected, copied
/// and grown as such. A column of figures is set right; a long cell wraps, and what is still wider
/// than the view scrolls sideways. Lengths are device-independent pixels.
class TableColumns {
public:
    /// Above and below the words of a row: before its first and after its last, the view's to keep.
    static constexpr double rowMargin = 9;

    /// The lines of a table; its head is left out in a part that goes on with one.
    QList<TextLine> lines(const text::BlockPart &part, const QFont &font, const TextLook &look,
                          double available);

    double width() const { return m_width; }
    /// The upper edge of each row, the first being 0.
    const QList<double> &rowTops() const { return m_rowTops; }
    /// The cells that the characters from `start` to `end` of the text touch, with tabs between
    /// them; whole rows when there are several, and from within one cell the characters themselves.
    QString cells(int start, int end) const;
    /// Where in the text some words of a cell stand, as starts and ends. Cells are counted from the
    /// first that shows, row by row.
    QList<std::pair<int, int>> placesOf(const text::WordPlace &words) const;

private:
    struct Cell {
        QString source;
        QList<TextRun> runs;
        double width = 0;
        bool isFigure = false;
    };
    struct Column {
        double natural = 0;
        double figures = 0; ///< without the head
        double least = 0;   ///< what it never gives up
        double left = 0;    ///< of its words
        double width = 0;   ///< of its words
        bool isFilled = false;
        bool isNumeric = true;
    };
    /// A cell's words on one of the lines that its row takes.
    struct Placed {
        int start = 0; ///< in the text
        int row = 0;
        int column = 0;
    };

    Cell measured(const QString &source, bool isHead) const;
    double widthOf(const QList<TextRun> &runs) const;
    void measureRows(const text::MDBlock::Table &table);
    void placeColumns(double available);
    QList<QList<TextRun>> wrapped(const Cell &cell, double width) const;
    void addRow(QList<TextLine> &lines, qsizetype row);

    QFont m_font;
    TextLook m_look;
    QList<QList<Cell>> m_rows; ///< the head first
    int m_firstRow = 0;        ///< that shows
    QList<Column> m_columns;
    QList<double> m_rowTops;
    QList<Placed> m_placed;
    QString m_text;
    double m_width = 0;
};

} // namespace kiv::ui
