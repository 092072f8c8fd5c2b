#include "base/PrivateFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace kiv {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto ownerFolder = ownerFile | QFileDevice::ExeOwner;
constexpr auto asideSuffix = ".damaged"_L1;

} // namespace

void PrivateFile::makeFolderOf(const QString &path) {
    const QString folder = QFileInfo(path).absolutePath();
    // What its owner may not do there is left as it is.
    if (QFileInfo::exists(folder) || QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::permissions(folder) & ownerFolder);
}

QString PrivateFile::exchange(const QString &path, const QByteArray &bytes) {
    QSaveFile file(path);
    // Flushed before it is committed: what fails only then would still replace the file of before.
    const bool written = file.open(QIODevice::WriteOnly) && file.setPermissions(ownerFile) &&
                         file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return written ? QString() : file.errorString();
}

QString PrivateFile::write(const QString &path, const QByteArray &bytes) {
    makeFolderOf(path);
    return exchange(path, bytes);
}

std::optional<QByteArray> PrivateFile::read(const QString &path, qint64 most) {
    QFile file(path);
    // A pipe would be waited for.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // As much as is asked for is taken from the memory, also for a small file.
    const QByteArray bytes = file.read(std::min(file.size(), most) + 1);
    if (bytes.size() > most || file.error() != QFileDevice::NoError)
        return std::nullopt;
    return bytes;
}

QString PrivateFile::setAside(const QString &path) {
    const QString name = path + asideSuffix;
    QString free = name;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = name + u'-' + QString::number(number);
    return QDir().rename(path, free) ? free : QString();
}

void PrivateFile::removeSetAside(const QString &path) {
    const QFileInfo info(path);
    const QString name = info.fileName() + asideSuffix;
    QDir folder = info.dir();
    for (const QString &file : folder.entryList({name, name + u"-*"_s}, QDir::Files))
        folder.remove(file);
}

} // namespace kiv
