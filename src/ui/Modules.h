#pragma once

#include "ui/tokens/Appearance.h"

class QQmlEngine;

namespace kiv::ui {

/// Makes every view of the program known to `engine`: modules, pictures and the type face.
/// Called once for an engine, after the application object was made and before its first view is
/// loaded. What comes back belongs to the engine and sets the look of its views.
Appearance &registerModules(QQmlEngine &engine);

} // namespace kiv::ui
