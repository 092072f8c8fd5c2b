#pragma once

#include "ui/Gallery.h"
#include "ui/SceneAnswers.h"
#include "ui/SeenText.h"

namespace kiv::ui {

/// A sheet with a scene in a window off screen.
class SceneView {
public:
    QQuickItem *show(const canvas::SceneOut &scene, const QVariantMap &more = {},
                     const QSize &size = {1000, 720});
    QQuickItem *sheet() const { return gallery.item(QStringLiteral("sheet")); }
    /// The items of a QML type in the window, from top to bottom.
    QList<QQuickItem *> itemsOf(const char *type) const;
    QList<SeenText> texts() const;
    bool seesText(const QString &words) const;

    Gallery gallery;
};

} // namespace kiv::ui
