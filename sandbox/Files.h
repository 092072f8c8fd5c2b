#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <optional>

namespace kiv::sandbox {

class Database;

struct StoredFile {
    QString key;
    QString name;
    QString mime;
    qint64 size = 0;
};

/// Where a file is reached on the server at `origin`; null for no key.
QJsonValue fileAddress(const QString &origin, const QString &key);

/// Uploaded files: bytes in the data folder, the rest in the database. A file is reached by its
/// random key alone, so that a picture can be shown without a session.
class Files {
public:
    Files(Database &database, const QString &dataDir);

    StoredFile store(const QString &account, const QString &name, const QString &mime,
                     const QByteArray &content);
    std::optional<StoredFile> find(const QString &key);
    /// Nothing when the file has gone from the folder.
    std::optional<QByteArray> content(const StoredFile &file) const;

private:
    Database &m_database;
    QString m_folder;
};

} // namespace kiv::sandbox
