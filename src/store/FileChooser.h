#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace kiv::store {

/// Lets the person pick files: the platform's dialog, or what a test puts in its place.
class FileChooser {
public:
    using Chosen = std::function<void(const QList<QUrl> &files)>;

    FileChooser() = default;
    FileChooser(const FileChooser &) = delete;
    FileChooser &operator=(const FileChooser &) = delete;
    virtual ~FileChooser() = default;

    /// Opens the chooser for several files of these extensions. `chosen` is called once, with
    /// nothing when the person changes their mind.
    virtual void choose(const QString &title, const QStringList &extensions, Chosen chosen) = 0;
};

} // namespace kiv::store
