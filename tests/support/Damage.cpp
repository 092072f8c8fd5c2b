#include "support/Damage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kiv::test {

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;
QString disk;

QString fillerPath() {
    return disk + u"/filler"_s;
}

/// A name space of our own for what is mounted; whoever is no administrator becomes one in a user
/// name space first.
bool ownMounts() {
    if (::geteuid() == 0)
        return ::unshare(CLONE_NEWNS) == 0;
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray group = QByteArray::number(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    putContent(u"/proc/self/setgroups"_s, "deny");
    putContent(u"/proc/self/uid_map"_s, user + ' ' + user + " 1");
    putContent(u"/proc/self/gid_map"_s, group + ' ' + group + " 1");
    return true;
}

void mountDisk(int kilobytes) {
    const QString folder = QDir::tempPath() + u"/kiv-disk-"_s + QString::number(::getpid());
    if (!ownMounts() || !QDir().mkpath(folder))
        return;
    const QByteArray options = "mode=1777,size=" + QByteArray::number(kilobytes) + 'k';
    const bool isMounted =
        ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        ::mount("tmpfs", QFile::encodeName(folder), "tmpfs", 0, options.constData()) == 0;
    if (isMounted)
        disk = folder;
}

void dropRights() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
    ::syscall(SYS_capset, &header, none);
}

} // namespace

QList<Damage> damages() {
    QList<Damage> all{
        {"emptied", [](const QString &path) { putContent(path, {}); }},
        {"cut short",
         [](const QString &path) {
             const QByteArray whole = contentOf(path);
             putContent(path, whole.first(whole.size() / 2));
         }},
        {"binary",
         [](const QString &path) {
             QByteArray bytes;
             for (int i = 0; i < 5000; ++i)
                 bytes.append(static_cast<char>(i * 37 % 251));
             putContent(path, bytes);
         }},
        {"megabytes long",
         [](const QString &path) { putContent(path, QByteArray(6 * 1024 * 1024, '[')); }},
        {"a folder", [](const QString &path) {
             QFile::remove(path);
             QDir().mkpath(path + u"/inside"_s);
         }}};
    if (::geteuid() != 0)
        all.append({"not to be read", [](const QString &path) {
                        QFile::setPermissions(path, QFile::Permissions());
                    }});
    return all;
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void putContent(const QString &path, const QByteArray &content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(content) != content.size())
        qWarning("%s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
}

void becomeOrdinaryUser(int diskKilobytes) {
    const bool isAdministrator = ::geteuid() == 0;
    if (diskKilobytes > 0)
        mountDisk(diskKilobytes);
    if (isAdministrator) {
        if (::setgid(nobody) != 0 || ::setuid(nobody) != 0)
            qWarning("The rights of the administrator stay");
        ::prctl(PR_SET_DUMPABLE, 1); // for the sanitizer that looks for leaks
        qputenv("HOME", QFile::encodeName(QDir::tempPath()));
    } else if (!disk.isEmpty()) {
        dropRights();
    }
}

QString smallDisk() {
    return disk;
}

void fillDisk() {
    QFile filler(fillerPath());
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return;
    for (qsizetype size = 64 * 1024; size > 0;) {
        if (filler.write(QByteArray(size, 'x')) < size)
            size /= 2;
    }
}

void clearDisk() {
    QFile::remove(fillerPath());
}

} // namespace kiv::test
