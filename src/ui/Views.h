#pragma once

class QQmlEngine;

namespace kiv::ui {

class Appearance;

/// Makes every view of the program known to `engine`: modules, pictures and the type face.
/// Called once, after the application object was made and before the first view is loaded.
/// What comes back belongs to the engine and sets the look of its views.
Appearance &registerViews(QQmlEngine &engine);

} // namespace kiv::ui
