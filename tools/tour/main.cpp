// kiv-tour [--theme light|dark] [--size WxH] FOLDER: walks through the program off screen and
// leaves a picture of every stop in FOLDER.

#include "Tour.h"

#include "base/Version.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// What the microphone says during the call of the tour, again and again.
QString spokenQuestion(const QString &folder) {
    using namespace Qt::StringLiterals;
    const QString path = folder + u"/question.wav"_s;
    QProcess::execute(u"espeak-ng"_s, {u"-m"_s, u"-w"_s, path,
                                       u"<speak>Where are we against the "
                                       "plan?<break time=\"9000ms\"/></speak>"_s});
    return path;
}

} // namespace

int main(int argc, char **argv) {
    using namespace Qt::StringLiterals;
    kiv::app::Application::prepareProcess();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"kiv-tour"_s);
    QGuiApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));

    const QCommandLineOption theme(u"theme"_s, u"light or dark."_s, u"name"_s, u"light"_s);
    const QCommandLineOption size(u"size"_s, u"Size of the window."_s, u"WxH"_s, u"1440x900"_s);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({theme, size});
    parser.addPositionalArgument(u"folder"_s, u"Where the pictures go."_s);
    parser.process(application);
    const QDir pictures(parser.positionalArguments().value(0, u"out/tour"_s));
    pictures.mkpath(u"."_s);

    QTemporaryDir profile;
    kiv::app::Options options;
    options.theme =
        parser.value(theme) == u"dark"_s ? kiv::store::Theme::Dark : kiv::store::Theme::Light;
    options.places = kiv::app::Places::below(profile.path());
    options.audioFile = spokenQuestion(profile.path());
    kiv::app::Application program(options);
    program.start();
    if (!program.window()) {
        std::fprintf(stderr, "The window could not be made.\n");
        return 1;
    }
    const QStringList sides = parser.value(size).split(u'x');
    program.window()->resize(sides.value(0).toInt(), sides.value(1).toInt());
    return kiv::tour::Tour(program, pictures).take() ? 0 : 1;
}
