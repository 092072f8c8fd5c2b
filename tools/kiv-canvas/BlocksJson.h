#pragma once

#include <QJsonArray>
#include <QStringView>

namespace kiv::tools {

/// The markdown blocks of a text, each with its kind.
QJsonArray blocksJson(QStringView text);

} // namespace kiv::tools
