// The first frame of a window with nothing in it.

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QQmlEngine engine;
    QQuickWindow window;
    window.resize(1120, 760);
    return window.grabWindow().isNull() ? 1 : 0;
}
