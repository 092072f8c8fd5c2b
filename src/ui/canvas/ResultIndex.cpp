#include "ui/canvas/ResultIndex.h"

#include <algorithm>

namespace kiv::ui {

void ResultIndex::setObjectives(const QList<canvas::OkObj> &objectives) {
    if (m_objectives == objectives)
        return;
    m_objectives = objectives;
    m_results.clear();
    m_starts.clear();
    for (const canvas::OkObj &objective : objectives) {
        m_starts.append(count());
        m_results += objective.krs;
    }
    Q_EMIT changed();
}

int ResultIndex::objectiveOf(int result) const {
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), result);
    return static_cast<int>(std::distance(m_starts.begin(), after)) - 1;
}

} // namespace kiv::ui
