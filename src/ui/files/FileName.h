#pragma once

#include <QString>

namespace kiv::ui {

/// A title as the name of a file, without an extension: what file systems refuse or hide behind is
/// left out. Empty when nothing of the title can stay.
QString fileNameOf(const QString &title);

} // namespace kiv::ui
