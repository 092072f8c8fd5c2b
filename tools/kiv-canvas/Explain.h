#pragma once

#include <QByteArray>
#include <QUrl>

namespace kiv::tools {

/// Says how one answer would be drawn: a line of JSON for a line of JSON, both without their line
/// ends. A line that is no request gives {"error": "..."}. `baseUrl` is the platform's address;
/// without one no link counts.
QByteArray explain(QByteArrayView request, const QUrl &baseUrl);

} // namespace kiv::tools
