// A window with nothing in it: the least that a program like this one takes. Ends with its first
// frame, or with --stay goes on showing it.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlEngine>
#include <QQuickWindow>

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    if (QGuiApplication::arguments().contains(QStringLiteral("--stay"))) {
        QQmlApplicationEngine engine;
        engine.loadData("import QtQuick\nWindow { width: 1440; height: 900; visible: true }");
        return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
    }
    QQmlEngine engine;
    QQuickWindow window;
    window.resize(1120, 760);
    return window.grabWindow().isNull() ? 1 : 0;
}
