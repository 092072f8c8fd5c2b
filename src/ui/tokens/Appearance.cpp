#include "ui/tokens/Appearance.h"

#include <QQmlEngine>

namespace kiv::ui {

Appearance::Appearance(QQmlEngine &engine) : QObject(&engine) {
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

Appearance *Appearance::create(QQmlEngine *engine, QJSEngine *) {
    return engine->findChild<Appearance *>(QString(), Qt::FindDirectChildrenOnly);
}

void Appearance::setDark(bool dark) {
    if (std::exchange(m_dark, dark) != dark)
        Q_EMIT darkChanged();
}

void Appearance::setReducedMotion(bool reduced) {
    if (std::exchange(m_reducedMotion, reduced) != reduced)
        Q_EMIT reducedMotionChanged();
}

void Appearance::setHighContrast(bool high) {
    if (std::exchange(m_highContrast, high) != high)
        Q_EMIT highContrastChanged();
}

void Appearance::setTextScale(double scale) {
    if (!qFuzzyCompare(std::exchange(m_textScale, scale), scale))
        Q_EMIT textScaleChanged();
}

} // namespace kiv::ui
