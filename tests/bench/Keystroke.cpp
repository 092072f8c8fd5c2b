// A key pressed in the ask bar beside a long conversation, until the frame behind it is drawn;
// beside the same key in a bare field of an empty window.

#include "ChatWindow.h"
#include "Measure.h"

#include <QTest>

#include <algorithm>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int keys = 400;
constexpr int sections = 20;
constexpr double target = 16e6;

/// The time that one of a hundred keys reaches.
double slowestOfHundred(QQuickWindow &window, ui::FrameMeter &meter) {
    QList<double> times;
    for (int key = 0; key < keys; ++key) {
        const QChar letter(u'a' + key % 26);
        const QString text = key % 7 == 6 ? u" "_s : QString(letter);
        times.append(meter.frameTime([&] {
            QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, text, Qt::NoModifier);
        }));
    }
    std::ranges::sort(times);
    return times.at(times.size() * 99 / 100);
}

double inTheAskBar() {
    ChatWindow window;
    for (int section = 1; section <= sections; ++section)
        window.workspace().row(section, mixedSection(section));
    window.meter().rest();
    window.gallery().press(Qt::Key_K, Qt::ControlModifier);
    const double time = slowestOfHundred(window.gallery().window(), window.meter());
    if (window.store().chat()->draft().size() != keys)
        qFatal("The ask bar holds %lld letters", window.store().chat()->draft().size());
    return time;
}

double inABareField() {
    ui::Gallery gallery;
    gallery.show(u"BareField.qml"_s, {1440, 900});
    ui::FrameMeter meter(gallery.window());
    meter.rest();
    return slowestOfHundred(gallery.window(), meter);
}

} // namespace

QList<Row> keystroke() {
    return {{.name = u"keystroke, 99th"_s,
             .figure = inTheAskBar(),
             .peer = u"a bare field"_s,
             .peerFigure = inABareField(),
             .target = target}};
}

} // namespace kiv::bench
