#pragma once

#include <QList>
#include <QString>

namespace kiv::store {

/// An agent as the rail shows it.
struct Agent {
    QString id;
    QString name;
    QString role;
    QString colorHex; ///< #rrggbb
    friend bool operator==(const Agent &, const Agent &) = default;
};

/// A project as the rail shows it; its id is the project's slug.
struct Project {
    QString id;
    QString name;
    QString meta; ///< one line below the name, such as "3 agents · active"
    QString colorHex;
    QList<Agent> agents;
    friend bool operator==(const Project &, const Project &) = default;
};

/// The colour of the entry at `position` of the rail, repeating every six.
QString railColor(qsizetype position);

} // namespace kiv::store
