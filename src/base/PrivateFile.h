#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Files that nobody but this user may read.
namespace kiv::PrivateFile {

/// Sees to it that there is the folder that `path` stands in, a folder of the program's own, and
/// that it is for this user alone.
void makeFolderOf(const QString &path);

/// Exchanges the whole file; one that cannot be written whole is left as it was. Nothing, or why it
/// failed.
QString exchange(const QString &path, const QByteArray &bytes);
/// The same in a folder of the program's own, which makeFolderOf() sees to.
QString write(const QString &path, const QByteArray &bytes);

/// The whole file; nothing for one that may not be read, is larger than `most` bytes or no file.
std::optional<QByteArray> read(const QString &path, qint64 most);

/// Moves what stands at `path`, a file or a folder, to a name beside it that tells what it is
/// ("drafts.damaged") and that nothing has yet: the new path, empty when it cannot be moved.
QString setAside(const QString &path);

/// Deletes the files that were set aside from `path`.
void removeSetAside(const QString &path);

} // namespace kiv::PrivateFile
