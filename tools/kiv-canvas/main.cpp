#include "Explain.h"

#include "base/BaseUrl.h"
#include "base/Version.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int usageError = 64;

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

} // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"kiv-canvas"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(KIV_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows how an answer will be drawn on the canvas."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"command"_s,
                                 u"explain: JSON Lines from standard input to standard output"_s);
    const QCommandLineOption base(u"base-url"_s,
                                  u"The platform's address, for links to its pages."_s, u"url"_s,
                                  qEnvironmentVariable("KIV_BASE_URL"));
    parser.addOption(base);
    parser.process(app);

    if (parser.positionalArguments() != QStringList{u"explain"_s}) {
        std::cerr << qPrintable(parser.helpText());
        return usageError;
    }
    try {
        const QString address = parser.value(base);
        return explainLines(address.isEmpty() ? QUrl() : kiv::parseBaseUrl(address));
    } catch (const kiv::BaseUrlError &error) {
        std::cerr << "kiv-canvas: " << error.what() << '\n';
        return usageError;
    }
}
