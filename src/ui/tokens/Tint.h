#pragma once

#include <QColor>
#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Colours that go with any base colour, such as the one a server gave to a project.
class Tint : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// The colour of a letter on `fill`: white, or ink where white would not stand out.
    Q_INVOKABLE static QColor onFill(const QColor &fill);
    /// A quiet ground in the hue of `base`.
    Q_INVOKABLE static QColor ground(const QColor &base, bool dark);
    /// Words in the hue of `base` on its ground, at a contrast of 4.5 or better.
    Q_INVOKABLE static QColor text(const QColor &base, bool dark);
};

} // namespace kiv::ui
