#pragma once

#include "base/Clock.h"

#include <QObject>
#include <QRect>

#include <optional>

class QSettings;
class QWindow;

namespace kiv::app {

/// Where the window was when the program ended, and keeping that up to date.
class WindowFrame : public QObject {
    Q_OBJECT
public:
    /// Settings, which hold nothing but the frame, and clock outlive this.
    WindowFrame(QSettings &settings, Clock &clock);

    /// The frame to open with: the saved one, moved and cut so that it lies on a screen that is
    /// there; nothing when none was saved.
    std::optional<QRect> restored() const;
    bool wasMaximized() const;

    /// How large a window is that has no saved frame, and how small one may become: no larger than
    /// the screen that it opens on has room for.
    static QSize firstSize();
    static QSize leastSize();

    /// Saves the frame of `window` from now on, `frame` being where it stands while it does not
    /// fill the screen. The window may go away before this.
    void follow(QWindow *window, const QRect &frame);
    /// Saves at once.
    void save();

    /// `frame` within the free area of a screen, not smaller than `least` unless the area is.
    static QRect fitted(const QRect &frame, const QRect &area, const QSize &least);

private:
    void changed();

    QSettings &m_settings;
    Clock &m_clock;
    Clock::Timer m_later;
    QWindow *m_window = nullptr;
    QRect m_frame;
};

} // namespace kiv::app
