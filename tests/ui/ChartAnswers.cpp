#include "ui/AnswerText.h"
#include "ui/SceneAnswers.h"

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

QList<SceneAnswer> decisions() {
    const auto answer = [](const QString &name, const QStringList &options, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{u"decision-"_s + name, u"decision"_s,
                           block(u"compare"_s, u"decision"_s, u"Where should invoicing live?"_s,
                                 {{u"columns"_s, texts(QStringList{u"Criterion"_s} + options)},
                                  {u"rows"_s, rows}}),
                           figures};
    };
    const auto row = [](const QString &name, int a, int b) {
        return QJsonArray{name, QString::number(a) + u"/10"_s, QString::number(b) + u"/10"_s};
    };
    const QStringList options{u"Keep it in Orchard"_s, u"Move to a new service"_s};
    return {
        answer(u"plain"_s, options,
               {row(u"Time to launch"_s, 8, 4), row(u"Running cost"_s, 6, 7),
                row(u"Team skills"_s, 9, 5), row(u"Customer impact"_s, 7, 8), row(u"Risk"_s, 8, 5)},
               {u"8"_s, u"9"_s, u"Recommended"_s}),
        answer(u"tie"_s, options, {row(u"Срок"_s, 8, 4), row(u"Цена"_s, 0, 4)},
               {u"8"_s, u"0"_s, u"4"_s, u"Even"_s}),
        answer(u"untotalled"_s, options,
               {QJsonArray{u"Price"_s, u"$400"_s, u"$800"_s}, row(u"Speed"_s, 9, 7),
                row(u"Fit"_s, 1, 1)},
               {u"9"_s, u"7"_s, u"1"_s}),
        answer(u"long"_s, {longName(0), longName(1)},
               times(6,
                     [](int i) {
                         return QJsonArray{longName(i), 900 + i, 80 * i};
                     }),
               {}),
        answer(
            u"many"_s, options,
            times(many, [&](int i) { return row(u"Criterion %1"_s.arg(i), i % 11, (i * 7) % 11); }),
            {}),
    };
}

QList<SceneAnswer> funnels() {
    const auto answer = [](const QString &name, const QJsonArray &rows,
                           const QStringList &figures) {
        return SceneAnswer{u"funnel-"_s + name, u"funnel"_s,
                           block(u"funnel"_s, u"funnel"_s, u"Trial to paid"_s, points(rows)),
                           figures};
    };
    return {
        answer(u"plain"_s,
               {point(u"Visited the page"_s, 12480), point(u"Started a trial"_s, 5240),
                point(u"Finished set-up"_s, 3310), point(u"Invited a colleague"_s, 1460),
                point(u"Paid plan"_s, 612)},
               {u"58% drop"_s, u"42%"_s, u"—"_s}),
        answer(u"uneven"_s,
               {point(u"Заявки"_s, 40), point(u"None"_s, 0), point(u"More again"_s, 900),
                point({}, 900)},
               {u"100% drop"_s, u"Stage 4"_s, u"100%"_s}),
        answer(u"long"_s, times(4, [](int i) { return point(longName(i), 9.9e9 / (i + 1)); }), {}),
        answer(u"many"_s,
               times(many, [](int i) { return point(u"Stage %1"_s.arg(i), 9000 - 40 * i); }), {}),
    };
}

