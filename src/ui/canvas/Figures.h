#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

namespace kiv::ui {

/// How views write what they make of names and figures themselves.
class Figures : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// "42%" of a whole; empty where there is none.
    Q_INVOKABLE static QString share(double part, double whole);
    /// A figure that the program wrote, with the sign that figures have for minus.
    Q_INVOKABLE static QString minus(QString figure);
    /// The first letters of the first two words of a name.
    Q_INVOKABLE static QString initials(const QString &name);
    /// The words that are not empty.
    Q_INVOKABLE static QString joined(QStringList words, const QString &separator);
};

} // namespace kiv::ui
