#include "ui/markdown/DocumentWriter.h"

#include "ui/tokens/Typefaces.h"

#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextDocument>

namespace kiv::ui {

using text::MDParser::Style;
using Tone = TextRun::Tone;

namespace {

constexpr int codeProperty = QTextFormat::UserProperty + 1;

/// Where the last character of a text begins.
qsizetype lastCharacter(const QString &text) {
    const QString end = text.last(std::min(text.size(), qsizetype(32)));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, end);
    finder.toEnd();
    return text.size() - end.size() + std::max(finder.toPreviousBoundary(), qsizetype(0));
}

bool isCodeAt(const TextLine &line, qsizetype run) {
    return run < line.runs.size() && line.runs.at(run).styles.testFlag(Style::Code);
}

} // namespace

void DocumentWriter::setDocument(QTextDocument *document) {
    m_document = document;
    m_lines.clear();
    if (document)
        document->setUndoRedoEnabled(false);
}

bool DocumentWriter::write(QList<TextLine> lines, const TextLook &look) {
    if (!m_document)
        return false;
    if (lines.isEmpty())
        lines.append(TextLine());
    if (m_look != look) {
        m_look = look;
        m_lines.clear();
    }
    QTextCursor edit(m_document);
    edit.beginEditBlock();
    qsizetype same = 0;
    bool isPlaced = true;
    QTextBlock block = m_document->firstBlock();
    for (; same < std::min(lines.size(), m_lines.size()); ++same, block = block.next()) {
        if (m_lines.at(same).runs != lines.at(same).runs)
            break;
        if (!lines.at(same).isPlacedLike(m_lines.at(same))) {
            isPlaced = false;
            QTextCursor(block).setBlockFormat(blockFormat(lines.at(same)));
        }
    }
    const bool isSame = same == lines.size() && same == m_lines.size();
    if (!isSame)
        writeFrom(same, lines);
    edit.endEditBlock();
    m_lines = std::move(lines);
    return !isSame || !isPlaced;
}

void DocumentWriter::writeFrom(qsizetype line, const QList<TextLine> &lines) {
    QTextCursor cursor(m_document);
    Place place;
    if (line < lines.size() && line < m_lines.size()) {
        place = firstDifference(m_lines.at(line), lines.at(line));
        const QTextBlock block = m_document->findBlockByNumber(static_cast<int>(line));
        cursor.setPosition(block.position() + static_cast<int>(offsetOf(lines.at(line), place)));
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        if (!lines.at(line).isPlacedLike(m_lines.at(line)))
            cursor.setBlockFormat(blockFormat(lines.at(line)));
    } else if (line < lines.size()) {
        cursor.movePosition(QTextCursor::End);
        if (m_lines.isEmpty()) {
            cursor.select(QTextCursor::Document);
            cursor.removeSelectedText();
            cursor.setBlockFormat(blockFormat(lines.first()));
        } else {
            cursor.insertBlock(blockFormat(lines.at(line)), QTextCharFormat());
        }
    } else {
        const QTextBlock block = m_document->findBlockByNumber(static_cast<int>(line) - 1);
        cursor.setPosition(block.position() + block.length() - 1);
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        return;
    }
    insert(cursor, lines.at(line), place);
    for (qsizetype i = line + 1; i < lines.size(); ++i) {
        cursor.insertBlock(blockFormat(lines.at(i)), QTextCharFormat());
        insert(cursor, lines.at(i), {});
    }
}

