#pragma once

#include <QMetaType>
#include <QString>
#include <QUrl>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::canvas {

/// A page of the platform that the canvas can open.
struct SurfaceLink {
    Q_GADGET
    QML_VALUE_TYPE(surfaceLink)
    Q_PROPERTY(QUrl url MEMBER url)
    Q_PROPERTY(QString title MEMBER title)
public:
    QUrl url; ///< absolute, on the platform's own host
    QString title;
    friend bool operator==(const SurfaceLink &, const SurfaceLink &) = default;
};

namespace SurfaceMatcher {

/// The first link of a text that leads to such a page; `baseUrl` is the platform's own address.
std::optional<SurfaceLink> match(QStringView text, const QUrl &baseUrl);

/// The page that a link leads to, which may be a path.
std::optional<SurfaceLink> page(const QString &link, const QUrl &baseUrl);

QString title(const QUrl &url);

} // namespace SurfaceMatcher

} // namespace kiv::canvas
