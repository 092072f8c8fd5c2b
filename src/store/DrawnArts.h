#pragma once

#include <QStringList>

namespace kiv::store {

/// The arts that the window has a scene for; the figures of any other are shown as a table.
inline QStringList drawnArts() {
    return {QStringLiteral("report"),   QStringLiteral("compare"),  QStringLiteral("decision"),
            QStringLiteral("agents"),   QStringLiteral("status"),   QStringLiteral("funnel"),
            QStringLiteral("unit"),     QStringLiteral("brief"),    QStringLiteral("retro"),
            QStringLiteral("costs"),    QStringLiteral("cashflow"), QStringLiteral("okr"),
            QStringLiteral("workload"), QStringLiteral("budget")};
}

} // namespace kiv::store
