#include "base/PrivateFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace kiv {

namespace {

constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto ownerFolder = ownerFile | QFileDevice::ExeOwner;

} // namespace

void PrivateFile::makeFolderOf(const QString &path) {
    const QString folder = QFileInfo(path).absolutePath();
    if (QFileInfo::exists(folder) || QDir().mkpath(folder))
        QFile::setPermissions(folder, ownerFolder);
}

QString PrivateFile::write(const QString &path, const QByteArray &bytes) {
    makeFolderOf(path);
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.setPermissions(ownerFile) &&
                         file.write(bytes) == bytes.size() && file.commit();
    return written ? QString() : file.errorString();
}

} // namespace kiv
