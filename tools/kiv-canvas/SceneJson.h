#pragma once

#include "canvas/SceneOut.h"

#include <QJsonObject>

namespace kiv::tools {

/// Every field of a scene under its name; colours as their words, an absent value as null.
QJsonObject sceneJson(const canvas::SceneOut &scene);

} // namespace kiv::tools
