#include "Files.h"

#include "Database.h"
#include "Secrets.h"
#include "base/PrivateFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopeGuard>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

QJsonValue fileAddress(const QString &origin, const QString &key) {
    return key.isEmpty() ? QJsonValue() : u"%1/files/%2"_s.arg(origin, key);
}

Files::Files(Database &database, const QString &dataDir)
    : m_database(database), m_folder(dataDir + u"/files"_s) {
    if (QFileInfo::exists(m_folder) && !QFileInfo(m_folder).isDir()) {
        qCritical("Something else stands where uploads go; it is set aside.");
        PrivateFile::setAside(m_folder);
    }
}

StoredFile Files::store(const QString &account, const QString &name, const QString &mime,
                        const QByteArray &content) {
    const StoredFile stored{QString::fromLatin1(randomToken()), name, mime, content.size()};
    QDir().mkpath(m_folder);
    // There whole or not at all.
    QSaveFile file(m_folder + u'/' + stored.key);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                           file.write(content) == content.size() && file.flush() && file.commit();
    if (!isWritten) {
        const bool isFull = QStorageInfo(m_folder).bytesAvailable() < content.size();
        throw DatabaseError("An upload cannot be written: " + file.errorString().toStdString(),
                            isFull ? DatabaseError::Kind::Full : DatabaseError::Kind::Other);
    }
    auto forget = qScopeGuard([&file] { QFile::remove(file.fileName()); }); // nobody else would
    m_database.run([&](Sql &sql) {
        sql.exec(u"INSERT INTO files (key, account, name, mime, size, created_at)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {stored.key, account, name, mime, stored.size,
                  QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)});
    });
    forget.dismiss();
    return stored;
}

std::optional<StoredFile> Files::find(const QString &key) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT name, mime, size FROM files WHERE key = ?"_s, {key});
    });
    if (!row)
        return std::nullopt;
    return StoredFile{key, row->text(0), row->text(1), row->whole(2)};
}

std::optional<QByteArray> Files::content(const StoredFile &file) const {
    return PrivateFile::read(m_folder + u'/' + file.key, file.size);
}

} // namespace kiv::sandbox
