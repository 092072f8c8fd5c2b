// kiv-speech: turns sound into words. JSON Lines both ways over standard input and output; see
// docs/speech.md.

#include "base/Version.h"
#include "speech/Listener.h"
#include "speech/Recogniser.h"
#include "speech/Requests.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;
using namespace kiv::speech;

namespace {

/// Of a request, in bytes: more than half a minute of sound.
constexpr std::streamsize longestLine = 4 * 1024 * 1024;

void say(const QJsonObject &object) {
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

int fail(const char *why, int code) {
    say({{u"error"_s, QString::fromUtf8(why)}, {u"code"_s, code}});
    return code == ModelError::Missing ? code : 1;
}

/// Works on requests until there are no more.
void listen(const Recogniser &recogniser, VoiceActivity &activity, RequestQueue &requests) {
    using namespace std::chrono;
    Listener listener(
        activity, [&](const std::vector<float> &samples) { return recogniser.read(samples); },
        [] { return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()); },
        [&](const Heard &heard) {
            if (!requests.dropping())
                say({{heard.final ? u"final"_s : u"interim"_s, heard.text}});
        });
    for (;;) {
        const Request request = requests.take();
        if (std::holds_alternative<Close>(request))
            return;
        if (const auto *sound = std::get_if<Sound>(&request)) {
            listener.hear(sound->samples);
            if (requests.empty())
                listener.look();
        } else if (std::holds_alternative<Drop>(request)) {
            listener.drop();
        } else {
            listener.end();
            say({{u"ended"_s, true}});
        }
    }
}

/// Reads requests until standard input ends.
void read(RequestQueue &requests) {
    std::vector<char> line(longestLine);
    while (std::cin.getline(line.data(), longestLine)) {
        if (auto request = parseRequest(QByteArray(line.data())))
            requests.put(std::move(*request));
    }
    if (!std::cin.eof())
        throw ProtocolError("A line is too long.");
}

int run(const QString &models, const QString &model) {
    const Recogniser recogniser(ModelFiles(models, model));
    const auto activity = recogniser.voiceActivity();
    RequestQueue requests;
    say({{u"ready"_s, true}, {u"model"_s, model}});
    std::jthread listening([&] { listen(recogniser, *activity, requests); });
    const auto close = qScopeGuard([&] { requests.put(Close{}); });
    read(requests);
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"kiv-speech"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
    std::signal(SIGPIPE, SIG_IGN);
    std::ios::sync_with_stdio(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Turns sound into words."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption models(u"models"_s, u"The folder of the models."_s, u"folder"_s,
                                    QCoreApplication::applicationDirPath() +
                                        u"/../share/kiv/speech"_s);
    const QCommandLineOption model(u"model"_s, u"base, or tiny: smaller and less exact."_s,
                                   u"name"_s, u"base"_s);
    parser.addOptions({models, model});
    parser.process(application);
    if (!QStringList{u"base"_s, u"tiny"_s}.contains(parser.value(model)))
        return fail("There are the models base and tiny.", ModelError::Missing);
    try {
        return run(parser.value(models), parser.value(model));
    } catch (const ModelError &error) {
        return fail(error.what(), error.kind());
    } catch (const ProtocolError &error) {
        constexpr int protocolFault = 4;
        return fail(error.what(), protocolFault);
    }
}
