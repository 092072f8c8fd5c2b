#pragma once

#include <QString>
#include <QVariant>

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>
#include <unordered_map>

QT_BEGIN_NAMESPACE
class QSqlDatabase;
class QSqlQuery;
QT_END_NAMESPACE

namespace kiv::sandbox {

/// A statement that failed or a database that cannot be opened.
class DatabaseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One row of a result; columns by position.
class Row {
public:
    explicit Row(QVariantList values) : m_values(std::move(values)) {}
    QString text(qsizetype column) const { return m_values.at(column).toString(); }
    qint64 whole(qsizetype column) const { return m_values.at(column).toLongLong(); }
    double number(qsizetype column) const { return m_values.at(column).toDouble(); }
    bool isNull(qsizetype column) const { return m_values.at(column).isNull(); }

private:
    QVariantList m_values;
};

/// Statements on the open database; an invalid QVariant among the values is NULL. Used on the
/// database's own thread only.
class Sql {
public:
    explicit Sql(const QString &path);
    ~Sql();
    Sql(const Sql &) = delete;
    Sql &operator=(const Sql &) = delete;

    /// Runs a statement; the result is the number of rows that it changed.
    int exec(const QString &statement, const QVariantList &values = {});
    /// Runs an INSERT; the result is the new row's id.
    qint64 insert(const QString &statement, const QVariantList &values);
    QList<Row> rows(const QString &statement, const QVariantList &values = {});
    std::optional<Row> row(const QString &statement, const QVariantList &values = {});

private:
    QSqlQuery &run(const QString &statement, const QVariantList &values);

    std::unique_ptr<QSqlDatabase> m_database;
    std::unordered_map<QString, QSqlQuery> m_prepared;
};

/// The one SQLite file, driven by one thread: SQLite has one writer anyway, and a connection may
/// not leave its thread. Safe to call from every other thread.
class Database {
public:
    /// The file is opened on the thread, not inside this call.
    explicit Database(QString path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Runs `job(Sql &)` as one transaction and waits for its result. What it throws undoes the
    /// transaction and is thrown here.
    template <typename Job>
    auto run(Job job) {
        using Result = std::invoke_result_t<Job, Sql &>;
        if constexpr (std::is_void_v<Result>) {
            transact(std::move(job));
        } else {
            std::optional<Result> result;
            transact([&](Sql &sql) { result.emplace(job(sql)); });
            return std::move(*result);
        }
    }

private:
    void transact(std::function<void(Sql &)> job);
    void work(const QString &path);

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::packaged_task<void(Sql *)>> m_jobs;
    bool m_ended = false;
    std::thread m_thread;
};

} // namespace kiv::sandbox
