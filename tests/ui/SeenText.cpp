#include "ui/SeenText.h"

#include <algorithm>

namespace kiv::ui {

namespace {

/// Where the letters of a text stand.
QRectF inkOf(const QQuickItem *text) {
    const double width = std::min(text->property("contentWidth").toDouble(), text->width());
    const int alignment = text->property("effectiveHorizontalAlignment").toInt();
    const double spare = text->width() - width;
    const double x = alignment == Qt::AlignRight     ? spare
                     : alignment == Qt::AlignHCenter ? spare / 2
                                                     : 0;
    return {x, 0, width, text->height()};
}

bool isSqueezed(const QQuickItem *text) {
    for (const QQuickItem *above = text->parentItem(); above; above = above->parentItem()) {
        if (above->inherits("QQuickAbstractButton"))
            return text->property("contentHeight").toDouble() > above->height() + 1;
    }
    return false;
}

void collectTexts(const QQuickItem *item, QList<SeenText> &texts) {
    if (!item->isVisible() || item->opacity() == 0)
        return;
    const QString words = item->property("text").toString();
    if (item->inherits("QQuickText") && !words.isEmpty()) {
        const QRectF ink = inkOf(item);
        const QRectF box = shownPart(item, ink);
        if (!box.isEmpty()) {
            const bool out = item->property("contentWidth").toDouble() > item->width() + 0.5;
            texts.append({words, box, item->property("color").value<QColor>(),
                          out || item->property("truncated").toBool(), isSqueezed(item)});
        }
    }
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        collectTexts(child, texts);
}

} // namespace

QRectF shownPart(const QQuickItem *item, const QRectF &area) {
    QRectF box = item->mapRectToScene(area);
    for (const QQuickItem *above = item->parentItem(); above; above = above->parentItem()) {
        if (above->clip())
            box &= above->mapRectToScene(above->boundingRect());
    }
    return box;
}

QList<SeenText> textsIn(const QQuickWindow &window) {
    QList<SeenText> seen;
    collectTexts(window.contentItem(), seen);
    return seen;
}

} // namespace kiv::ui
