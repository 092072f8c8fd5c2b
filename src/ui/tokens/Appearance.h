#pragma once

#include "ui/tokens/Typefaces.h"

#include <QObject>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace kiv::ui {

/// How the system and the person want the window to look. One for each engine; what decides it sits
/// outside the views.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(
        bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(QString codeFamily READ codeFamily CONSTANT)
public:
    /// Belongs to `engine`, which finds it by itself.
    explicit Appearance(QQmlEngine &engine);
    static Appearance *create(QQmlEngine *engine, QJSEngine *scripts);

    bool dark() const { return m_dark; }
    void setDark(bool dark);
    bool reducedMotion() const { return m_reducedMotion; }
    void setReducedMotion(bool reduced);

    QString codeFamily() const { return m_codeFamily; }

Q_SIGNALS:
    void darkChanged();
    void reducedMotionChanged();

private:
    bool m_dark = false;
    bool m_reducedMotion = false;
    QString m_codeFamily = ui::codeFamily();
};

} // namespace kiv::ui
