#include "driver/FindItem.h"

namespace kiv::driver {

QQuickItem *findItem(QQuickItem *root, const std::function<bool(const QQuickItem &)> &matches) {
    if (!root->isVisible())
        return nullptr;
    if (matches(*root))
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findItem(child, matches))
            return found;
    }
    return nullptr;
}

QQuickItem *findItem(QQuickItem *root, const QString &objectName) {
    return findItem(root, [&](const QQuickItem &item) { return item.objectName() == objectName; });
}

} // namespace kiv::driver
