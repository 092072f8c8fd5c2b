#include "ui/markdown/FoundMarks.h"

#include <QSGRectangleNode>
#include <QTextLayout>

#include <cmath>

namespace kiv::ui {

namespace {

constexpr double overhang = 1;  ///< of a mark over its letters
constexpr double edgeWidth = 2; ///< around the mark

void append(QSGNode &node, QQuickWindow &window, const QRectF &place, const QColor &color) {
    QSGRectangleNode *rectangle = window.createRectangleNode();
    rectangle->setRect(place);
    rectangle->setColor(color);
    node.appendChildNode(rectangle);
}

} // namespace

QList<QRectF> placesOf(const QTextBlock &block, int start, int end, const QFontMetricsF &metrics) {
    QList<QRectF> places;
    const QTextLayout *layout = block.layout();
    const QPointF origin = layout->position();
    while (start < end) {
        const QTextLine line = layout->lineForTextPosition(start);
        if (!line.isValid())
            break;
        const int lineEnd = std::min(end, line.textStart() + line.textLength());
        const double left = line.cursorToX(start);
        const double right = line.cursorToX(lineEnd);
        const double baseline = origin.y() + line.y() + line.ascent();
        places.append({origin.x() + std::min(left, right), std::round(baseline - metrics.ascent()),
                       std::abs(right - left), std::ceil(metrics.ascent() + metrics.descent())});
        start = std::max(lineEnd, start + 1);
    }
    return places;
}

void FoundMarks::clear() {
    m_others.clear();
    m_currents.clear();
}

void FoundMarks::add(const QTextBlock &block, int start, int end, State state) {
    if (!block.isValid())
        return;
    const QFontMetricsF metrics(block.layout()->font());
    QList<QRectF> &marks = state == State::Current ? m_currents : m_others;
    for (const QRectF &place : placesOf(block, start, std::min(end, block.length() - 1), metrics))
        marks.append(place.adjusted(-overhang, -overhang, overhang, overhang));
}

QSGNode *FoundMarks::paint(QSGNode *node, QQuickWindow &window, const QColor &color,
                           const QColor &edge) const {
    delete node;
    if (isEmpty())
        return nullptr;
    node = new QSGNode;
    for (const QRectF &place : m_others)
        append(*node, window, place, color);
    for (const QRectF &place : m_currents) {
        append(*node, window, place.adjusted(-edgeWidth, -edgeWidth, edgeWidth, edgeWidth), edge);
        append(*node, window, place, color);
    }
    return node;
}

} // namespace kiv::ui
