#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Days of the week as they are stored: their short names in English with commas between them.
class WeekDays : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged REQUIRED)
    /// From Monday on.
    Q_PROPERTY(QStringList names READ names CONSTANT)
    Q_PROPERTY(QList<bool> chosen READ chosen NOTIFY textChanged)
public:
    using QObject::QObject;

    QStringList names() const;
    QList<bool> chosen() const;
    /// The text with one day added or taken away.
    Q_INVOKABLE QString toggled(int day) const;

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
};

} // namespace kiv::ui
