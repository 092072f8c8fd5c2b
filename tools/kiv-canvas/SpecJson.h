#pragma once

#include "canvas/ViewSpec.h"

#include <QJsonObject>

namespace kiv::tools {

/// Every field of a view under its name, an absent value as null.
QJsonObject specJson(const canvas::ViewSpec &spec);

} // namespace kiv::tools
