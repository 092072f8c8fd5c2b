#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace kiv::test {

/// A way in which a file is found damaged.
struct Damage {
    QByteArray name;
    std::function<void(const QString &path)> strike; ///< the file has to be there
};

/// Emptied, cut short, binary, far too large, a folder in its place, not to be read by this user.
/// The last only where this user is not the one who may read everything.
QList<Damage> damages();

QByteArray contentOf(const QString &path);
void putContent(const QString &path, const QByteArray &content);

/// To be called first in main. Makes a disk of its own of so many kilobytes where the system allows
/// it, and goes on without the rights of an administrator, who is never refused anything.
void becomeOrdinaryUser(int diskKilobytes = 0);
/// How long a file may take to be written, in milliseconds: others keep the disk busy.
constexpr int diskPatience = 30'000;

/// The folder of that disk; empty where there can be none.
QString smallDisk();
/// Takes all room of the disk, and gives it back.
void fillDisk();
void clearDisk();

} // namespace kiv::test
