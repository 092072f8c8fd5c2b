#pragma once

#include "net/Multipart.h"

#include <QCoreApplication>
#include <QUrl>

#include <functional>
#include <optional>

namespace kiv::store {

/// A file on its way to the server, or why it cannot go there.
class PickedFile {
    Q_DECLARE_TR_FUNCTIONS(PickedFile)
public:
    /// What the server takes of one file.
    static constexpr qint64 largest = 10 * 1024 * 1024;

    /// The bytes of a file, or nothing when they cannot be had. Called on another thread, and again
    /// when the upload is tried again.
    using Content = std::function<std::optional<QByteArray>()>;

    PickedFile() = default;
    PickedFile(QString name, Content content)
        : m_name(std::move(name)), m_content(std::move(content)) {}
    /// What `url` leads to on this computer: looked at, not yet read.
    static PickedFile at(const QUrl &url);

    const QString &name() const { return m_name; }
    qint64 size() const { return m_size; } ///< in bytes; 0 while it is not known
    /// Why the file cannot be attached, for the person; empty when nothing speaks against it.
    const QString &refusal() const { return m_refusal; }

    /// Reads the file, on any thread: the part of an upload, or a file with a refusal.
    struct Read;
    Read read() const;

private:
    static PickedFile refused(QString name, QString why);

    QString m_name;
    Content m_content;
    qint64 m_size = 0;
    QString m_refusal;
};

struct PickedFile::Read {
    net::MultipartFile part;
    QString refusal;
};

} // namespace kiv::store
