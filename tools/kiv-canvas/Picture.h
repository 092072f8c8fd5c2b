#pragma once

#include "canvas/SceneOut.h"

#include <QImage>
#include <QSize>

namespace kiv::tools {

/// A scene on its sheet, as the window shows it at rest. Null when it cannot be drawn.
QImage pictureOf(const canvas::SceneOut &scene, const QSize &size, bool isDark);

} // namespace kiv::tools
