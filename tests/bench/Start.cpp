// From the start of the process to the first frame, and the memory at rest: the program with
// somebody signed in and a scene on the canvas, beside an empty window.

#include "Measure.h"
#include "ShownProgram.h"

#include <QTest>

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

struct Start {
    double firstFrame = 0;
    QString renderer;
};

/// The program has gone before another one is measured.
Start startOf(const Display &display, const QString &program, const QStringList &arguments) {
    const ShownProgram shown(display, program, arguments);
    return {shown.firstFrame(), shown.renderer()};
}

double memoryOf(const Display &display, const QString &program, const QStringList &arguments) {
    const ShownProgram shown(display, program, arguments);
    QTest::qWait(settling);
    return shown.memory();
}

} // namespace

QList<Row> start() {
    const Display display;
    QList<double> program;
    QList<double> window;
    QString renderer;
    for (int run = 0; run <= runs; ++run) {
        const Start shown = startOf(display, QStringLiteral(KIV_PROGRAM), programArguments());
        const Start empty = startOf(display, QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
        if (run == 0) // warms the disk's cache
            continue;
        program.append(shown.firstFrame);
        window.append(empty.firstFrame);
        renderer = empty.renderer;
    }
    return {{.name = u"start"_s,
             .figure = median(program),
             .peer = u"empty window"_s,
             .peerFigure = median(window),
             .target = startTarget * median(window),
             .how = renderer}};
}

QList<Row> memory() {
    const Display display;
    const double window = memoryOf(display, QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
    return {{.name = u"memory"_s,
             .figure = memoryOf(display, QStringLiteral(KIV_PROGRAM), programArguments()),
             .peer = u"empty window"_s,
             .peerFigure = window,
             .target = memoryTarget * window,
             .unit = Unit::Memory}};
}

} // namespace kiv::bench
