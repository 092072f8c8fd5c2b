#pragma once

#include <QStringList>

namespace kiv::store {

/// The arts that the window has a scene for; the figures of any other are shown as a table.
inline QStringList drawnArts() {
    return {
        QStringLiteral("report"), QStringLiteral("compare"), QStringLiteral("status"),
        QStringLiteral("costs"),  QStringLiteral("okr"),     QStringLiteral("workload"),
        QStringLiteral("budget"),
    };
}

} // namespace kiv::store