/// Where two lines begin to differ. The last character before code differs from any other: it
/// makes room for the ground of the code.
DocumentWriter::Place DocumentWriter::firstDifference(const TextLine &a, const TextLine &b) {
    const auto [end, other] =
        std::mismatch(a.runs.begin(), a.runs.end(), b.runs.begin(), b.runs.end());
    const qsizetype run = end - a.runs.begin();
    if (run > 0 && isCodeAt(a, run) != isCodeAt(b, run))
        return {run - 1, lastCharacter(a.runs.at(run - 1).text)};
    if (run == a.runs.size() || run == b.runs.size() || isCodeAt(a, run))
        return {run, 0};
    TextRun before = a.runs.at(run);
    const TextRun &after = b.runs.at(run);
    const QString text = std::exchange(before.text, after.text);
    if (before != after)
        return {run, 0};
    const auto [last, otherLast] =
        std::mismatch(text.begin(), text.end(), after.text.begin(), after.text.end());
    return {run, std::min({qsizetype(last - text.begin()), lastCharacter(text),
                           lastCharacter(after.text)})};
}

qsizetype DocumentWriter::offsetOf(const TextLine &line, Place place) {
    qsizetype sum = place.character;
    for (qsizetype i = 0; i < place.run; ++i)
        sum += line.runs.at(i).text.size();
    return sum;
}

void DocumentWriter::insert(QTextCursor &cursor, const TextLine &line, Place from) const {
    for (; from.run < line.runs.size(); from = {from.run + 1, 0}) {
        const TextRun &run = line.runs.at(from.run);
        QTextCharFormat format = charFormat(run);
        if (!isCodeAt(line, from.run) && !isCodeAt(line, from.run + 1)) {
            cursor.insertText(run.text.sliced(from.character), format);
            continue;
        }
        // The last character before the ground of code and the last on it keep it off the words.
        const qsizetype last = lastCharacter(run.text);
        cursor.insertText(run.text.sliced(from.character, last - from.character), format);
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(codeInset);
        cursor.insertText(run.text.sliced(last), format);
    }
}

QTextBlockFormat DocumentWriter::blockFormat(const TextLine &line) const {
    QTextBlockFormat format;
    format.setLineHeight(line.height > 0 ? line.height : m_look.lineHeight,
                         QTextBlockFormat::FixedHeight);
    if (line.indent > 0)
        format.setLeftMargin(line.indent);
    if (line.hanging != 0)
        format.setTextIndent(-line.hanging);
    if (line.above > 0)
        format.setTopMargin(line.above);
    if (!line.tabs.isEmpty()) {
        // A document counts them from where the line begins.
        QList<QTextOption::Tab> tabs;
        for (const double place : line.tabs)
            tabs.append(QTextOption::Tab(place - line.indent + line.hanging, QTextOption::LeftTab));
        format.setTabPositions(tabs);
    }
    return format;
}

QTextCharFormat DocumentWriter::charFormat(const TextRun &run) const {
    QTextCharFormat format;
    if (run.styles.testFlag(Style::Bold) || run.tone == Tone::Head)
        format.setFontWeight(QFont::DemiBold);
    if (run.styles.testFlag(Style::Italic))
        format.setFontItalic(true);
    if (run.styles.testFlag(Style::Strike) || run.tone == Tone::Done)
        format.setFontStrikeOut(true);
    if (run.styles.testFlag(Style::Code)) {
        format.setFontFamilies({codeFamily()});
        format.setProperty(QTextFormat::FontPixelSize, m_look.codeSize);
        format.setProperty(codeProperty, true);
    }
    if (run.tone == Tone::Head)
        format.setProperty(QTextFormat::FontPixelSize, m_look.headSize);
    if (run.tone != Tone::Plain)
        format.setForeground(m_look.faint);
    if (!run.link.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(run.link);
        format.setForeground(m_look.link);
        format.setFontUnderline(true);
    }
    return format;
}

int DocumentWriter::wordsStart(qsizetype line) const {
    if (line >= m_lines.size() || m_lines.at(line).hanging == 0 || m_lines.at(line).runs.isEmpty())
        return 0;
    return static_cast<int>(m_lines.at(line).runs.first().text.size());
}

bool DocumentWriter::isCode(const QTextCharFormat &format) {
    return format.boolProperty(codeProperty);
}

} // namespace kiv::ui
