#pragma once

#include "JsonText.h"

namespace kiv::tools {

/// Writes the markdown blocks of a text, each with its kind.
void writeBlocks(JsonText &json, QStringView text);

} // namespace kiv::tools
