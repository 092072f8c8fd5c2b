#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

#include <chrono>
#include <functional>

namespace kiv::driver {

/// Uses a window as a person does: by key and mouse events, waiting for what they bring about.
class WindowDriver {
public:
    static constexpr std::chrono::milliseconds patience{15000};

    explicit WindowDriver(QQuickWindow *window) : m_window(window) {}

    /// Runs the event loop until `holds`; false when the patience is over first.
    bool waitFor(const std::function<bool()> &holds,
                 std::chrono::milliseconds limit = patience) const;

    /// The first visible item of that object name; null when there is none.
    QQuickItem *find(const QString &objectName) const;
    QQuickItem *waitForItem(const QString &objectName) const;

    /// Clicks into the middle of the item; false when it does not come up.
    bool click(const QString &objectName) const;
    void type(const QString &text) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// The window as it shows now.
    QImage picture() const { return m_window->grabWindow(); }

private:
    QQuickWindow *m_window;
};

} // namespace kiv::driver
