#include "ui/SceneAnswers.h"

#include "canvas/AnswerBlock.h"
#include "canvas/SceneAdapter.h"
#include "ui/AnswerText.h"
#include "ui/Workspace.h"

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

QList<SceneAnswer> costs() {
    const auto answer = [](const QString &name, const QString &title, const QJsonObject &data) {
        return SceneAnswer{u"costs-"_s + name, u"costs"_s,
                           block(u"bar"_s, u"costs"_s, title, data)};
    };
    return {
        answer(u"plain"_s, u"Where November spend goes"_s,
               points({point(u"Agent time"_s, 24860, u"Five projects"_s),
                       point(u"Hosting"_s, 17300, u"Glasshouse and Orchard"_s),
                       point(u"Contract design"_s, 11250, u"Paper Lantern"_s),
                       point(u"Data licences"_s, 7940, u"Two sources"_s),
                       point(u"Support desk"_s, 5240, u"Blue Kettle"_s),
                       point(u"Other"_s, 1765, u"Under €1,000 each"_s)},
                      u"€"_s)),
        answer(u"one"_s, u"One cost"_s, points({point(u"Hosting"_s, 17300)}, u"€"_s)),
        answer(
            u"many"_s, u"Every supplier of the year"_s,
            points(times(many,
                         [](int i) { return point(u"Supplier %1"_s.arg(i + 1), 90000 / (i + 1)); }),
                   u"€"_s)),
        answer(u"long"_s, longName(0),
               points(times(8,
                            [](int i) {
                                return point(longName(i), 1234567890.0 * (8 - i), longName(i + 1));
                            }),
                      u"€"_s)),
        answer(
            u"signed"_s, u"Change since October"_s,
            points({point(u"Licences"_s, 1200), point(u"Hosting"_s, -4300), point(u"Travel"_s, 0),
                    point(u"Скидка поставщика"_s, -860), point(u"Design"_s, 2.5)},
                   u"€"_s)),
    };
}

QList<SceneAnswer> workload() {
    const auto answer = [](const QString &name, const QJsonArray &rows, const QStringList &loads) {
        return SceneAnswer{
            u"workload-"_s + name, u"workload"_s,
            block(u"bar"_s, u"workload"_s, u"Load for the coming week"_s, points(rows)), loads};
    };
    return {
        answer(u"plain"_s,
               {point(u"Data analyst"_s, 118, u"Glasshouse"_s),
                point(u"Backend engineer"_s, 106, u"Orchard, Night Ferry"_s),
                point(u"Designer"_s, 97, u"Paper Lantern"_s),
                point(u"Product lead"_s, 91, u"Night Ferry"_s),
                point(u"Support lead"_s, 74, u"Blue Kettle"_s),
                point(u"QA analyst"_s, 52, u"All projects"_s)},
               {u"118%"_s, u"106%"_s, u"97%"_s, u"91%"_s, u"74%"_s, u"52%"_s}),
        answer(u"two"_s, {point(u"Ona"_s, 0), point(u"Мария Ёлкина"_s, 100)}, {u"0%"_s, u"100%"_s}),
        answer(u"many"_s, times(many, [](int i) { return point(u"Person %1"_s.arg(i), i); }), {}),
        answer(u"long"_s,
               times(8, [](int i) { return point(longName(i), 80 + 40000 * i, longName(i + 1)); }),
               {u"280080%"_s}),
    };
}

QJsonObject aimed(const QString &label, double value, double target, const QString &hint = {}) {
    QJsonObject row = point(label, value, hint);
    row.insert(u"target"_s, target);
    return row;
}

QList<SceneAnswer> status() {
    const auto answer = [](const QString &name, const QString &unit, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{
            u"status-"_s + name, u"status"_s,
            block(u"progress"_s, u"status"_s, u"Where the projects stand"_s, points(rows, unit)),
            figures};
    };
    QJsonObject blocked = point(u"Print run"_s, 35);
    blocked.insert(u"status"_s, u"blocked"_s);
    return {
        answer(u"plain"_s, u"%"_s,
               {aimed(u"Night Ferry"_s, 82, 70, u"Guided sign-up is live, load test is next"_s),
                aimed(u"Paper Lantern"_s, 64, 60, u"Copy approved, photo set still open"_s),
                aimed(u"Glasshouse"_s, 41, 65, u"Data agent away until Tuesday"_s),
                aimed(u"Orchard"_s, 55, 72, u"Tax field missing on two invoices"_s),
                aimed(u"Blue Kettle"_s, 91, 85, u"All reply macros reviewed"_s)},
               {u"82%"_s, u"target 70%"_s, u"On track"_s, u"41%"_s, u"target 65%"_s, u"Behind"_s}),
        answer(u"one"_s, u"%"_s, {point(u"Night Ferry"_s, 0)}, {u"0%"_s}),
        answer(u"many"_s, u"%"_s,
               times(many, [](int i) { return aimed(u"Stream %1"_s.arg(i), i, 60); }), {}),
        answer(u"long"_s, {},
               times(7,
                     [](int i) {
                         return aimed(longName(i), 1000.0 * (i + 1), 2500, longName(i + 1));
                     }),
               {u"40%"_s, u"280%"_s, u"target 100%"_s}),
        answer(u"mixed"_s, u"%"_s,
               {blocked, point(u"Сайт"_s, 48), aimed(u"Storehouse"_s, 640, 120),
                aimed(u"Training"_s, 0, 10)},
               {u"Blocked"_s, u"640%"_s, u"target 120%"_s, u"0%"_s, u"48%"_s}),
    };
}

