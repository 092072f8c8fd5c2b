#include "ui/canvas/SceneLayout.h"

#include <utility>

namespace kiv::ui {

void SceneLayout::setScene(const canvas::SceneOut &scene) {
    if (m_scene == scene)
        return;
    m_scene = scene;
    Q_EMIT sceneChanged();
    measure();
    layOut();
}

void SceneLayout::setWidth(double width) {
    if (std::exchange(m_width, width) == width)
        return;
    Q_EMIT widthChanged();
    layOut();
}

void SceneLayout::setHeight(double height) {
    if (std::exchange(m_height, height) == height)
        return;
    Q_EMIT heightChanged();
    layOut();
}

void SceneLayout::setFont(const QFont &font) {
    if (m_font == font)
        return;
    m_font = font;
    Q_EMIT fontChanged();
    measure();
    layOut();
}

} // namespace kiv::ui
