#pragma once

#include "canvas/SceneFigures.h"

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

namespace kiv::ui {

/// How views write the figures that they work out themselves.
class Figures : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// "42%" of a whole; empty where there is none.
    Q_INVOKABLE static QString share(double part, double whole) {
        return whole > 0 && part >= 0 ? canvas::shareText(part, whole) : QString();
    }
    /// A figure that the program wrote, with the sign that figures have for minus.
    Q_INVOKABLE static QString minus(QString figure) { return figure.replace(u'-', QChar(0x2212)); }
    /// The words that are not empty.
    Q_INVOKABLE static QString joined(QStringList words, const QString &separator) {
        words.removeAll(QString());
        return words.join(separator);
    }
};

} // namespace kiv::ui
