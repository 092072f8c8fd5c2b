#pragma once

#include <QColor>
#include <QFontMetricsF>
#include <QList>
#include <QQuickWindow>
#include <QRectF>
#include <QSGNode>
#include <QTextBlock>

namespace kiv::ui {

/// Where the letters from `start` to `end` of a line stand, one place for each line that it is
/// broken into, as high as the letters of a font.
QList<QRectF> placesOf(const QTextBlock &block, int start, int end, const QFontMetricsF &metrics);

/// The grounds of words that the person looks for. Lengths are device-independent pixels.
class FoundMarks {
public:
    enum class State { Other, Current };

    bool isEmpty() const { return m_others.isEmpty() && m_currents.isEmpty(); }
    void clear();
    /// Marks the letters from `start` to `end` of a line, as far as it has them.
    void add(const QTextBlock &block, int start, int end, State state);
    /// The place of the first line of the current words; null without any.
    QRectF current() const { return m_currents.value(0); }

    /// The current words have an edge.
    QSGNode *paint(QSGNode *node, QQuickWindow &window, const QColor &color,
                   const QColor &edge) const;

private:
    QList<QRectF> m_others;
    QList<QRectF> m_currents;
};

} // namespace kiv::ui
