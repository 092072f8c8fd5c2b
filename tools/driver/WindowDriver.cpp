#include "driver/WindowDriver.h"

#include "driver/FindItem.h"

#include <QTest>

namespace kiv::driver {

bool WindowDriver::waitFor(const std::function<bool()> &holds,
                           std::chrono::milliseconds limit) const {
    return QTest::qWaitFor(holds, static_cast<int>(limit.count()));
}

QQuickItem *WindowDriver::find(const QString &objectName) const {
    return findItem(m_window->contentItem(), objectName);
}

QQuickItem *WindowDriver::waitForItem(const QString &objectName) const {
    QQuickItem *found = nullptr;
    waitFor([&] { return (found = find(objectName)) != nullptr; });
    return found;
}

bool WindowDriver::click(const QString &objectName) const {
    QQuickItem *item = waitForItem(objectName);
    if (!item)
        return false;
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    return true;
}

void WindowDriver::type(const QString &text) const {
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, m_window, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}

void WindowDriver::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(m_window, key, modifiers);
}

} // namespace kiv::driver
