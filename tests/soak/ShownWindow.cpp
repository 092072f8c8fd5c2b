#include "soak/ShownWindow.h"

#include "app/AppDelegate.h"
#include "ui/Modules.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace kiv::soak {

namespace {

class RealWindow : public ShownWindow {
public:
    explicit RealWindow(store::AppStore &store) : m_delegate(store) {
        ui::showMainWindow(m_engine, store, m_delegate, {.frame = QRect(0, 0, 1440, 900)});
        if (m_engine.rootObjects().isEmpty())
            qFatal("The window cannot be made");
        m_delegate.setWindow(qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst()));
    }

private:
    app::AppDelegate m_delegate;
    QQmlApplicationEngine m_engine;
};

} // namespace

std::unique_ptr<ShownWindow> ShownWindow::open(store::AppStore &store) {
    return std::make_unique<RealWindow>(store);
}

} // namespace kiv::soak
