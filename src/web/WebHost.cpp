#include "web/WebHost.h"

namespace kiv::web {

WebPlugin *WebHost::plugin() {
    auto *plugin = qobject_cast<WebPlugin *>(m_loader.instance());
    if (!plugin)
        qWarning("Pages cannot be shown: %s", qUtf8Printable(m_loader.errorString()));
    return plugin;
}

} // namespace kiv::web
