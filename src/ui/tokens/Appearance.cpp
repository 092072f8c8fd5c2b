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

} // namespace kiv::ui
