#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kiv::bench {

/// What a figure counts: nanoseconds, bytes, or parts of a hundred.
enum class Unit { Time, Memory, Percent };

/// One row of the table: a figure, what it stands beside, and what was promised of it.
struct Row {
    QString name;
    double figure = 0;
    QString peer;
    double peerFigure = 0;
    double target = 0; ///< the most that the figure may be
    Unit unit = Unit::Time;
    QString how = {};     ///< under which circumstances both were measured
    QString missing = {}; ///< what there would have to be to measure it; empty when it was

    double ratio() const { return figure / peerFigure; }
    bool isShort() const { return figure > target; }
};

/// Nanoseconds of one call: the median of several runs, each long enough to be told from noise.
double measure(const QString &name, const std::function<void()> &step);
/// Nanoseconds of a call that is too long to be made again and again.
double measureOnce(const std::function<void()> &step);
/// The middle one of several figures.
double median(QList<double> figures);

QList<Row> answerToScene();
QList<Row> classify();
QList<Row> dictation();
QList<Row> explain();
QList<Row> idle();
QList<Row> keystroke();
QList<Row> longChat();
QList<Row> markdown();
QList<Row> memory();
QList<Row> pageDecode();
QList<Row> render();
QList<Row> sceneFrame();
QList<Row> start();
QList<Row> streamParser();
QList<Row> streaming();

} // namespace kiv::bench
