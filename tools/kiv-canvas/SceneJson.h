#pragma once

#include "JsonText.h"
#include "canvas/SceneOut.h"

namespace kiv::tools {

/// Writes every field of a scene under its name; colours as their words, an absent value as null.
void writeScene(JsonText &json, const canvas::SceneOut &scene);

} // namespace kiv::tools
