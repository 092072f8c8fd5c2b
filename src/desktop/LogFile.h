#pragma once

#include <QFile>
#include <QMutex>
#include <QStringList>

namespace kiv::desktop {

/// What went wrong, for those who have to find out why: everything that is said to the log of Qt,
/// without messages and credentials (see LogText). Two files of a bounded size, the one that is
/// written and the one before.
class LogFile {
public:
    /// A file holds no more than about `limit` bytes. One that cannot be written to is set aside;
    /// nothing is written where there can be no other.
    explicit LogFile(const QString &path, qint64 limit = 1'000'000);
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;
    ~LogFile();

    /// From now on what any thread says to the log of Qt is written here, and shown as before. One
    /// log at a time does so.
    void capture();
    /// A line with the time of day; from any thread.
    void write(QtMsgType type, const QString &line);
    /// The newest lines, the newest last.
    QStringList lastLines(qsizetype count) const;

private:
    bool open();
    void rotate();

    mutable QMutex m_mutex;
    QString m_path;
    QFile m_file;
    qint64 m_limit;
    bool m_captures = false;
};

} // namespace kiv::desktop
