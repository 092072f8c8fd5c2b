#pragma once

#include "app/Places.h"

#include <QStringList>
#include <QUrl>

#include <optional>

namespace kiv::app {

enum class Theme { Light, Dark };

/// What the command line and the environment ask for.
struct Options {
    /// A hosted backend; nothing for the embedded workspace.
    std::optional<QUrl> baseUrl;
    bool snapshot = false;
    Theme theme = Theme::Light;
    Places places;
    /// Further arguments of the embedded server.
    QStringList sandboxArguments;
};

/// Reads the program's arguments. Throws BaseUrlError for an address it must not talk to; ends the
/// program for --help, --version and options it does not know.
Options readOptions(const QStringList &arguments);

} // namespace kiv::app
