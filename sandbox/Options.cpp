#include "Options.h"

#include "base/Version.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

double readNumber(const QCommandLineParser &parser, const QString &option, double byDefault,
                  double most) {
    if (!parser.isSet(option))
        return byDefault;
    const QString text = parser.value(option);
    bool good = false;
    const double value = text.toDouble(&good);
    if (!good || !(value >= 0 && value <= most))
        throw OptionsError(u"--%1 cannot be \"%2\""_s.arg(option, text).toStdString());
    return value;
}

std::vector<Fault> readFaults(const QStringList &texts) {
    std::vector<Fault> faults;
    for (const QString &text : texts) {
        try {
            faults.push_back(Fault::parse(text));
        } catch (const FaultError &error) {
            throw OptionsError(std::string("--fault ") + error.what());
        }
    }
    return faults;
}

} // namespace

Options parseOptions(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"The embedded workspace server of KIV desktop."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {u"data-dir"_s, u"Folder of the database and uploads."_s, u"folder"_s},
        {u"port"_s, u"Port on 127.0.0.1; a free one by default."_s, u"number"_s},
        {u"answer-speed"_s, u"Scales the waits of answers: 1 life-like, 0 none."_s, u"factor"_s},
        {u"seed"_s, u"Varies the figures of new workspaces."_s, u"number"_s},
        {u"fault"_s, u"A way to fail, such as status=500,path=/projects,times=2."_s, u"fault"_s},
        {u"control"_s, u"Take control requests under /_control/."_s},
        {u"newest-release"_s, u"The version that the release feed offers."_s, u"version"_s},
        {u"share-dir"_s, u"Folder of the voice client and the speech models."_s, u"folder"_s},
        {u"stay"_s, u"Stay when standard input ends."_s},
    });
    if (!parser.parse(arguments))
        throw OptionsError(parser.errorText().toStdString());
    if (parser.isSet(u"help"_s))
        parser.showHelp();
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    if (parser.value(u"data-dir"_s).isEmpty() || !parser.positionalArguments().isEmpty())
        throw OptionsError("--data-dir names the folder to keep everything in; see --help");
    Options options;
    options.dataDir = parser.value(u"data-dir"_s);
    options.port = static_cast<int>(readNumber(parser, u"port"_s, 0, 65535));
    options.answerPace = readNumber(parser, u"answer-speed"_s, 1, 1000);
    options.seed = static_cast<quint64>(readNumber(parser, u"seed"_s, 0, 4294967295.0));
    options.stay = parser.isSet(u"stay"_s);
    options.control = parser.isSet(u"control"_s);
    options.newestRelease = parser.isSet(u"newest-release"_s) ? parser.value(u"newest-release"_s)
                                                              : QStringLiteral(KIV_VERSION);
    options.shareDir = parser.isSet(u"share-dir"_s)
                           ? parser.value(u"share-dir"_s)
                           : QCoreApplication::applicationDirPath() + u"/../share/kiv"_s;
    options.faults = readFaults(parser.values(u"fault"_s));
    return options;
}

} // namespace kiv::sandbox
