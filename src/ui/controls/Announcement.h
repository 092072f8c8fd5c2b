#pragma once

#include <QQuickItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Tells a screen reader something that happened: an alert without anything to see, which comes
/// anew with every word of news. Its accessible name is what it says.
class Announcement : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// What is told; empty when there is nothing.
    Q_PROPERTY(QString words READ words WRITE setWords NOTIFY wordsChanged)
public:
    explicit Announcement(QQuickItem *parent = nullptr);

    QString words() const { return m_words; }
    /// Tells them when they are others than before.
    void setWords(const QString &words);
    /// Tells them also when they were told before.
    Q_INVOKABLE void say(const QString &words);

Q_SIGNALS:
    void wordsChanged();

protected:
    void componentComplete() override;

private:
    void alert();

    QString m_words;
};

} // namespace kiv::ui
