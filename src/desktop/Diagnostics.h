#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace kiv::desktop {

/// What somebody who looks for a fault needs to know, as text: `facts` by name, versions and the
/// system, and the newest lines of the log. Nothing of what was said or typed, and no credential.
QString diagnostics(const QList<std::pair<QString, QString>> &facts, const QStringList &logLines);

} // namespace kiv::desktop
