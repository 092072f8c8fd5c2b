#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRect>

#include <memory>
#include <optional>

namespace kiv::store {
class AppStore;
}

namespace kiv::ui {

class Appearance;
class Commands;

/// How the window is opened.
struct WindowLook {
    /// Where it stands; nothing leaves that to the system.
    std::optional<QRect> frame = {};
    /// Without a frame; and how small it may be made.
    QSize size = {1440, 900};
    QSize least = {1024, 680};
    bool maximized = false;
};

/// The program's one window. Its views are read on a thread of their own from the start, while
/// what they show is made on the main thread.
class MainWindow {
public:
    MainWindow();

    /// Opens it on `store`; that and the commands outlive this object. Called once.
    void open(store::AppStore &store, Commands &commands, const WindowLook &look);

    /// Null before it is open, and when its views are in error.
    QQuickWindow *window() const { return m_window.get(); }
    Appearance &appearance() { return m_appearance; }

private:
    QQmlEngine m_engine;
    Appearance &m_appearance;
    QQmlComponent m_ahead;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace kiv::ui
