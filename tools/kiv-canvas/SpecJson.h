#pragma once

#include "JsonText.h"
#include "canvas/ViewSpec.h"

namespace kiv::tools {

/// Writes every field of a view under its name, an absent value as null.
void writeSpec(JsonText &json, const canvas::ViewSpec &spec);

} // namespace kiv::tools
