#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kiv::bench {

/// One row of the table: a figure, what it stands beside, and what was promised of it.
struct Row {
    QString name;
    double nanoseconds = 0;
    QString peer;
    double peerNanoseconds = 0;
    double targetNanoseconds = 0;

    double ratio() const { return nanoseconds / peerNanoseconds; }
    bool isShort() const { return nanoseconds > targetNanoseconds; }
};

/// Nanoseconds of one call: the median of several runs, each long enough to be told from noise.
double measure(const QString &name, const std::function<void()> &step);

QList<Row> answerToScene();
QList<Row> classify();
QList<Row> explain();
QList<Row> longChat();
QList<Row> markdown();
QList<Row> render();
QList<Row> sceneFrame();
QList<Row> streaming();

} // namespace kiv::bench
