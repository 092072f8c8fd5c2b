#include "ui/canvas/MarkGroups.h"

#include <algorithm>
#include <numeric>

namespace kiv::ui {

void MarkGroups::setScene(const canvas::SceneOut &scene) {
    if (m_scene == scene)
        return;
    m_scene = scene;
    m_sizes.clear();
    for (const canvas::BriefCol &column : std::as_const(m_scene.groups))
        m_sizes.append(static_cast<int>(column.items.size()));
    for (const canvas::Lane &lane : std::as_const(m_scene.lanes))
        m_sizes.append(static_cast<int>(lane.tasks.size()));
    Q_EMIT sceneChanged();
}

int MarkGroups::first(int group) const {
    const auto end = m_sizes.cbegin() + std::clamp<qsizetype>(group, 0, m_sizes.size());
    return std::accumulate(m_sizes.cbegin(), end, 0);
}

int MarkGroups::groupOf(int mark) const {
    int group = 0;
    for (int end = 0; group + 1 < m_sizes.size(); ++group) {
        end += m_sizes.at(group);
        if (mark < end)
            break;
    }
    return group;
}

int MarkGroups::beside(int mark, int groups) const {
    const int from = groupOf(mark);
    const int step = groups < 0 ? -1 : 1;
    int to = from + groups;
    while (to >= 0 && to < m_sizes.size() && m_sizes.at(to) == 0)
        to += step;
    if (to < 0 || to >= m_sizes.size())
        return mark;
    return first(to) + std::min(mark - first(from), m_sizes.at(to) - 1);
}

} // namespace kiv::ui
