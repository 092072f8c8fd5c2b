#include "EnginePlugin.h"

#include "EngineGuard.h"
#include "EnginePage.h"

// The registration of the static module. Naming it keeps the linker from dropping it.
void qml_register_types_Kiv_Web();

namespace kiv::web {

QString EnginePlugin::refusal() const {
    return EngineGuard::refusal();
}

std::unique_ptr<Page> EnginePlugin::makePage(QQmlEngine &engine, const PageWish &wish,
                                             PageWatcher &watcher) {
    if (!m_started) {
        static void (*volatile const registration)() = qml_register_types_Kiv_Web;
        Q_UNUSED(registration)
        EngineGuard::chooseFlags(wish.dark);
        m_started = true;
    }
    return std::make_unique<EnginePage>(engine, wish, watcher);
}

} // namespace kiv::web
