#include "app/Options.h"

#include "base/BaseUrl.h"

#include <QCommandLineParser>
#include <QMap>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, store::Theme> themes{{u"light"_s, store::Theme::Light},
                                         {u"dark"_s, store::Theme::Dark},
                                         {u"system"_s, store::Theme::System}};
const QMap<QString, store::Language> languages{{u"en"_s, store::Language::English},
                                               {u"ru"_s, store::Language::Russian},
                                               {u"system"_s, store::Language::System}};

/// What was asked for by name; nothing when it was not asked for.
template <typename T>
std::optional<T> named(const QCommandLineParser &parser, const QCommandLineOption &option,
                       const QMap<QString, T> &values) {
    if (!parser.isSet(option))
        return std::nullopt;
    const auto value = values.find(parser.value(option));
    if (value == values.end())
        throw OptionError(
            u"--%1 takes %2"_s
                .arg(option.names().constFirst(), QStringList(values.keys()).join(u", "_s))
                .toStdString());
    return *value;
}

} // namespace

Options readOptions(const QStringList &arguments) {
    const QCommandLineOption baseUrl(
        u"base-url"_s, u"Talk to the workspace at this address instead of the embedded one."_s,
        u"address"_s);
    const QCommandLineOption snapshot(
        u"snapshot"_s, u"Start with default panels; keep no settings and no drafts."_s);
    const QCommandLineOption theme(
        u"theme"_s, u"light, dark or system; otherwise the one chosen in the window."_s, u"name"_s);
    const QCommandLineOption language(
        u"language"_s, u"en, ru or system; otherwise the one chosen in the window."_s, u"name"_s);
    const QCommandLineOption profile(
        u"profile"_s, u"Keep settings, session and workspace in this folder."_s, u"folder"_s);
    const QCommandLineOption audioFile(
        u"audio-file"_s, u"Hear this WAV file in place of the microphone."_s, u"file"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Talk to your agents and see what they answer."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"link"_s, u"A chat to open, as kiv://chat/project/NAME."_s,
                                 u"[link]"_s);
    parser.addOptions({baseUrl, snapshot, theme, language, profile, audioFile});
    parser.process(arguments);

    Options options;
    options.links = parser.positionalArguments();
    options.snapshot = parser.isSet(snapshot);
    options.theme = named(parser, theme, themes);
    options.language = named(parser, language, languages);
    options.places =
        parser.isSet(profile) ? Places::below(parser.value(profile)) : Places::standard();
    options.audioFile =
        parser.isSet(audioFile) ? parser.value(audioFile) : qEnvironmentVariable("KIV_AUDIO_FILE");
    const QString address =
        parser.isSet(baseUrl) ? parser.value(baseUrl) : qEnvironmentVariable("KIV_BASE_URL");
    if (!address.isEmpty())
        options.baseUrl = parseBaseUrl(address);
    return options;
}

} // namespace kiv::app
