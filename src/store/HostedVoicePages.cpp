#include "store/HostedVoicePages.h"

#include "store/AppStore.h"
#include "web/WebHost.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

QString HostedVoicePages::refusal() {
    web::WebHost *host = m_store.webHost();
    const web::WebPlugin *plugin = host ? host->plugin() : nullptr;
    return plugin ? plugin->callRefusal() : u"Calls need the web engine, which is not installed."_s;
}

std::unique_ptr<voice::VoicePage> HostedVoicePages::makePage(voice::VoicePageWatcher &watcher) {
    web::WebHost *host = m_store.webHost();
    web::WebPlugin *plugin = host ? host->plugin() : nullptr;
    if (!plugin || !plugin->callRefusal().isEmpty())
        return nullptr;
    return plugin->makeVoicePage(m_store.appearance()->dark(), watcher);
}

} // namespace kiv::store
