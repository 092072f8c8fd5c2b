#pragma once

#include "ui/tokens/Appearance.h"

#include <QRect>

#include <optional>

class QQmlApplicationEngine;
class QQmlEngine;

namespace kiv::store {
class AppStore;
}

namespace kiv::ui {

class Commands;

/// How the window is opened.
struct WindowLook {
    /// Where it stands; nothing leaves that to the system.
    std::optional<QRect> frame = {};
    bool maximized = false;
};

/// Makes every view of the program known to `engine`: modules, pictures and the type face.
/// Called once for an engine, after the application object was made and before its first view is
/// loaded. What comes back belongs to the engine and sets the look of its views.
Appearance &registerModules(QQmlEngine &engine);

/// Opens the program's one window on `store`; it and the commands outlive the engine.
void showMainWindow(QQmlApplicationEngine &engine, store::AppStore &store, Commands &commands,
                    const WindowLook &look);

} // namespace kiv::ui
