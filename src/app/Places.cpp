#include "app/Places.h"

#include "base/PrivateFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

/// In a build tree and beside an installed program alike.
QString findSandbox() {
    const QDir beside(QCoreApplication::applicationDirPath());
    for (const QString &place : {u"kiv-sandbox"_s, u"../libexec/kiv/kiv-sandbox"_s}) {
        const QString path = beside.absoluteFilePath(place);
        if (QFileInfo(path).isExecutable())
            return QDir::cleanPath(path);
    }
    return {};
}

QString besideProgram(const QString &path) {
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(path));
}

Places in(const QString &config, const QString &data, const QString &state) {
    return {.settingsFile = config + u"/kiv.conf"_s,
            .cookieFile = data + u"/cookies"_s,
            .draftsFile = data + u"/drafts"_s,
            .workspaceDir = data + u"/workspace"_s,
            .stateFile = state + u"/window.conf"_s,
            .logFile = state + u"/kiv.log"_s,
            .lockFile = state + u"/lock"_s,
            .sandboxProgram = findSandbox(),
            .webPlugin = besideProgram(u"../lib/kiv/kiv-web"_s),
            .micPlugin = besideProgram(u"../lib/kiv/kiv-microphone"_s)};
}

QString folder(QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location) + u"/kiv"_s;
}

/// Qt 6.4 does not know the folder of states.
QString stateFolder() {
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base =
        QDir::isAbsolutePath(named) ? named : QDir::homePath() + u"/.local/state"_s;
    return base + u"/kiv"_s;
}

void move(const QString &from, const QString &to) {
    if (!QFileInfo::exists(from) || QFileInfo::exists(to))
        return;
    PrivateFile::makeFolderOf(to);
    if (!QFile::rename(from, to))
        qWarning("%s cannot be moved to its new place", qUtf8Printable(from));
}

} // namespace

Places Places::standard() {
    return in(folder(QStandardPaths::GenericConfigLocation),
              folder(QStandardPaths::GenericDataLocation), stateFolder());
}

Places Places::below(const QString &folder) {
    const QDir dir(folder);
    Places places = in(dir.absoluteFilePath(u"config"_s), dir.absoluteFilePath(u"data"_s),
                       dir.absoluteFilePath(u"state"_s));
    places.profile = dir.absolutePath();
    return places;
}

void Places::adoptEarlier() const {
    if (profile.isEmpty())
        return;
    const QDir dir(profile);
    for (const QString &now : {settingsFile, cookieFile, draftsFile, workspaceDir})
        move(dir.filePath(QFileInfo(now).fileName()), now);
}

} // namespace kiv::app
