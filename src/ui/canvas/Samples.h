#pragma once

#include "canvas/SceneOut.h"

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Made-up answers, one for each art, read and drawn like any other: what somebody sees who is not
/// signed in.
class Samples : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList arts READ arts CONSTANT)
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(kiv::canvas::SceneOut scene READ scene NOTIFY currentChanged)
public:
    explicit Samples(QObject *parent = nullptr);

    /// In the order in which they are shown.
    static const QStringList &arts();
    int current() const { return m_current; }
    void setCurrent(int current);
    canvas::SceneOut scene() const { return m_scene; }

    /// The art as a word, such as "Cash flow".
    Q_INVOKABLE static QString word(const QString &art);

Q_SIGNALS:
    void currentChanged();

private:
    int m_current = 0;
    canvas::SceneOut m_scene;
};

} // namespace kiv::ui
