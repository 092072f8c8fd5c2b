#include "RenderOptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace kiv::tools {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize least{320, 240};
constexpr QSize most{8000, 8000};

QSize sizeOf(const QString &text) {
    static const QRegularExpression pattern(u"^([0-9]{1,5})x([0-9]{1,5})$"_s);
    const auto match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (!match.hasMatch() || size.boundedTo(most) != size || size.expandedTo(least) != size)
        throw UsageError(u"The size %1 is none from %2x%3 to %4x%5, such as 1120x760."_s.arg(text)
                             .arg(least.width())
                             .arg(least.height())
                             .arg(most.width())
                             .arg(most.height())
                             .toStdString());
    return size;
}

bool isDarkTheme(const QString &text) {
    if (text != u"light" && text != u"dark")
        throw UsageError(u"The theme %1 is neither light nor dark."_s.arg(text).toStdString());
    return text == u"dark";
}

} // namespace

RenderOptions readRenderOptions(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws an answer as the canvas would."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption question(u"question"_s, u"The question that the answer is to."_s,
                                      u"text"_s);
    const QCommandLineOption theme(u"theme"_s, u"light or dark."_s, u"theme"_s, u"light"_s);
    const QCommandLineOption size(u"size"_s, u"Width and height of the picture."_s, u"WxH"_s);
    const QCommandLineOption output(QStringList{u"o"_s, u"output"_s}, u"The picture, a PNG file."_s,
                                    u"file"_s);
    parser.addOptions({question, theme, size, output});
    parser.addPositionalArgument(u"FILE"_s, u"The answer's text; - for the standard input."_s);
    if (!parser.parse(arguments))
        throw UsageError(parser.errorText().toStdString());
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.positionalArguments().size() != 1)
        throw UsageError("One file with an answer is needed, or - for the standard input.");
    if (parser.value(output).isEmpty())
        throw UsageError("-o names the picture to write; it is missing.");
    RenderOptions options{.question = parser.value(question),
                          .isDark = isDarkTheme(parser.value(theme)),
                          .output = parser.value(output),
                          .input = parser.positionalArguments().constFirst()};
    if (parser.isSet(size))
        options.size = sizeOf(parser.value(size));
    return options;
}

} // namespace kiv::tools
