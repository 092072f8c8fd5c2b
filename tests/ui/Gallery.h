#pragma once

#include "ui/tokens/Appearance.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace kiv::ui {

/// An off-screen window that shows one QML component and saves what it looks like.
class Gallery {
public:
    Gallery();

    /// Shows a page of the folder `pages`, filling a window of `size`. A page with an error ends
    /// the test.
    QQuickItem *show(const QString &page, const QSize &size, const QVariantMap &properties = {});
    Appearance &appearance() { return m_appearance; }
    /// Saves the window below the build's folder of pictures and gives the picture.
    QImage save(const QString &name);

    QQmlEngine &engine() { return m_engine; }
    QQuickWindow &window() { return *m_window; }
    /// The item with this objectName, which must be there.
    QQuickItem *item(const char *name);
    /// Clicks into the middle of an item.
    void click(QQuickItem *item);
    void type(const QString &text);

private:
    QQmlEngine m_engine;
    Appearance &m_appearance;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QObject> m_shown;
};

} // namespace kiv::ui
