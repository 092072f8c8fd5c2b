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
class QSqlError;
class QSqlQuery;
QT_END_NAMESPACE

namespace kiv::sandbox {

/// A statement that failed or a database that cannot be opened.
class DatabaseError : public std::runtime_error {
public:
    /// What is the matter: what the file holds is no database of this server, it was written by a
    /// later one, the disk is full, or something else.
    enum class Kind { Damaged, Later, Full, Other };

    explicit DatabaseError(const std::string &what, Kind kind = Kind::Other)
        : std::runtime_error(what), m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
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
    /// Opens the file, making it where there is none. Throws DatabaseError.
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
    /// Qt's connection to the file, which has a name there.
    class Connection {
    public:
        explicit Connection(const QString &path);
        ~Connection();
        QSqlDatabase &operator*() { return *m_database; }

    private:
        std::unique_ptr<QSqlDatabase> m_database;
    };

    void checkContent();
    QSqlQuery &run(const QString &statement, const QVariantList &values);

    Connection m_database;
    std::unordered_map<QString, QSqlQuery> m_prepared;
};

/// The one SQLite file, driven by one thread: SQLite has one writer anyway, and a connection may
/// not leave its thread. Safe to call from every other thread. A file that is damaged is set aside
/// for a fresh one.
class Database {
public:
    /// The file is opened on the thread, not inside this call.
    explicit Database(QString path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Waits until the file is open; throws DatabaseError when it cannot be. The result is where a
    /// damaged one has gone, empty when there was none.
    QString open();

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
    void enqueue(std::packaged_task<void(Sql *)> task);
    void work(const QString &path);
    std::unique_ptr<Sql> opened(const QString &path);

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::packaged_task<void(Sql *)>> m_jobs;
    bool m_ended = false;
    QString m_setAside;    ///< of the thread, like the next
    std::string m_failure; ///< why the file cannot be opened
    std::thread m_thread;
};

} // namespace kiv::sandbox
