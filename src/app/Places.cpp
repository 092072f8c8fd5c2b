#include "app/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

/// In a build tree and where it is installed alike.
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
            .sandboxProgram = besideProgram(u"kiv-sandbox"_s),
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

} // namespace kiv::app
