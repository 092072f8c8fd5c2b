#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace kiv::tools {

/// What `kiv-canvas render` is to draw.
struct RenderOptions {
    QString question;
    bool isDark = false;
    QSize size{1120, 760}; ///< of the picture
    QString output;
    QString input; ///< "-" for the standard input
};

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a command line, the program's name first. Throws UsageError on one that makes no sense;
/// --help ends the program.
RenderOptions readRenderOptions(const QStringList &arguments);

} // namespace kiv::tools