QList<SceneAnswer> units() {
    const auto answer = [](const QString &name, const QString &unit, const QJsonArray &rows,
                           int figures, const QStringList &shares) {
        QJsonObject data = points(rows, unit);
        const QJsonArray items{
            QJsonObject{{u"label"_s, u"Cost per invoice"_s},
                        {u"display"_s, u"€1.84"_s},
                        {u"delta"_s, u"−4.1%"_s}},
            QJsonObject{{u"label"_s, u"Margin per invoice"_s},
                        {u"display"_s, u"€0.66"_s},
                        {u"delta"_s, u"+€0.08"_s}},
            QJsonObject{{u"label"_s, u"Invoices per person"_s}, {u"display"_s, u"1,920"_s}}};
        QJsonArray shown;
        for (int i = 0; i < figures; ++i)
            shown.append(items.at(i));
        if (figures > 0)
            data.insert(u"items"_s, shown);
        return SceneAnswer{u"unit-"_s + name, u"unit"_s,
                           block(rows.isEmpty() ? u"kpi"_s : u"donut"_s, u"unit"_s,
                                 u"What one invoice costs"_s, data),
                           shares};
    };
    return {
        answer(u"plain"_s, u"€"_s,
               {point(u"People"_s, 0.76), point(u"Manual review"_s, 0.44),
                point(u"Payment fees"_s, 0.31), point(u"Hosting"_s, 0.22),
                point(u"Прочее"_s, 0.11)},
               3, {u"41%"_s, u"6%"_s}),
        answer(u"rest"_s, u"%"_s, {point(u"Sea"_s, 50), point(u"Rail"_s, 25), point(u"Air"_s, 0)},
               0, {}),
        answer(u"long"_s, u"€"_s,
               times(6, [](int i) { return point(longName(i), 98765432.5 * (i + 1)); }), 2, {}),
        answer(u"many"_s, u"€"_s,
               times(many, [](int i) { return point(u"Part %1"_s.arg(i), (i * 37) % 1000); }), 3,
               {}),
    };
}

QJsonArray along(const QStringList &names, const QList<double> &values) {
    QJsonArray row;
    for (qsizetype i = 0; i < values.size(); ++i)
        row.append(point(names.at(i), values.at(i)));
    return row;
}

QList<SceneAnswer> cashflows() {
    const auto answer = [](const QString &name, const QString &unit, const QJsonObject &series,
                           const QStringList &figures) {
        QJsonArray all;
        for (auto one = series.begin(); one != series.end(); ++one)
            all.append(QJsonObject{{u"name"_s, one.key()}, {u"points"_s, one.value()}});
        return SceneAnswer{u"cashflow-"_s + name, u"cashflow"_s,
                           block(u"line"_s, u"cashflow"_s, u"Cash in and out"_s,
                                 {{u"series"_s, all}, {u"unit"_s, unit}}),
                           figures};
    };
    const QStringList months{u"Jul"_s, u"Aug"_s, u"Sep"_s, u"Oct"_s, u"Nov"_s, u"Dec"_s};
    const auto wave = [](int i) { return point(u"Day %1"_s.arg(i), 500 - (i * 131) % 1000); };
    return {
        answer(u"plain"_s, {},
               {{u"In"_s, along(months, {92, 84, 71, 118, 126, 139})},
                {u"Out"_s, along(months, {78, 96, 105, 88, 91, 97})},
                {u"Balance"_s, along(months, {114, 102, 68, 98, 133, 175})}},
               {u"In"_s, u"Out"_s, u"Balance"_s, u"200"_s, u"0"_s}),
        answer(u"gaps"_s, {},
               {{u"In"_s, along(months, {92, 0})},
                {u"Out"_s, along(months, {-78, 96, 1050.5})},
                {u"Balance"_s, along({u"Jul"_s, u"Dec"_s}, {-114, 60})}},
               {u"—"_s, u"0"_s}),
        answer(u"line"_s, u"€"_s, {{u"Остаток"_s, along(months, {3e6, -4e6, 0, 2e6, 5e6, 1e6})}},
               {}),
        answer(u"many"_s, u"€"_s,
               {{u"In"_s, times(many, wave)},
                {u"Out"_s, times(many, wave)},
                {u"Balance"_s, times(many, wave)}},
               {}),
    };
}

} // namespace

QList<SceneAnswer> chartAnswers() {
    return decisions() + funnels() + units() + cashflows();
}

} // namespace kiv::ui
