#include "store/PickedFile.h"

#include "store/FileTypes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace kiv::store {

namespace {

std::optional<QByteArray> contentOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // As much as is asked for is taken from the memory, also for a small file. A byte more than
    // there should be tells one that has grown, or one that does not know its size.
    const qint64 size = std::min(file.size(), PickedFile::largest);
    QByteArray content = file.read(size + 1);
    if (content.size() > size && size < PickedFile::largest)
        content += file.read(PickedFile::largest + 1 - content.size());
    return file.error() == QFileDevice::NoError ? std::optional(content) : std::nullopt;
}

QString unreadable(const QString &name) {
    return PickedFile::tr("“%1” cannot be read.").arg(name);
}

QString tooLarge(const QString &name) {
    return PickedFile::tr("“%1” is larger than 10 MB.").arg(name);
}

} // namespace

PickedFile PickedFile::at(const QUrl &url) {
    const QFileInfo info(QDir::cleanPath(url.toLocalFile()));
    const QString name = info.fileName();
    if (!url.isLocalFile())
        return refused(url.fileName(), tr("Only files on this computer can be attached."));
    if (info.isDir())
        return refused(name, tr("“%1” is a folder: attach the files in it.").arg(name));
    if (!info.isFile() || !info.isReadable())
        return refused(name, unreadable(name));
    if (!fileExts().contains(extensionOf(name), Qt::CaseInsensitive))
        return refused(name, tr("“%1” is not a kind of file that can be attached.").arg(name));
    if (info.size() > largest)
        return refused(name, tooLarge(name));
    PickedFile file(name, [path = info.filePath()] { return contentOf(path); });
    file.m_size = info.size();
    return file;
}

PickedFile PickedFile::refused(QString name, QString why) {
    PickedFile file(std::move(name), {});
    file.m_refusal = std::move(why);
    return file;
}

PickedFile::Read PickedFile::read() const {
    std::optional<QByteArray> content = m_content();
    if (!content)
        return {.part = {}, .refusal = unreadable(m_name)};
    if (content->size() > largest)
        return {.part = {}, .refusal = tooLarge(m_name)};
    return {.part = {m_name, mime(extensionOf(m_name)), *std::move(content)}, .refusal = {}};
}

} // namespace kiv::store
