#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace kiv {

/// Writes a file on another thread, so that a slow disk holds nobody up: one writing after the
/// other, and of those that come meanwhile only the newest.
class FileWriter : public QObject {
    Q_OBJECT
public:
    /// Exchanges the whole file; nothing, or why that failed. It may hold values only.
    using Writing = std::function<QString()>;

    FileWriter();
    /// All is written when this is gone; nobody is told.
    ~FileWriter() override;

    void write(Writing writing);
    /// Waits until all is written: nothing, or why the last one failed.
    QString finish();
    /// What has not begun is never written, and nothing is being written when this returns.
    void giveUp();

Q_SIGNALS:
    /// A writing has ended, or why it failed.
    void written(const QString &failure);

private:
    void begin();
    void settle();

    QFutureWatcher<QString> m_watcher;
    Writing m_next;
    bool m_isWriting = false;
    QString m_failure; ///< of the last writing
};

} // namespace kiv
