#pragma once

#include "Faults.h"

#include <QString>

#include <vector>

namespace kiv::sandbox {

/// What the command line chose.
struct Options {
    QString dataDir;
    int port = 0;          ///< 0 takes a free one
    double answerPace = 1; ///< scales every wait of a growing answer; 0 has none
    quint64 seed = 0;      ///< varies the figures of new workspaces
    bool stay = false;     ///< outlives the end of standard input
    bool control = false;  ///< takes control requests
    QString newestRelease; ///< what the release feed offers
    QString shareDir;      ///< the folder that holds vendor/ and speech/
    std::vector<Fault> faults;
};

/// A command line that cannot be used; `what()` says why.
class OptionsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Throws OptionsError. "--help" and "--version" print and end the program.
Options parseOptions(const QStringList &arguments);

} // namespace kiv::sandbox