QList<SceneAnswer> okr() {
    const auto answer = [](const QString &name, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{
            u"okr-"_s + name, u"okr"_s,
            block(u"progress"_s, u"okr"_s, u"Goals for the fourth quarter"_s, points(rows, u"%"_s)),
            figures};
    };
    const QString first = u"New customers get value in one day · Product lead"_s;
    const QString second = u"Invoicing runs without manual work · Finance lead"_s;
    const QString third = u"Support answers feel personal · Support lead"_s;
    return {
        answer(u"plain"_s,
               {point(u"Set-up finished within 24 h"_s, 78, first),
                point(u"Guided sign-up live in three languages"_s, 67, first),
                point(u"First report opened by day two"_s, 64, first),
                point(u"Invoices without review"_s, 46, second),
                point(u"Open disputes under 20"_s, 35, second),
                point(u"First reply under two hours"_s, 88, third),
                point(u"Satisfaction at 4.6 or more"_s, 94, third),
                point(u"Macros reviewed"_s, 91, third)},
               {u"78%"_s, u"67%"_s, u"46%"_s, u"35%"_s, u"94%"_s}),
        answer(u"one"_s, {point(u"Готовность"_s, 0, u"🚀 Crew"_s)}, {u"0%"_s}),
        answer(u"many"_s,
               times(many, [](int i) { return point(u"Result %1"_s.arg(i), i, u"All teams"_s); }),
               {}),
        answer(u"groups-many"_s,
               times(many,
                     [](int i) {
                         return point(u"Result %1"_s.arg(i), i,
                                      u"Objective %1 · Team %1"_s.arg(i / 3));
                     }),
               {}),
        answer(u"long"_s,
               {point(longName(1), 480, longName(0) + u" · "_s + longName(2)),
                point(longName(3), 52, longName(0) + u" · "_s + longName(2)),
                point(longName(4), 999, longName(1) + u" · "_s + longName(5))},
               {u"480%"_s, u"52%"_s, u"999%"_s}),
    };
}

QList<SceneAnswer> budget() {
    const auto answer = [](const QString &name, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{u"budget-"_s + name, u"budget"_s,
                           block(u"bar"_s, u"budget"_s, u"November budget, plan against actual"_s,
                                 points(rows, u"€"_s)),
                           figures};
    };
    return {
        answer(u"plain"_s,
               {aimed(u"Agent time"_s, 24860, 28000), aimed(u"Hosting"_s, 17300, 15500),
                aimed(u"Contract design"_s, 11250, 13500), aimed(u"Data licences"_s, 7940, 8000),
                aimed(u"Support desk"_s, 5240, 5000), aimed(u"Other"_s, 1765, 1500)},
               {u"−11%"_s, u"Over\u2002+12%"_s, u"−17%"_s, u"−1%"_s, u"+5%"_s}),
        answer(u"one"_s, {aimed(u"Hosting"_s, 17300, 15500)}, {u"+12%"_s}),
        answer(u"many"_s,
               times(many, [](int i) { return aimed(u"Line %1"_s.arg(i), i * 70, 9000); }), {}),
        answer(u"long"_s,
               times(7, [](int i) { return aimed(longName(i), 987654321.0 * i, 1234567890); }),
               {u"+380%"_s}),
        answer(u"mixed"_s,
               {aimed(u"Обучение"_s, 900, 30), point(u"Legal"_s, 400), aimed(u"Travel"_s, 0, 500),
                aimed(u"Gifts"_s, 20, 0)},
               {u"Over\u2002+2900%"_s, u"no plan"_s, u"−100%"_s}),
    };
}

} // namespace

QList<SceneAnswer> sceneAnswers() {
    return QList<SceneAnswer>{
               {u"report-plain"_s, u"report"_s, Workspace::reportAnswer()},
               {u"compare-plain"_s, u"compare"_s, Workspace::compareAnswer()},
           } +
           costs() + workload() + status() + okr() + budget() + chartAnswers() + cardAnswers();
}

SceneAnswer answerNamed(const QString &name) {
    for (const SceneAnswer &answer : sceneAnswers()) {
        if (answer.name == name)
            return answer;
    }
    qFatal("No answer is called %s", qPrintable(name));
}

canvas::SceneOut sceneOf(const SceneAnswer &answer) {
    const auto drawable = canvas::CanvasEngine::extractViewSpec(answer.text);
    if (!drawable.spec)
        qFatal("%s: nothing to draw", qPrintable(answer.name));
    const auto scene = canvas::SceneAdapter::vals(*drawable.spec, {});
    if (!scene || scene->art != answer.art)
        qFatal("%s: not drawn as %s", qPrintable(answer.name), qPrintable(answer.art));
    return *scene;
}

} // namespace kiv::ui
