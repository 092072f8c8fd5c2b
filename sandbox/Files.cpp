#include "Files.h"

#include "Database.h"
#include "Secrets.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

Files::Files(Database &database, const QString &dataDir)
    : m_database(database), m_folder(dataDir + u"/files"_s) {
    QDir().mkpath(m_folder);
}

StoredFile Files::store(const QString &account, const QString &name, const QString &mime,
                        const QByteArray &content) {
    const StoredFile stored{QString::fromLatin1(randomToken()), name, mime, content.size()};
    QFile file(m_folder + u'/' + stored.key);
    if (!file.open(QIODevice::WriteOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(content) != content.size()) {
        throw DatabaseError("An upload cannot be written.");
    }
    m_database.run([&](Sql &sql) {
        sql.exec(u"INSERT INTO files (key, account, name, mime, size, created_at)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {stored.key, account, name, mime, stored.size,
                  QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)});
    });
    return stored;
}

std::optional<StoredFile> Files::find(const QString &key) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(u"SELECT name, mime, size FROM files WHERE key = ?"_s, {key});
    });
    if (!row) {
        return std::nullopt;
    }
    return StoredFile{key, row->text(0), row->text(1), row->whole(2)};
}

QByteArray Files::content(const StoredFile &file) const {
    QFile stored(m_folder + u'/' + file.key);
    return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray();
}

} // namespace kiv::sandbox
