#include "ui/SceneView.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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
                          out || item->property("truncated").toBool()});
        }
    }
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        collectTexts(child, texts);
}

void collectItems(QQuickItem *item, const QByteArray &type, QList<QQuickItem *> &items) {
    if (QByteArray(item->metaObject()->className()).startsWith(type + "_QMLTYPE"))
        items.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectItems(child, type, items);
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

QQuickItem *SceneView::show(const canvas::SceneOut &scene, const QVariantMap &more,
                            const QSize &size) {
    QVariantMap properties = more;
    properties.insert(u"scene"_s, QVariant::fromValue(scene));
    properties.insert(u"scope"_s, QVariant::fromValue(m_workspace.store->scope()));
    return gallery.show(u"ScenePage.qml"_s, size, properties);
}

QList<QQuickItem *> SceneView::itemsOf(const char *type) const {
    QList<QQuickItem *> items;
    collectItems(gallery.window().contentItem(), type, items);
    std::stable_sort(items.begin(), items.end(), [](const QQuickItem *one, const QQuickItem *two) {
        return one->mapToScene({}).y() < two->mapToScene({}).y();
    });
    return items;
}

bool SceneView::seesText(const QString &words) const {
    const QList<SeenText> seen = texts();
    return std::any_of(seen.begin(), seen.end(),
                       [&](const SeenText &text) { return text.words == words; });
}

QList<SeenText> SceneView::texts() const {
    QList<SeenText> seen;
    collectTexts(gallery.window().contentItem(), seen);
    return seen;
}

} // namespace kiv::ui
