#include "EnginePlugin.h"

#include "EngineGuard.h"
#include "EnginePage.h"
#include "EngineVoicePage.h"

// The registration of the static module. Naming it keeps the linker from dropping it.
void qml_register_types_Kiv_Web();

namespace kiv::web {

QString EnginePlugin::refusal() const {
    return EngineGuard::refusal(EngineGuard::Use::Pages);
}

QString EnginePlugin::callRefusal() const {
    return EngineGuard::refusal(EngineGuard::Use::Calls);
}

/// Says what has to be said before there is a page of either kind.
void EnginePlugin::startEngine(bool dark) {
    if (std::exchange(m_started, true))
        return;
    static void (*volatile const registration)() = qml_register_types_Kiv_Web;
    Q_UNUSED(registration)
    EngineGuard::chooseFlags(dark);
}

std::unique_ptr<Page> EnginePlugin::makePage(QQmlEngine &engine, const PageWish &wish,
                                             PageWatcher &watcher) {
    startEngine(wish.dark);
    return std::make_unique<EnginePage>(engine, wish, watcher);
}

std::unique_ptr<voice::VoicePage> EnginePlugin::makeVoicePage(bool dark,
                                                              voice::VoicePageWatcher &watcher) {
    startEngine(dark);
    return std::make_unique<EngineVoicePage>(watcher);
}

} // namespace kiv::web
