#include "ui/markdown/BlockText.h"

#include "ui/tokens/Typefaces.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <cmath>

namespace kiv::ui {

using text::MDBlock;

namespace {

/// Of the ground of inline code, above and below its letters.
constexpr double codeMargin = 1;
/// Code grows in steps of this width, so that a line that is being written does not lay out all
/// others at every word.
constexpr double codeStep = 160;

/// The grounds of the characters from `start` to `end` of a block, line by line.
void addChips(QList<QRectF> &chips, const QTextBlock &block, int start, int end, int codeSize) {
    if (start < 0)
        return;
    QFont font(codeFamily());
    font.setPixelSize(codeSize);
    for (const QRectF &place : placesOf(block, start, end, QFontMetricsF(font)))
        chips.append(place.adjusted(-DocumentWriter::codeInset, -codeMargin, 0, codeMargin));
}

void addChips(QList<QRectF> &chips, const QTextBlock &block, int codeSize) {
    int start = -1;
    int end = -1;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!DocumentWriter::isCode(fragment.charFormat()))
            continue;
        const int at = fragment.position() - block.position();
        if (at != end) {
            addChips(chips, block, start, end, codeSize);
            start = at;
        }
        end = at + fragment.length();
    }
    addChips(chips, block, start, end, codeSize);
}

QRectF endOf(const QTextBlock &block) {
    const QTextLayout *layout = block.layout();
    const QTextLine line = layout->lineForTextPosition(block.length() - 1);
    if (!line.isValid())
        return {};
    const QPointF place =
        layout->position() + QPointF(line.cursorToX(block.length() - 1), line.y());
    return {place, QSizeF(0, line.ascent() + line.descent())};
}

} // namespace

BlockText::BlockText(QQuickItem *parent) : QQuickItem(parent) {
    connect(this, &BlockText::marksChanged, this, &QQuickItem::update);
}

void BlockText::setDocument(QQuickTextDocument *document) {
    if (m_document == document)
        return;
    m_document = document;
    m_writer.setDocument(document ? document->textDocument() : nullptr);
    Q_EMIT changed();
}

void BlockText::setPart(const MarkdownPart &part) {
    const bool isSame = m_part.content == part.content && m_part.joint == part.joint;
    const bool isMarkedSame = m_part.found == part.found;
    m_part = part;
    if (!isSame)
        Q_EMIT changed();
    if (!isMarkedSame)
        polish();
}

void BlockText::componentComplete() {
    QQuickItem::componentComplete();
    connect(this, &BlockText::changed, this, &BlockText::write);
    write();
}

void BlockText::write() {
    QList<TextLine> lines;
    if (m_plain) {
        lines = plainLines(std::get<MDBlock::Paragraph>(m_part.content).text);
        measure(lines);
    } else if (std::holds_alternative<MDBlock::Table>(m_part.content)) {
        lines = m_columns.lines(m_part, m_font, m_look, m_available);
    } else {
        lines = textLines(m_part, m_font);
    }
    if (m_writer.write(std::move(lines), m_look))
        polish();
}

void BlockText::measure(const QList<TextLine> &lines) {
    const QFontMetricsF metrics(m_font);
    double width = 0;
    for (const TextLine &line : lines) {
        for (const TextRun &run : line.runs)
            width = std::max(width, metrics.horizontalAdvance(run.text));
    }
    // A pixel to spare, so that rounding never breaks a line.
    width = std::ceil(width) + 1;
    if (std::exchange(m_naturalWidth, width) != width)
        Q_EMIT widthMeasured();
}

void BlockText::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    polish();
}

void BlockText::updatePolish() {
    if (!m_document)
        return;
    const QTextDocument *text = m_document->textDocument();
    const bool isTable = std::holds_alternative<MDBlock::Table>(m_part.content);
    QList<QRectF> chips;
    QList<double> tops = isTable ? m_columns.rowTops() : QList<double>();
    for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
        if (!isTable)
            tops.append(text->documentLayout()->blockBoundingRect(block).top());
        addChips(chips, block, m_look.codeSize);
    }
    const QRectF end = endOf(text->lastBlock());
    if (chips != m_chips || tops != m_tops || end != m_end) {
        m_chips = std::move(chips);
        m_tops = std::move(tops);
        m_end = end;
        Q_EMIT placesChanged();
    }
    placeMarks();
    const double width =
        isTable ? m_columns.width() : std::ceil(text->idealWidth() / codeStep) * codeStep;
    if (std::exchange(m_unwrappedWidth, width) != width)
        Q_EMIT widthMeasured();
}

void BlockText::placeMarks() {
    if (m_part.found.isEmpty() && m_marks.isEmpty())
        return;
    const QTextDocument &text = *m_document->textDocument();
    m_marks.clear();
    for (const FoundWords &words : std::as_const(m_part.found)) {
        const auto state = words.isCurrent ? FoundMarks::State::Current : FoundMarks::State::Other;
        if (!std::holds_alternative<MDBlock::Table>(m_part.content)) {
            const QTextBlock block = text.findBlockByNumber(words.place.line);
            const int start = m_writer.wordsStart(words.place.line) + words.place.start;
            m_marks.add(block, start, start + words.place.length, state);
            continue;
        }
        for (const auto &[start, end] : m_columns.placesOf(words.place)) {
            const QTextBlock block = text.findBlock(start);
            m_marks.add(block, start - block.position(), end - block.position(), state);
        }
    }
    setFlag(ItemHasContents);
    Q_EMIT marksChanged();
}

QSGNode *BlockText::updatePaintNode(QSGNode *node, UpdatePaintNodeData *) {
    return m_marks.paint(node, *window(), m_foundColor, m_foundEdge);
}

void BlockText::copyCells(int start, int end) const {
    QGuiApplication::clipboard()->setText(m_columns.cells(start, end));
}

} // namespace kiv::ui
