#pragma once

#include "app/Places.h"
#include "store/Enums.h"

#include <QStringList>
#include <QUrl>

#include <optional>
#include <stdexcept>

namespace kiv::app {

/// An option that is not one of those to choose from; `what()` says which there are.
class OptionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What the command line and the environment ask for.
struct Options {
    /// A hosted backend; nothing for the embedded workspace.
    std::optional<QUrl> baseUrl;
    bool snapshot = false; ///< keeps no settings, no drafts and no place of the window
    /// The look of this run; nothing for the one that the person has chosen.
    std::optional<store::Theme> theme;
    /// The language of this run; nothing for the one that the person has chosen.
    std::optional<store::Language> language;
    Places places;
    /// A WAV file that is heard in place of the microphone; empty for the microphone.
    QString audioFile;
    /// Links to chats, to be opened; they may be anything.
    QStringList links;
    /// Further arguments of the embedded server.
    QStringList sandboxArguments;
};

/// Reads the program's arguments. Throws BaseUrlError for an address it must not talk to and
/// OptionError; ends the program for --help, --version and options it does not know.
Options readOptions(const QStringList &arguments);

} // namespace kiv::app
