#include "ui/FrameMeter.h"

#include "support/WorkingTime.h"

#include <QCoreApplication>
#include <QTest>

namespace kiv::ui {

namespace {

constexpr int restTime = 500;

} // namespace

double mainThreadTime() {
    return test::workingTime() * 1e9;
}

FrameMeter::FrameMeter(QQuickWindow &window) : m_window(window) {
    // Off screen all of a frame is made on the main thread.
    connect(
        &window, &QQuickWindow::afterAnimating, this, [this] { m_laidOut = mainThreadTime(); },
        Qt::DirectConnection);
    connect(
        &window, &QQuickWindow::frameSwapped, this, [this] { ++m_frames; }, Qt::DirectConnection);
}

void FrameMeter::nextFrame() {
    m_window.update();
    const int before = m_frames;
    while (m_frames == before)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double FrameMeter::layoutTime(const std::function<void()> &step) {
    const double start = mainThreadTime();
    step();
    nextFrame();
    return m_laidOut - start;
}

double FrameMeter::frameTime(const std::function<void()> &step) {
    const double start = mainThreadTime();
    step();
    nextFrame();
    return mainThreadTime() - start;
}

void FrameMeter::rest() {
    QTest::qWait(restTime);
}

} // namespace kiv::ui
