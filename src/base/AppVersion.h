#pragma once

#include <QString>
#include <QStringView>

namespace kiv {

/// Which release of the program this is.
struct AppVersion {
    /// "dev" for a build that is no release.
    QString shortVersion;
    QString build;

    /// The version of the running program.
    static AppVersion running();
    /// As packaging gives them; an empty version is a development build, an empty build "0".
    static AppVersion of(const QString &shortVersion, const QString &build);

    bool isDevelopment() const;
    /// For people: "1.4.2 (57)", or "dev".
    QString display() const;

    /// Whether version text `a` is strictly newer than `b`, number by number: 1.10 is newer than
    /// 1.9, and 1.2 is the same as 1.2.0.
    static bool isNewer(QStringView a, QStringView b);
};

} // namespace kiv
