#pragma once

#include "app/AppDelegate.h"
#include "ui/MainWindow.h"
#include "ui/Modules.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace kiv::ui {

/// A window off screen, used by key and mouse events: the program's own, or one that shows a page
/// of the folder `pages`.
class Gallery {
public:
    Gallery();
    ~Gallery();

    /// Shows a page, filling a window of `size`. A page with an error ends the test.
    QQuickItem *show(const QString &page, const QSize &size, const QVariantMap &properties = {});
    /// Shows the program's window on `store`.
    void open(store::AppStore &store, const QSize &size);
    void close();
    void setDark(bool dark);
    void setReducedMotion(bool reduced);

    /// Saves the window below the build's folder of pictures, once what moves has come to rest.
    QImage save(const QString &name);
    /// The same at once.
    QImage grab(const QString &name);

    /// What carries out the main menu of the program's window.
    app::AppDelegate &commands() const { return *m_delegate; }
    QQuickWindow &window() const { return *m_window; }
    /// The visible item with this objectName; null without one.
    QQuickItem *find(const QString &name) const;
    /// The same, once it shows; where none does, the test fails and gets an empty one.
    QQuickItem *item(const QString &name) const;
    /// The middle of an item, in the window.
    QPoint middleOf(const QString &name) const;
    /// Clicks into the middle of an item.
    void click(const QString &name);
    void type(const QString &text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    bool hasFocus(const QString &name) const;

private:
    void present(const QSize &size);

    std::unique_ptr<app::AppDelegate> m_delegate;
    std::unique_ptr<MainWindow> m_main;
    std::unique_ptr<QQmlEngine> m_engine;
    Appearance *m_appearance = nullptr;
    QQuickWindow *m_window = nullptr;
    std::unique_ptr<QQuickWindow> m_own;
    std::unique_ptr<QObject> m_shown;
    bool m_dark = false;
    bool m_reducedMotion = false;
};

} // namespace kiv::ui
