#include "base/AppVersion.h"

#include "base/Version.h"

#include <algorithm>

namespace kiv {

using namespace Qt::StringLiterals;

namespace {

const QString development = u"dev"_s;

/// 0 for a component that is missing or no number.
qlonglong component(const QList<QStringView> &components, qsizetype index) {
    return index < components.size() ? components.at(index).toLongLong() : 0;
}

} // namespace

AppVersion AppVersion::running() {
    return of(QStringLiteral(KIV_VERSION), QStringLiteral(KIV_BUILD));
}

AppVersion AppVersion::of(const QString &shortVersion, const QString &build) {
    return {.shortVersion = shortVersion.isEmpty() ? development : shortVersion,
            .build = build.isEmpty() ? u"0"_s : build};
}

bool AppVersion::isDevelopment() const {
    return shortVersion == development;
}

QString AppVersion::display() const {
    return isDevelopment() ? development : u"%1 (%2)"_s.arg(shortVersion, build);
}

bool AppVersion::isNewer(QStringView a, QStringView b) {
    const QList<QStringView> mine = a.split(u'.');
    const QList<QStringView> other = b.split(u'.');
    for (qsizetype i = 0; i < std::max(mine.size(), other.size()); ++i) {
        if (const auto left = component(mine, i), right = component(other, i); left != right)
            return left > right;
    }
    return false;
}

} // namespace kiv
