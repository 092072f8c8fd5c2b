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

/// The program has gone before another one is measured.
ShownFigure startOf(const Display &display, const QString &program, const QStringList &arguments) {
    const ShownProgram shown(display, program, arguments);
    return {shown.firstFrame(), shown.renderer()};
}

ShownFigure memoryOf(const Display &display, const QString &program, const QStringList &arguments) {
    const ShownProgram shown(display, program, arguments);
    QTest::qWait(settling);
    return {shown.memory(), shown.renderer()};
}

} // namespace

QList<Row> start() {
    const Display display;
    QList<double> program;
    QList<double> window;
    QString how;
    for (int run = 0; run <= runs; ++run) {
        const ShownFigure shown = startOf(display, QStringLiteral(KIV_PROGRAM), programArguments());
        const ShownFigure empty = startOf(display, QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
        if (run == 0) // warms the disk's cache
            continue;
        program.append(shown.value);
        window.append(empty.value);
        how = drawnBy(shown, empty);
    }
    return {{.name = u"start"_s,
             .figure = median(program),
             .peer = u"empty window"_s,
             .peerFigure = median(window),
             .target = startTarget * median(window),
             .how = how}};
}

QList<Row> memory() {
    const Display display;
    const ShownFigure window = memoryOf(display, QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
    const ShownFigure program = memoryOf(display, QStringLiteral(KIV_PROGRAM), programArguments());
    return {{.name = u"memory"_s,
             .figure = program.value,
             .peer = u"empty window"_s,
             .peerFigure = window.value,
             .target = memoryTarget * window.value,
             .unit = Unit::Memory,
             .how = drawnBy(program, window)}};
}

} // namespace kiv::bench
