#pragma once

#include <QQuickImageProvider>

namespace kiv::ui {

/// Draws the shadow of a rounded rectangle as a nine-patch picture:
/// image://shadow/LEVEL/THEME/REACH/SLICE/RADIUS, where LEVEL is floating or high, THEME light or
/// dark, REACH how far the picture goes beyond the rectangle, and SLICE the size of its corners.
/// Its middle is one pixel that stretches.
class ShadowProvider : public QQuickImageProvider {
public:
    ShadowProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace kiv::ui
