#pragma once

#include "web/WebPlugin.h"

#include <QPluginLoader>

namespace kiv::web {

/// Where the web plugin is had from. Until it is asked for the first time, nothing of it is in the
/// process.
class WebHost {
public:
    /// `file` is the plugin's library, its ending left out.
    explicit WebHost(const QString &file) : m_loader(file) {}

    /// Null when the plugin is not installed or does not fit this program.
    WebPlugin *plugin();

private:
    QPluginLoader m_loader;
};

} // namespace kiv::web
