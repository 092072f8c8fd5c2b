#include "ui/AnswerText.h"
#include "ui/SceneAnswers.h"

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

QJsonObject task(const QString &title, const QString &owner, const QString &status) {
    QJsonObject row{{u"label"_s, title}, {u"owner"_s, owner}};
    if (!status.isEmpty())
        row.insert(u"status"_s, status);
    return row;
}

const QStringList statuses{u"done"_s, u"doing"_s, u"blocked"_s, u"todo"_s, QString()};

QList<SceneAnswer> agents() {
    const auto answer = [](const QString &name, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{
            u"agents-"_s + name, u"agents"_s,
            block(u"timeline"_s, u"agents"_s, u"Who works on the release"_s, points(rows)),
            figures};
    };
    return {
        answer(u"plain"_s,
               {task(u"Interview notes"_s, u"Scout"_s, u"done"_s),
                task(u"Price survey"_s, u"Scout"_s, u"done"_s),
                task(u"Summary"_s, u"Scout"_s, u"doing"_s),
                task(u"Sign-up flow"_s, u"Loom"_s, u"done"_s),
                task(u"Empty states"_s, u"Loom"_s, u"doing"_s),
                task(u"API contract"_s, u"Anvil"_s, u"done"_s),
                task(u"Guided sign-up"_s, u"Anvil"_s, u"doing"_s),
                task(u"Load test"_s, u"Anvil"_s, u"todo"_s),
                task(u"Help articles"_s, u"Beacon"_s, u"doing"_s),
                task(u"Ответы"_s, u"Beacon"_s, {}), task(u"Plan check"_s, u"Ledger"_s, u"done"_s),
                task(u"Tax fields"_s, u"Ledger"_s, u"blocked"_s)},
               {u"Done"_s, u"Doing"_s, u"To do"_s, u"Blocked"_s, u"Unknown"_s}),
        answer(u"turns"_s,
               {task(u"Draft"_s, u"A🚀"_s, u"done"_s), task(u"Check"_s, u"Bob"_s, u"done"_s),
                task(u"Send"_s, u"A🚀"_s, u"todo"_s)},
               {}),
        answer(u"one"_s, {task(u"Draft"_s, {}, u"done"_s)}, {u"Events"_s}),
        answer(u"long"_s,
               times(6,
                     [](int i) {
                         return task(longName(i), u"Team "_s + longName(i % 2), statuses.at(i % 5));
                     }),
               {}),
        answer(u"many"_s,
               times(many,
                     [](int i) {
                         return task(u"Task %1"_s.arg(i), u"Agent %1"_s.arg(i % 30),
                                     statuses.at(i % 5));
                     }),
               {}),
    };
}

QList<SceneAnswer> briefs() {
    const auto answer = [](const QString &name, const QJsonArray &rows) {
        return SceneAnswer{u"brief-"_s + name, u"brief"_s,
                           block(u"checklist"_s, u"brief"_s, u"Monday brief"_s, points(rows))};
    };
    return {
        answer(u"plain"_s,
               {task(u"Price survey closed"_s, u"Night Ferry · Scout"_s, u"done"_s),
                task(u"Reply macros reviewed"_s, u"Blue Kettle · Beacon"_s, u"done"_s),
                task(u"Guided sign-up, last two screens"_s, u"Night Ferry · Anvil"_s, u"doing"_s),
                task(u"Доступ к выгрузке"_s, u"Orchard · Ledger"_s, u"doing"_s),
                task(u"Approve the Orchard tax wording"_s, u"Orchard"_s, u"todo"_s),
                task(u"Book the load test"_s, u"Night Ferry · Anvil"_s, u"todo"_s)}),
        answer(u"one"_s, {task(u"Book the load test"_s, {}, u"todo"_s)}),
        answer(
            u"long"_s,
            times(4, [](int i) { return task(longName(i), longName(i + 1), statuses.at(i % 2)); })),
        answer(u"many"_s, times(many,
                                [](int i) {
                                    return task(u"Task %1"_s.arg(i), u"Project"_s,
                                                statuses.at(i % 5));
                                })),
    };
}

QList<SceneAnswer> retros() {
    const auto answer = [](const QString &name, const QJsonArray &columns) {
        return SceneAnswer{
            u"retro-"_s + name, u"retro"_s,
            block(u"board"_s, u"retro"_s, u"Retrospective"_s, {{u"columns"_s, columns}})};
    };
    const auto column = [](const QString &name, const QStringList &cards) {
        return QJsonObject{{u"name"_s, name}, {u"points"_s, texts(cards)}};
    };
    return {
        answer(u"plain"_s,
               {column(u"Went well"_s, {u"Sign-up shipped two days early"_s, u"No rollbacks"_s}),
                column(u"Улучшить"_s, {u"Load test came too late"_s}),
                column(u"Actions"_s, {u"Book the load test in week one"_s})}),
        answer(u"one"_s, {column(u"Went well"_s, {u"No rollbacks"_s})}),
        answer(u"long"_s,
               times(2,
                     [&](int i) {
                         return column(longName(i), {longName(i), longName(i + 1).repeated(3)});
                     })),
        answer(u"many"_s, times(6,
                                [&](int i) {
                                    QStringList cards;
                                    for (int card = 0; card < many / 6; ++card)
                                        cards.append(u"Note %1 of %2"_s.arg(card).arg(i));
                                    return column(u"Column %1"_s.arg(i), cards);
                                })),
    };
}

} // namespace

QList<SceneAnswer> cardAnswers() {
    return agents() + briefs() + retros();
}

} // namespace kiv::ui
