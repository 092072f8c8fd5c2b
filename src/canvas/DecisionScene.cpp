#include "base/Regex.h"
#include "canvas/CanvasNum.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr double highestScore = 1e6;
constexpr qsizetype fewestCriteria = 2;

struct Score {
    double value = 0;
    double most = 0; ///< what it is out of, at least the score itself
};

struct Scores {
    QString name;
    double a = 0;
    double b = 0;
    double most = 0;
};

/// A score as written: "7", "7.5", "7/10". Signs and units make it something else.
std::optional<Score> scoreOf(const QString &cell) {
    static const Regex score(u"^\\s*(\\d{1,6}(?:[.,]\\d{1,3})?)\\s*(?:/\\s*(\\d{1,6})\\s*)?$");
    const auto found = cell.size() > 32 ? std::nullopt : score.find(cell);
    const auto value = found ? CanvasNum::numFromText(found->captured(1)) : std::nullopt;
    if (!value || *value > highestScore)
        return std::nullopt;
    return Score{*value, std::max(*value, found->captured(2).toDouble())};
}

std::optional<Scores> scoresOf(const QStringList &row) {
    if (row.size() < 3)
        return std::nullopt;
    const auto a = scoreOf(row.at(1));
    const auto b = scoreOf(row.at(2));
    if (!a || !b)
        return std::nullopt;
    return Scores{row.at(0), a->value, b->value, std::max(a->most, b->most)};
}

/// Figures in a fourth column are a third option, or weights: neither is a choice of two.
bool hasThirdOption(const ViewSpec &spec) {
    return std::any_of(spec.rows.begin(), spec.rows.end(), [](const QStringList &row) {
        return row.size() > 3 && CanvasNum::parse(row.at(3));
    });
}

/// The names of the two options; the column of criteria may or may not be named.
std::optional<std::pair<QString, QString>> optionsOf(const QStringList &columns) {
    const qsizetype first = columns.size() == 2 ? 0 : 1;
    const QString a = columns.value(first).trimmed();
    const QString b = columns.value(first + 1).trimmed();
    return a.isEmpty() || b.isEmpty() ? std::nullopt : std::optional(std::pair(a, b));
}

void recommend(SceneOut &scene, const QString &a, const QString &b, const Scores &total) {
    scene.totalA = CanvasNum::out(CanvasNum::decimal(total.a));
    scene.totalB = CanvasNum::out(CanvasNum::decimal(total.b));
    scene.tie = total.a == total.b;
    if (scene.tie) {
        scene.recTitle = u"Tie."_s;
        scene.recText = u"%1 and %2 both score %3."_s.arg(a, b, scene.totalA);
        return;
    }
    const bool first = total.a > total.b;
    scene.better = first ? Option::A : Option::B;
    scene.recTitle = first ? a : b;
    scene.recText =
        u"%1 to %2"_s.arg(first ? scene.totalA : scene.totalB, first ? scene.totalB : scene.totalA);
}

} // namespace

std::optional<SceneOut> buildDecision(const ViewSpec &spec) {
    const auto options = optionsOf(spec.columns);
    if (!options || hasThirdOption(spec))
        return std::nullopt;
    SceneOut scene;
    QList<double> a;
    QList<double> b;
    std::optional<Scores> stated;
    bool allCount = true;
    for (const QStringList &row : spec.rows) {
        const auto scores = scoresOf(row);
        if (!scores) {
            // Amounts weigh in the decision too, but not as scores: nobody wins on the rest.
            allCount =
                allCount && !(CanvasNum::parse(row.value(1)) && CanvasNum::parse(row.value(2)));
            continue;
        }
        if (isTotalName(scores->name)) {
            stated = scores;
            continue;
        }
        a.append(scores->a);
        b.append(scores->b);
        scene.criteria.append({scores->name, static_cast<int>(std::round(scores->a)),
                               static_cast<int>(std::round(scores->b))});
        scene.scoreMost = std::max(scene.scoreMost, static_cast<int>(std::round(scores->most)));
    }
    if (scene.criteria.size() < fewestCriteria)
        return std::nullopt;
    scene.optionA = options->first;
    scene.optionB = options->second;
    scene.sub = scene.optionA + u" vs "_s + scene.optionB;
    if (allCount)
        recommend(scene, options->first, options->second,
                  stated.value_or(Scores{{}, sumOf(a), sumOf(b)}));
    scene.countLine = scene.tie ? u"from the answer · even"_s
                                : QString::number(scene.criteria.size()) + u" · from the answer"_s;
    return scene;
}

} // namespace kiv::canvas
