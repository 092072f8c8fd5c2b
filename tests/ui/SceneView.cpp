#include "ui/SceneView.h"

#include "store/SceneSource.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

void collectItems(QQuickItem *item, const QByteArray &type, QList<QQuickItem *> &items) {
    if (QByteArray(item->metaObject()->className()).startsWith(type + "_QMLTYPE"))
        items.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectItems(child, type, items);
}

} // namespace

QQuickItem *SceneView::show(const canvas::SceneOut &scene, const QVariantMap &more,
                            const QSize &size) {
    QVariantMap properties = more;
    properties.insert(u"scene"_s, QVariant::fromValue(scene));
    properties.insert(u"source"_s, QVariant::fromValue(store::SceneSource{.name = u"KIV"_s}));
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
    return textsIn(gallery.window());
}

} // namespace kiv::ui
