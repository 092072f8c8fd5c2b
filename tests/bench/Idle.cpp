// What the program works while nobody does anything: signed in, a scene on the canvas, the live
// stream open, no caret.

#include "Measure.h"
#include "ShownProgram.h"

#include <QTest>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int settling = 4000;  ///< milliseconds until a program is at rest
constexpr int watching = 10000; ///< milliseconds
constexpr double target = 0.3;  ///< per cent of one core

ShownFigure idleOf(const Display &display, const QString &program, const QStringList &arguments) {
    const ShownProgram shown(display, program, arguments);
    QTest::qWait(settling);
    const double before = shown.worked();
    QTest::qWait(watching);
    return {(shown.worked() - before) / (watching * 1e6) * 100, shown.renderer()};
}

} // namespace

QList<Row> idle() {
    const Display display;
    const ShownFigure program =
        idleOf(display, QStringLiteral(KIV_PROGRAM), {u"--profile"_s, signedInProfile()});
    const ShownFigure window = idleOf(display, QStringLiteral(KIV_EMPTY_WINDOW), {u"--stay"_s});
    return {{.name = u"idle"_s,
             .figure = program.value,
             .peer = u"empty window"_s,
             .peerFigure = window.value,
             .target = target,
             .unit = Unit::Percent,
             .how = drawnBy(program, window)}};
}

} // namespace kiv::bench
