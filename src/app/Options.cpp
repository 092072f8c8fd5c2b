#include "app/Options.h"

#include "base/BaseUrl.h"

#include <QCommandLineParser>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

store::Theme themeNamed(const QString &name) {
    if (name == u"dark"_s)
        return store::Theme::Dark;
    return name == u"system"_s ? store::Theme::System : store::Theme::Light;
}

store::Language languageNamed(const QString &name) {
    if (name == u"ru"_s)
        return store::Language::Russian;
    return name == u"en"_s ? store::Language::English : store::Language::System;
}

} // namespace

Options readOptions(const QStringList &arguments) {
    const QCommandLineOption baseUrl(
        u"base-url"_s, u"Talk to the workspace at this address instead of the embedded one."_s,
        u"address"_s);
    const QCommandLineOption snapshot(u"snapshot"_s,
                                      u"Start with default panels and keep nothing."_s);
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
    if (parser.isSet(theme))
        options.theme = themeNamed(parser.value(theme));
    if (parser.isSet(language))
        options.language = languageNamed(parser.value(language));
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
