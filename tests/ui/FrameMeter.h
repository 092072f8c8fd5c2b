#pragma once

#include <QQuickWindow>

#include <functional>

namespace kiv::ui {

/// What the main thread has worked so far, in nanoseconds. Waiting does not count, nor does what
/// else the machine is busy with.
double mainThreadTime();

/// A window off screen that draws as programs do, frame by frame, and says what that takes of the
/// main thread.
class FrameMeter : public QObject {
    Q_OBJECT
public:
    explicit FrameMeter(QQuickWindow &window);

    /// Nanoseconds from the start of `step` until everything it changed is laid out.
    double layoutTime(const std::function<void()> &step);
    /// Nanoseconds from the start of `step` until the frame behind it is drawn.
    double frameTime(const std::function<void()> &step);
    /// Draws until nothing changes any more, or for half a second.
    void rest();

private:
    void nextFrame();

    QQuickWindow &m_window;
    double m_laidOut = 0;
    int m_frames = 0;
};

} // namespace kiv::ui
