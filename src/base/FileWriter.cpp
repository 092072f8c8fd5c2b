#include "base/FileWriter.h"

#include <QtConcurrentRun>

#include <utility>

namespace kiv {

FileWriter::FileWriter() {
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        // Who waited has settled it already.
        if (m_isWriting)
            settle();
    });
}

FileWriter::~FileWriter() {
    disconnect();
    finish();
}

void FileWriter::write(Writing writing) {
    m_next = std::move(writing);
    if (!m_isWriting)
        begin();
}

QString FileWriter::finish() {
    while (m_isWriting) {
        m_watcher.waitForFinished();
        settle();
    }
    return m_failure;
}

void FileWriter::giveUp() {
    m_next = nullptr;
    finish();
}

void FileWriter::begin() {
    m_isWriting = true;
    m_watcher.setFuture(QtConcurrent::run(std::exchange(m_next, nullptr)));
}

void FileWriter::settle() {
    m_isWriting = false;
    m_failure = m_watcher.result();
    const QString failure = m_failure;
    if (m_next)
        begin();
    Q_EMIT written(failure);
}

} // namespace kiv
