#pragma once

#include <QColor>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>

namespace kiv::ui {

/// A text of the window as it is seen.
struct SeenText {
    QString words;
    QRectF box; ///< what of it is not clipped, in the window
    QColor color;
    bool cut = false;      ///< elided, or running out of its room
    bool squeezed = false; ///< higher than the control that it stands in
};

/// What of an item's area no clipping item above it cuts off.
QRectF shownPart(const QQuickItem *item, const QRectF &area);

/// The texts that show in a window.
QList<SeenText> textsIn(const QQuickWindow &window);

/// How well one colour is told from another, from 1 to 21.
double contrast(const QColor &one, const QColor &other);

} // namespace kiv::ui
