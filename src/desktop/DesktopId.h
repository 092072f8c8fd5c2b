#pragma once

#include <QString>

/// The one name by which the desktop knows the program: of its desktop file, its icons, its
/// metadata, its place on the bus and its entry in the key chain.
namespace kiv::desktop {

inline const QString desktopId = QStringLiteral("ai.kiv.Desktop");

} // namespace kiv::desktop
