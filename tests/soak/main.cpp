// kiv-soak: the client in hard use, against the real server.

#include "soak/Soak.h"

#include <QCommandLineParser>
#include <QRandomGenerator>

#ifdef KIV_SOAK_WINDOW
#include "app/Application.h"

#include <QGuiApplication>
#endif

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

#ifdef KIV_SOAK_WINDOW
using Base = QGuiApplication;
#else
using Base = QCoreApplication;
#endif

/// Tells the meter of the main thread what is delivered there.
class SoakApplication : public Base {
public:
    using Base::Base;

    bool notify(QObject *receiver, QEvent *event) override {
        kiv::soak::MainThread *meter = kiv::soak::MainThread::running();
        if (!meter || QThread::currentThread() != thread())
            return Base::notify(receiver, event);
        const QPointer<QObject> alive(receiver);
        meter->enter();
        const bool taken = Base::notify(receiver, event);
        meter->leave(alive, event);
        return taken;
    }
};

} // namespace

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }
#ifdef KIV_SOAK_WINDOW
    kiv::app::Application::prepareProcess();
#endif
    SoakApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Puts the client to hard use."_s);
    parser.addHelpOption();
    const QCommandLineOption seed(u"seed"_s, u"The seed of every choice; by chance without."_s,
                                  u"number"_s);
    const QCommandLineOption minutes(u"minutes"_s, u"How long the run takes."_s, u"number"_s,
                                     u"2"_s);
    const QCommandLineOption hold(u"hold"_s,
                                  u"How long the main thread may be held, in milliseconds."_s,
                                  u"number"_s, u"100"_s);
    const QCommandLineOption shared(
        u"shared"_s, u"Others use this machine: only what the main thread works counts as held."_s);
    parser.addOptions({seed, minutes, hold, shared});
    parser.process(application);
    const quint64 chosen = parser.isSet(seed) ? parser.value(seed).toULongLong()
                                              : QRandomGenerator::system()->generate();
    std::printf("kiv-soak --seed %llu --minutes %s\n", static_cast<unsigned long long>(chosen),
                qPrintable(parser.value(minutes)));
    std::fflush(stdout);
    kiv::soak::Soak run(chosen, std::chrono::seconds(qRound(parser.value(minutes).toDouble() * 60)),
                        {.longest = std::chrono::milliseconds(parser.value(hold).toInt()),
                         .onlyWork = parser.isSet(shared)});
    return run.run() ? 0 : 1;
}
