#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kiv::bench {

/// One row of the table: a figure, what it stands beside, and what was promised of it.
struct Row {
    enum class Unit { Nanoseconds, Percent };

    QString name;
    double figure = 0;
    QString peer;
    double peerFigure = 0;
    double target = 0; ///< the most that the figure may be
    Unit unit = Unit::Nanoseconds;

    double ratio() const { return figure / peerFigure; }
    bool isShort() const { return figure > target; }
};

/// Nanoseconds of one call: the median of several runs, each long enough to be told from noise.
double measure(const QString &name, const std::function<void()> &step);

QList<Row> answerToScene();
QList<Row> classify();
QList<Row> dictation();
QList<Row> explain();
QList<Row> longChat();
QList<Row> markdown();
QList<Row> render();
QList<Row> sceneFrame();
QList<Row> streaming();

} // namespace kiv::bench
