#pragma once

#include "FuzzText.h"

#include "base/PrivateFile.h"

#include <QFile>
#include <QTemporaryDir>

/// A file that holds the input of a fuzzer, for what reads files by name. What stands beside it
/// goes with the program.
class FuzzFile {
public:
    FuzzFile(const uint8_t *data, std::size_t size) {
        QFile file(path());
        mustHold(file.open(QIODevice::WriteOnly));
        file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    }
    ~FuzzFile() {
        QFile::remove(path());
        kiv::PrivateFile::removeSetAside(path());
    }
    FuzzFile(const FuzzFile &) = delete;
    FuzzFile &operator=(const FuzzFile &) = delete;

    static QString path() { return folder().filePath(QStringLiteral("input")); }

private:
    /// In memory where the system has such a place.
    static const QTemporaryDir &folder() {
        static const QTemporaryDir made(QStringLiteral("/dev/shm/kiv-fuzz-XXXXXX"));
        static const QTemporaryDir other;
        return made.isValid() ? made : other;
    }
};

/// Keeps what a reader says of a damaged file off the terminal.
inline void beSilent() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}
