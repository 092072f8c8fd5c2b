#include "desktop/Diagnostics.h"

#include "base/AppVersion.h"
#include "desktop/LogText.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

namespace kiv::desktop {

using namespace Qt::StringLiterals;

namespace {

QString screens() {
    QStringList found;
    for (const QScreen *screen : QGuiApplication::screens())
        found.append(u"%1 x %2 at %3"_s.arg(screen->size().width())
                         .arg(screen->size().height())
                         .arg(screen->devicePixelRatio()));
    return found.join(u", "_s);
}

} // namespace

QString diagnostics(const QList<std::pair<QString, QString>> &facts, const QStringList &logLines) {
    QList<std::pair<QString, QString>> lines{
        {u"KIV"_s, AppVersion::running().display()},
        {u"Qt"_s, QString::fromLatin1(qVersion())},
        {u"System"_s, u"%1, %2, %3"_s.arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
                                          QSysInfo::currentCpuArchitecture())},
        {u"Session"_s, qEnvironmentVariable("XDG_CURRENT_DESKTOP", u"unknown"_s) + u", "_s +
                           QGuiApplication::platformName()},
        {u"Screens"_s, screens()}};
    lines += facts;
    QString text;
    for (const auto &[name, value] : lines)
        text += name + u": "_s + LogText::redacted(value) + u'\n';
    text += u"\nLog:\n"_s;
    for (const QString &line : logLines)
        text += LogText::redacted(line) + u'\n';
    return text;
}

} // namespace kiv::desktop
