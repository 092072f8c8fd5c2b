#include "app/Places.h"

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

QString folder(QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location) + u"/kiv"_s;
}

} // namespace

Places Places::standard() {
    return {.settingsFile = folder(QStandardPaths::GenericConfigLocation) + u"/kiv.conf"_s,
            .cookieFile = folder(QStandardPaths::GenericDataLocation) + u"/cookies"_s,
            .draftsFile = folder(QStandardPaths::GenericDataLocation) + u"/drafts"_s,
            .workspaceDir = folder(QStandardPaths::GenericDataLocation) + u"/workspace"_s,
            .sandboxProgram = findSandbox(),
            .webPlugin = besideProgram(u"../lib/kiv/kiv-web"_s),
            .micPlugin = besideProgram(u"../lib/kiv/kiv-microphone"_s)};
}

Places Places::below(const QString &profile) {
    const QDir dir(profile);
    return {.settingsFile = dir.absoluteFilePath(u"kiv.conf"_s),
            .cookieFile = dir.absoluteFilePath(u"cookies"_s),
            .draftsFile = dir.absoluteFilePath(u"drafts"_s),
            .workspaceDir = dir.absoluteFilePath(u"workspace"_s),
            .sandboxProgram = findSandbox(),
            .webPlugin = besideProgram(u"../lib/kiv/kiv-web"_s),
            .micPlugin = besideProgram(u"../lib/kiv/kiv-microphone"_s)};
}

} // namespace kiv::app
