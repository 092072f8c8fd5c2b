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
    Q_PROPERTY(bool highContrast READ highContrast WRITE setHighContrast NOTIFY highContrastChanged)
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged)
    Q_PROPERTY(QString codeFamily READ codeFamily CONSTANT)
public:
    /// Belongs to `engine`, which finds it by itself.
    explicit Appearance(QQmlEngine &engine);
    static Appearance *create(QQmlEngine *engine, QJSEngine *scripts);

    bool dark() const { return m_dark; }
    void setDark(bool dark);
    bool reducedMotion() const { return m_reducedMotion; }
    void setReducedMotion(bool reduced);

    bool highContrast() const { return m_highContrast; }
    void setHighContrast(bool high);
    /// What the size of text is multiplied by.
    double textScale() const { return m_textScale; }
    void setTextScale(double scale);

    QString codeFamily() const { return ui::codeFamily(); }

Q_SIGNALS:
    void darkChanged();
    void reducedMotionChanged();
    void highContrastChanged();
    void textScaleChanged();

private:
    bool m_dark = false;
    bool m_reducedMotion = false;
    bool m_highContrast = false;
    double m_textScale = 1;
};

} // namespace kiv::ui
