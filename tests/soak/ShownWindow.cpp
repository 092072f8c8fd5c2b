#include "soak/ShownWindow.h"

#include "app/AppDelegate.h"
#include "ui/MainWindow.h"

namespace kiv::soak {

namespace {

class RealWindow : public ShownWindow {
public:
    explicit RealWindow(store::AppStore &store) : m_delegate(store) {
        m_window.open(store, m_delegate, {.frame = QRect(0, 0, 1440, 900)});
        if (!m_window.window())
            qFatal("The window cannot be made");
        m_delegate.setWindow(m_window.window());
    }

private:
    app::AppDelegate m_delegate;
    ui::MainWindow m_window;
};

} // namespace

std::unique_ptr<ShownWindow> ShownWindow::open(store::AppStore &store) {
    return std::make_unique<RealWindow>(store);
}

} // namespace kiv::soak
