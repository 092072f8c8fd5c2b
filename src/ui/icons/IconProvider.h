#pragma once

#include <QQuickImageProvider>

namespace kiv::ui {

/// Draws the line icons: image://icon/NAME/SIZE/#rrggbb, where SIZE is in device-independent
/// pixels.
class IconProvider : public QQuickImageProvider {
public:
    IconProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace kiv::ui
