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
    /// The name of the locale that the days are shown in.
    Q_PROPERTY(QString language MEMBER m_language NOTIFY languageChanged)
    /// From Monday on, as people read them.
    Q_PROPERTY(QStringList labels READ labels NOTIFY languageChanged)
    Q_PROPERTY(QList<bool> chosen READ chosen NOTIFY textChanged)
public:
    using QObject::QObject;

    QStringList labels() const;
    QList<bool> chosen() const;
    /// The text with one day added or taken away.
    Q_INVOKABLE QString toggled(int day) const;

Q_SIGNALS:
    void textChanged();
    void languageChanged();

private:
    QString m_text;
    QString m_language;
};

} // namespace kiv::ui
