#include "canvas/CanvasFollowup.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostFollowups = 3;

QStringList questionsOf(const SceneOut &scene) {
    QStringList questions;
    for (const BgRow &line : scene.bgRows) {
        if (!line.deltaGood)
            questions.append(u"Why is %1 over plan?"_s.arg(line.name));
    }
    for (const Stream &stream : scene.streams) {
        if (!stream.good)
            questions.append(u"What is holding %1 back?"_s.arg(stream.name));
    }
    for (const WlRow &person : scene.wlRows) {
        if (person.color == SceneColor::Red)
            questions.append(u"Who can take work from %1?"_s.arg(person.name));
    }
    for (const OkObj &objective : scene.okObjs) {
        if (objective.scoreColor == SceneColor::Red)
            questions.append(u"What would move %1?"_s.arg(objective.name));
    }
    if (scene.tie)
        questions.append(u"What would break the tie?"_s);
    return questions;
}

/// The name of the stage that fewest of the stage before reach.
QString widestLoss(const QList<FnStage> &stages) {
    QString name;
    double least = 1;
    for (qsizetype i = 1; i < stages.size(); ++i) {
        const double before = stages.at(i - 1).w;
        const double share = before > 0 ? stages.at(i).w / before : 1;
        if (share < least) {
            least = share;
            name = stages.at(i).name;
        }
    }
    return name;
}

} // namespace

QList<CanvasFollowup> followupsOf(const SceneOut &scene) {
    QStringList questions = questionsOf(scene);
    if (const QString stage = widestLoss(scene.fnStages); !stage.isEmpty())
        questions.append(u"Why do so few reach %1?"_s.arg(stage));
    const auto largest =
        std::max_element(scene.coRows.begin(), scene.coRows.end(),
                         [](const CoRow &a, const CoRow &b) { return a.pct < b.pct; });
    if (largest != scene.coRows.end() && !largest->name.isEmpty())
        questions.append(u"Tell me about %1"_s.arg(largest->name));
    QList<CanvasFollowup> followups;
    for (const QString &question : questions.mid(0, mostFollowups))
        followups.append({question, question});
    return followups;
}

} // namespace kiv::canvas
