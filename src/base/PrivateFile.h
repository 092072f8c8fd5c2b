#pragma once

#include <QByteArray>
#include <QString>

/// Files that nobody but this user may read.
namespace kiv::PrivateFile {

/// Sees to it that there is the folder that `path` stands in, a folder of the program's own, and
/// that it is for this user alone.
void makeFolderOf(const QString &path);

/// Exchanges the whole file, making its folder where there is none; a file that cannot be written
/// whole is left as it was. Nothing, or why it failed.
QString write(const QString &path, const QByteArray &bytes);

} // namespace kiv::PrivateFile
