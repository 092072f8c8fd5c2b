#include "ui/FrameMeter.h"

#include <QCoreApplication>
#include <QTest>

#include <ctime>

namespace kiv::ui {

namespace {

constexpr int restTime = 500;

} // namespace

double mainThreadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
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
