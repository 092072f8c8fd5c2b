// From the start of the process to the first frame, and the memory at rest: the program with
// somebody signed in and a scene on the canvas, beside an empty window.

#include "Measure.h"
#include "ShownProgram.h"

#include <QTest>

#include <algorithm>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 9;
constexpr int settling = 4000; ///< milliseconds until a program is at rest
constexpr double startTarget = 1.8;
constexpr double memoryTarget = 1.5;

QStringList programArguments() {
    return {u"--profile"_s, signedInProfile()};
}

double median(QList<double> figures) {
    std::ranges::sort(figures);
    return figures.at(figures.size() / 2);
}

double firstFrameOf(const QString &program, const QStringList &arguments) {
    return ShownProgram(program, arguments).firstFrame();
}

double memoryOf(const QString &program, const QStringList &arguments) {
    const ShownProgram shown(program, arguments);
    QTest::qWait(settling);
    return shown.memory();
}

} // namespace

QList<Row> start() {
    QList<double> program;
    QList<double> window;
    firstFrameOf(QStringLiteral(KIV_PROGRAM), programArguments()); // warms the disk's cache
    for (int run = 0; run < runs; ++run) {
        program.append(firstFrameOf(QStringLiteral(KIV_PROGRAM), programArguments()));
        window.append(firstFrameOf(QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s}));
    }
    return {{.name = u"start"_s,
             .figure = median(program),
             .peer = u"empty window"_s,
             .peerFigure = median(window),
             .target = startTarget * median(window)}};
}

QList<Row> memory() {
    const double window = memoryOf(QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
    return {{.name = u"memory"_s,
             .figure = memoryOf(QStringLiteral(KIV_PROGRAM), programArguments()),
             .peer = u"empty window"_s,
             .peerFigure = window,
             .target = memoryTarget * window,
             .unit = Unit::Memory}};
}

} // namespace kiv::bench
