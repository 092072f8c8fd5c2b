#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

namespace kiv::canvas {

/// A line of an answer, without its line end. A view into the answer.
struct ProseLine {
    QStringView text;
    qsizetype start = 0; ///< in the answer
    qsizetype end = 0;   ///< behind its line end
    bool isCode = false; ///< inside a code fence, or the fence itself

    bool isBlank() const { return text.trimmed().isEmpty(); }
    /// Leading spaces, a tab counting as four.
    qsizetype indent() const;
    /// So far in that it is code, or belongs to an item above.
    bool isDeep() const { return indent() > 3; }
};

QList<ProseLine> proseLines(QStringView answer);

/// What is left of a list line behind its marker ("- ", "* ", "• ", "3. ", "3) "); nothing for
/// other lines.
std::optional<QStringView> listItem(QStringView line);

/// The heading that stands over a line: a mark-down heading, a bold line or a line that ends with a
/// colon.
std::optional<QString> headingOver(const QList<ProseLine> &lines, qsizetype index);

/// What is left of an answer when something was cut out: no more than one blank line in a row.
QString closedUp(const QString &text);

} // namespace kiv::canvas
