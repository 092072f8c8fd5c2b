#include "app/Application.h"
#include "base/BaseUrl.h"
#include "base/Version.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv) {
    kiv::app::Application::prepareProcess();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("kiv"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("KIV"));
    QGuiApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
    try {
        kiv::app::Application program(kiv::app::readOptions(application.arguments()));
        program.start();
        return program.window() ? QGuiApplication::exec() : 1;
    } catch (const kiv::BaseUrlError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
