#include "ExitCodes.h"
#include "Explain.h"

#include "base/BaseUrl.h"
#include "base/Version.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

#include <cstring>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// One request a line, answered before the next is read: a peer may wait for each reply.
int explainLines(const QUrl &baseUrl) {
    std::ios::sync_with_stdio(false);
    std::string line;
    while (std::getline(std::cin, line)) {
        const QByteArray reply = kiv::tools::explain(
            QByteArrayView(line.data(), static_cast<qsizetype>(line.size())), baseUrl);
        std::cout.write(reply.constData(), reply.size()) << '\n' << std::flush;
        if (!std::cout)
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

/// Becomes the program that draws, which stands beside this one.
int render(char *argv[]) {
    const QByteArray program =
        QFile::encodeName(QCoreApplication::applicationDirPath() + u"/kiv-canvas-render"_s);
    execv(program.constData(), argv);
    std::cerr << "kiv-canvas: " << program.constData()
              << " cannot be started: " << std::strerror(errno) << '\n';
    return kiv::tools::MissingProgram;
}

} // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "render") == 0)
        return render(argv + 1);
    QCoreApplication::setApplicationName(u"kiv-canvas"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(KIV_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows how an answer will be drawn on the canvas."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        u"command"_s, u"explain: JSON Lines from standard input to standard output; render: "
                      "an answer as a picture (render --help tells more)"_s);
    const QCommandLineOption base(u"base-url"_s,
                                  u"The platform's address, for links to its pages."_s, u"url"_s,
                                  qEnvironmentVariable("KIV_BASE_URL"));
    parser.addOption(base);
    parser.process(app);

    if (parser.positionalArguments() != QStringList{u"explain"_s}) {
        std::cerr << qPrintable(parser.helpText());
        return kiv::tools::UsageFailure;
    }
    try {
        const QString address = parser.value(base);
        return explainLines(address.isEmpty() ? QUrl() : kiv::parseBaseUrl(address));
    } catch (const kiv::BaseUrlError &error) {
        std::cerr << "kiv-canvas: " << error.what() << '\n';
        return kiv::tools::UsageFailure;
    }
}
