#pragma once

#include "store/Enums.h"

#include <QStringList>

namespace kiv::store {

/// The extensions of the files that can be attached, lower-case.
const QStringList &fileExts();

/// The type that a file with this extension is sent as, in any letter case.
QString mime(const QString &forExt);

/// The extension of a file's name as written; empty when it has none.
QString extensionOf(const QString &fileName);

FileKind fileKind(const QString &fileName);

} // namespace kiv::store
