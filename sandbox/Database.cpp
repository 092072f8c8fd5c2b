#include "Database.h"

#include "Schema.h"
#include "base/PrivateFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

const QString connectionName = u"workspace"_s;
/// Of the tables; a file with a higher one was written by a later server.
constexpr int schemaVersion = 1;

/// SQLite's primary result codes that are told apart here.
enum Code { Unfitting = 1, Corrupt = 11, Full = 13, Format = 24, NotADatabase = 26 };

DatabaseError::Kind kindOf(const QSqlError &error) {
    constexpr int primary = 0xff;
    switch (error.nativeErrorCode().toInt() & primary) {
    case Unfitting: // no statement of ours is wrong: the tables are not ours
    case Corrupt:
    case Format:
    case NotADatabase:
        return DatabaseError::Kind::Damaged;
    case Full:
        return DatabaseError::Kind::Full;
    default:
        return DatabaseError::Kind::Other;
    }
}

[[noreturn]] void fail(const QSqlError &error, const QString &statement) {
    throw DatabaseError((error.text() + u" in: "_s + statement).toStdString(), kindOf(error));
}

[[noreturn]] void failAsDamaged(const QString &why) {
    throw DatabaseError(why.toStdString(), DatabaseError::Kind::Damaged);
}

/// What can be told of the file without opening it. An empty one is no damage to SQLite, which
/// would throw away what the log beside it still holds.
void checkFile(const QString &path) {
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        failAsDamaged(u"it is no file"_s);
    if (file.exists() && file.size() == 0)
        failAsDamaged(u"it is empty"_s);
    if (file.exists() && !(file.isReadable() && file.isWritable()))
        throw DatabaseError("This user may not read and write " + path.toStdString());
}

/// The log and its index belong to their file: beside a fresh one they would spoil it.
QString setAsideWithLog(const QString &path) {
    const QString moved = PrivateFile::setAside(path);
    for (const QString &beside : {u"-wal"_s, u"-shm"_s}) {
        if (!moved.isEmpty() && QFileInfo::exists(path + beside))
            QFile::rename(path + beside, moved + beside);
    }
    return moved;
}

} // namespace

Sql::Connection::Connection(const QString &path)
    : m_database(new QSqlDatabase(QSqlDatabase::addDatabase(u"QSQLITE"_s, connectionName))) {
    m_database->setDatabaseName(path);
}

Sql::Connection::~Connection() {
    m_database->close();
    m_database.reset();
    QSqlDatabase::removeDatabase(connectionName);
}

Sql::Sql(const QString &path) : m_database(path) {
    checkFile(path);
    if (!(*m_database).open())
        fail((*m_database).lastError(), path);
    // One that was made when this was not yet seen to; what lies beside it takes after it.
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // Looked at before anything is written: what is refused or set aside stays as it was.
    checkContent();
    createSchema(*this);
    exec(u"PRAGMA journal_mode = WAL"_s);
    exec(u"PRAGMA synchronous = NORMAL"_s);
    exec(u"PRAGMA foreign_keys = ON"_s);
    if (row(u"PRAGMA user_version"_s)->whole(0) != schemaVersion)
        exec(u"PRAGMA user_version = %1"_s.arg(schemaVersion));
}

Sql::~Sql() = default; // the statements before their connection

void Sql::checkContent() {
    const QString found = row(u"PRAGMA quick_check(1)"_s)->text(0);
    if (found != u"ok"_s)
        failAsDamaged(found);
    if (row(u"PRAGMA user_version"_s)->whole(0) > schemaVersion)
        throw DatabaseError("The database was written by a later version.",
                            DatabaseError::Kind::Later);
}

QSqlQuery &Sql::run(const QString &statement, const QVariantList &values) {
    auto found = m_prepared.find(statement);
    if (found == m_prepared.end()) {
        QSqlQuery query(*m_database);
        query.setForwardOnly(true);
        if (!query.prepare(statement))
            fail(query.lastError(), statement);
        found = m_prepared.emplace(statement, std::move(query)).first;
    }
    QSqlQuery &query = found->second;
    for (qsizetype i = 0; i < values.size(); ++i) {
        // Qt takes a null string for NULL; here only an invalid value is.
        const QVariant &value = values.at(i);
        const bool emptyText = value.typeId() == QMetaType::QString && value.toString().isNull();
        query.bindValue(static_cast<int>(i), emptyText ? QVariant(u""_s) : value);
    }
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        query.finish();
        fail(error, statement);
    }
    return query;
}

int Sql::exec(const QString &statement, const QVariantList &values) {
    QSqlQuery &query = run(statement, values);
    const int changed = query.numRowsAffected();
    query.finish();
    return changed;
}

qint64 Sql::insert(const QString &statement, const QVariantList &values) {
    QSqlQuery &query = run(statement, values);
    const qint64 id = query.lastInsertId().toLongLong();
    query.finish();
    return id;
}

QList<Row> Sql::rows(const QString &statement, const QVariantList &values) {
    QSqlQuery &query = run(statement, values);
    QList<Row> result;
    while (query.next()) {
        QVariantList columns;
        const int count = query.record().count();
        for (int column = 0; column < count; ++column)
            columns.append(query.value(column));
        result.append(Row(std::move(columns)));
    }
    query.finish();
    return result;
}

std::optional<Row> Sql::row(const QString &statement, const QVariantList &values) {
    const QList<Row> found = rows(statement, values);
    return found.isEmpty() ? std::nullopt : std::optional<Row>(found.constFirst());
}

Database::Database(QString path) : m_thread([this, path = std::move(path)] { work(path); }) {}

Database::~Database() {
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

QString Database::open() {
    std::packaged_task<void(Sql *)> task([](Sql *) {});
    std::future<void> done = task.get_future();
    enqueue(std::move(task));
    done.get();
    if (!m_failure.empty())
        throw DatabaseError(m_failure);
    return m_setAside;
}

void Database::transact(std::function<void(Sql &)> job) {
    std::packaged_task<void(Sql *)> task([this, job = std::move(job)](Sql *sql) {
        if (!sql)
            throw DatabaseError(m_failure);
        sql->exec(u"BEGIN"_s);
        try {
            job(*sql);
            sql->exec(u"COMMIT"_s);
        } catch (...) {
            try {
                sql->exec(u"ROLLBACK"_s);
            } catch (const DatabaseError &) {
                // A full disk has already undone it.
            }
            throw;
        }
    });
    std::future<void> done = task.get_future();
    enqueue(std::move(task));
    done.get();
}

void Database::enqueue(std::packaged_task<void(Sql *)> task) {
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(task));
    }
    m_wake.notify_one();
}

std::unique_ptr<Sql> Database::opened(const QString &path) {
    try {
        return std::make_unique<Sql>(path);
    } catch (const DatabaseError &error) {
        if (error.kind() != DatabaseError::Kind::Damaged)
            throw;
        qCritical("The database is damaged and set aside: %s", error.what());
        m_setAside = setAsideWithLog(path);
        if (m_setAside.isEmpty())
            throw;
    }
    return std::make_unique<Sql>(path);
}

void Database::work(const QString &path) {
    std::unique_ptr<Sql> sql;
    try {
        sql = opened(path);
    } catch (const DatabaseError &error) {
        m_failure = error.what();
    }
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_ended || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        std::packaged_task<void(Sql *)> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job(sql.get());
        lock.lock();
    }
}

} // namespace kiv::sandbox
