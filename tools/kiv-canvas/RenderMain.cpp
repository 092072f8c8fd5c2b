// kiv-canvas render: an answer in, a picture of its scene out.

#include "ExitCodes.h"
#include "Picture.h"
#include "RenderOptions.h"

#include "canvas/AnswerReading.h"
#include "canvas/CanvasIntents.h"
#include "canvas/SceneAdapter.h"

#include <QFile>
#include <QGuiApplication>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::tools;

namespace {

int failed(ExitCode code, const QString &reason) {
    std::fprintf(stderr, "kiv-canvas: %s\n", qPrintable(reason));
    return code;
}

/// Qt remarks on machines without a session, which drawing does not need.
void report(QtMsgType, const QMessageLogContext &, const QString &message) {
    if (!message.startsWith(u"QStandardPaths:"))
        std::fprintf(stderr, "kiv-canvas: %s\n", qPrintable(message));
}

int render(const RenderOptions &options) {
    QFile input(options.input);
    const bool isOpen = options.input == u"-" ? input.open(stdin, QIODevice::ReadOnly)
                                              : input.open(QIODevice::ReadOnly);
    const QByteArray text = isOpen ? input.readAll() : QByteArray();
    if (!isOpen || input.error() != QFileDevice::NoError)
        return failed(UnreadableInput,
                      u"%1 cannot be read: %2"_s.arg(options.input, input.errorString()));

    const auto spec = canvas::readAnswer(QString::fromUtf8(text)).spec;
    const auto scene =
        spec ? canvas::SceneAdapter::vals(*spec, canvas::CanvasIntents::classify(options.question))
             : std::nullopt;
    if (!scene)
        return failed(NothingToDraw, u"There is nothing to draw in this answer."_s);

    QSaveFile output(options.output);
    if (!output.open(QIODevice::WriteOnly) ||
        !pictureOf(*scene, options.size, options.isDark).save(&output, "PNG") || !output.flush() ||
        !output.commit())
        return failed(UnwritableOutput,
                      u"%1 cannot be written: %2"_s.arg(options.output, output.errorString()));
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[]) {
    // Whatever the machine has for a screen: the same picture everywhere, and none shows up.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_SCALE_FACTOR", "1");
    qInstallMessageHandler(report);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"kiv-canvas render"_s);
    try {
        return render(readRenderOptions(QGuiApplication::arguments()));
    } catch (const UsageError &error) {
        return failed(UsageFailure, QString::fromUtf8(error.what()));
    }
}
