#include "app/WindowFrame.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWindow>

#include <algorithm>

namespace kiv::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString frameKey = u"NSWindow Frame ZandorMain"_s;
const QString maximizedKey = u"zandor.windowMaximized"_s;
constexpr auto saveDelay = 200ms;
/// No desktop is larger, in either direction.
constexpr int farthest = 1'000'000;

QString toText(const QRect &rect) {
    return u"%1 %2 %3 %4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// The screen that shows the most of `frame`, else the first.
const QScreen *screenOf(const QRect &frame) {
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto shown = [&](const QScreen *screen) {
        const QRect part = screen->geometry() & frame;
        return part.isEmpty() ? 0 : qint64(part.width()) * part.height();
    };
    const auto best =
        std::max_element(screens.begin(), screens.end(),
                         [&](const QScreen *a, const QScreen *b) { return shown(a) < shown(b); });
    return best == screens.end() ? nullptr : *best;
}

QSize onScreen(const QSize &size) {
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? size.boundedTo(screen->availableSize()) : size;
}

} // namespace

WindowFrame::WindowFrame(QSettings &settings, Clock &clock)
    : m_settings(settings), m_clock(clock) {}

std::optional<QRect> WindowFrame::restored() const {
    const QStringList numbers = m_settings.value(frameKey).toString().simplified().split(u' ');
    QList<int> read;
    for (const QString &number : numbers) {
        bool isNumber = false;
        read.append(number.toInt(&isNumber));
        if (!isNumber || read.last() < -farthest || read.last() > farthest)
            return std::nullopt;
    }
    if (read.size() < 4 || read[2] <= 0 || read[3] <= 0)
        return std::nullopt;
    const QRect frame(read[0], read[1], read[2], read[3]);
    const QScreen *screen = screenOf(frame);
    if (!screen)
        return std::nullopt;
    return fitted(frame, screen->availableGeometry(), leastSize());
}

bool WindowFrame::wasMaximized() const {
    return m_settings.value(maximizedKey).toBool();
}

QSize WindowFrame::firstSize() {
    return onScreen({1440, 900});
}

QSize WindowFrame::leastSize() {
    return onScreen({1024, 680});
}

QRect WindowFrame::fitted(const QRect &frame, const QRect &area, const QSize &least) {
    const QSize size = frame.size().expandedTo(least).boundedTo(area.size());
    const int x = std::clamp(frame.x(), area.x(), area.x() + area.width() - size.width());
    const int y = std::clamp(frame.y(), area.y(), area.y() + area.height() - size.height());
    return {QPoint(x, y), size};
}

void WindowFrame::follow(QWindow *window, const QRect &frame) {
    m_window = window;
    m_frame = frame;
    connect(window, &QObject::destroyed, this, [this] { m_window = nullptr; });
    connect(window, &QWindow::xChanged, this, &WindowFrame::changed);
    connect(window, &QWindow::yChanged, this, &WindowFrame::changed);
    connect(window, &QWindow::widthChanged, this, &WindowFrame::changed);
    connect(window, &QWindow::heightChanged, this, &WindowFrame::changed);
    connect(window, &QWindow::visibilityChanged, this, &WindowFrame::changed);
}

void WindowFrame::changed() {
    m_later = m_clock.after(saveDelay, [this] { save(); });
}

void WindowFrame::save() {
    if (!m_window)
        return;
    // A window that fills the screen or is hidden keeps the frame that it had before. Its size may
    // say so sooner than its state: what has come to rest counts.
    if (m_window->visibility() == QWindow::Windowed)
        m_frame = m_window->geometry();
    if (!m_frame.isValid())
        return;
    const QScreen *screen = m_window->screen();
    m_settings.setValue(frameKey,
                        toText(m_frame) + u' ' + toText(screen ? screen->geometry() : QRect()));
    if (m_window->visibility() != QWindow::Hidden && m_window->visibility() != QWindow::Minimized)
        m_settings.setValue(maximizedKey, m_window->windowStates().testFlag(Qt::WindowMaximized));
}

} // namespace kiv::app
