#include "store/SkeletonShapes.h"

#include <QSet>

namespace kiv::store {

using namespace Qt::StringLiterals;

SkeletonShape skeletonShapeFor(const std::optional<QString> &intent) {
    static const QSet<QString> boards{u"retro"_s, u"brief"_s, u"week"_s, u"hiring"_s};
    static const QSet<QString> plots{u"cashflow"_s, u"funnel"_s, u"pulse"_s, u"heatmap"_s};
    static const QSet<QString> cards{u"report"_s, u"unit"_s};
    if (!intent || cards.contains(*intent))
        return SkeletonShape::Cards;
    if (boards.contains(*intent))
        return SkeletonShape::Board;
    return plots.contains(*intent) ? SkeletonShape::Plot : SkeletonShape::Rows;
}

} // namespace kiv::store
