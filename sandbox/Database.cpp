#include "Database.h"

#include "Schema.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

[[noreturn]] void fail(const QSqlError &error, const QString &statement) {
    throw DatabaseError((error.text() + u" in: "_s + statement).toStdString());
}

} // namespace

Sql::Sql(const QString &path)
    : m_database(new QSqlDatabase(QSqlDatabase::addDatabase(u"QSQLITE"_s, u"workspace"_s))) {
    m_database->setDatabaseName(path);
    if (!m_database->open()) {
        fail(m_database->lastError(), path);
    }
    // One that was made when this was not yet seen to; what lies beside it takes after it.
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    exec(u"PRAGMA journal_mode = WAL"_s);
    exec(u"PRAGMA synchronous = NORMAL"_s);
    exec(u"PRAGMA foreign_keys = ON"_s);
    createSchema(*this);
}

Sql::~Sql() {
    m_prepared.clear();
    m_database->close();
    m_database.reset();
    QSqlDatabase::removeDatabase(u"workspace"_s);
}

QSqlQuery &Sql::run(const QString &statement, const QVariantList &values) {
    auto found = m_prepared.find(statement);
    if (found == m_prepared.end()) {
        QSqlQuery query(*m_database);
        query.setForwardOnly(true);
        if (!query.prepare(statement)) {
            fail(query.lastError(), statement);
        }
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
        fail(query.lastError(), statement);
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
        for (int column = 0; column < count; ++column) {
            columns.append(query.value(column));
        }
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

void Database::transact(std::function<void(Sql &)> job) {
    std::packaged_task<void(Sql *)> task([job = std::move(job)](Sql *sql) {
        if (!sql) {
            throw DatabaseError("The database cannot be opened.");
        }
        sql->exec(u"BEGIN"_s);
        try {
            job(*sql);
            sql->exec(u"COMMIT"_s);
        } catch (...) {
            sql->exec(u"ROLLBACK"_s);
            throw;
        }
    });
    std::future<void> done = task.get_future();
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(task));
    }
    m_wake.notify_one();
    done.get();
}

void Database::work(const QString &path) {
    std::unique_ptr<Sql> sql;
    try {
        sql = std::make_unique<Sql>(path);
    } catch (const DatabaseError &error) {
        qCritical("%s", error.what());
    }
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_ended || !m_jobs.empty(); });
        if (m_jobs.empty()) {
            return;
        }
        std::packaged_task<void(Sql *)> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job(sql.get());
        lock.lock();
    }
}

} // namespace kiv::sandbox
