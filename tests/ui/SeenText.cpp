#include "ui/SeenText.h"

#include <algorithm>
#include <cmath>

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

double luminance(const QColor &color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
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

double contrast(const QColor &one, const QColor &other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace kiv::ui
