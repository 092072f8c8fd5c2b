#include "ShownProgram.h"

#include "app/Application.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void waitFor(const char *what, const std::function<bool()> &holds) {
    if (!QTest::qWaitFor(holds, 20'000))
        qFatal("The workspace has not %s", what);
}

void signUpAndAsk(store::AppStore &store) {
    waitFor("come up", [&] { return store.scope()->auth() == store::AuthPhase::Anon; });
    store.session()->openAuthSheet(store::AuthSheetMode::Signup);
    store.session()->submitAuth(u"ada@example.org"_s, u"difference engine"_s, true);
    waitFor("let anybody in", [&] {
        return store.scope()->auth() == store::AuthPhase::SignedIn && store.scope()->chatTarget();
    });
    store.chat()->send(u"Weekly report"_s);
    waitFor("answered", [&] {
        return store.canvas()->phase() == store::Phase::Done && !store.canvas()->awaitingAnswer();
    });
}

/// Every loop says when a frame is shown, and the renderer that there was something to draw in it.
bool showsFrame(const QByteArray &said) {
    const qsizetype drawn = said.indexOf("time in renderer");
    return drawn >= 0 && said.indexOf("rame rendered", drawn) >= 0;
}

} // namespace

ShownProgram::ShownProgram(const Display &display, const QString &program,
                           const QStringList &arguments) {
    QProcessEnvironment environment = display.environment();
    environment.insert(u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop=true;"
                                              "qt.scenegraph.time.renderer=true;"
                                              "qt.rhi.general=true"_s);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    QElapsedTimer timer;
    timer.start();
    m_process.start(program, arguments);
    while (!showsFrame(m_said)) {
        if (!m_process.waitForReadyRead(20'000))
            qFatal("%s shows no frame: %s", qPrintable(program), m_said.constData());
        m_said += m_process.readAll();
    }
    m_firstFrame = static_cast<double>(timer.nsecsElapsed());
}

ShownProgram::~ShownProgram() {
    m_process.terminate();
    if (!m_process.waitForFinished(5000))
        m_process.kill();
    m_process.waitForFinished();
}

QString ShownProgram::renderer() const {
    static const QRegularExpression name(u"OpenGL .*RENDERER: (.*) VERSION:"_s);
    const QRegularExpressionMatch found = name.match(QString::fromUtf8(m_said));
    if (found.hasMatch())
        return u"OpenGL, "_s + found.captured(1);
    return m_said.contains("'software' renderloop") ? u"Qt's painter"_s : u"not known"_s;
}

double ShownProgram::memory() const {
    const QByteArray sums = contentOf(u"/proc/%1/smaps_rollup"_s.arg(m_process.processId()));
    for (const QByteArray &line : sums.split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).simplified().split(' ').first().toDouble() * 1024;
    }
    qFatal("No memory is known of the process");
}

double ShownProgram::worked() const {
    const QDir tasks(u"/proc/%1/task"_s.arg(m_process.processId()));
    double sum = 0;
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        sum += contentOf(tasks.filePath(task + u"/schedstat"_s)).split(' ').first().toDouble();
    return sum;
}

const QString &signedInProfile() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        app::Options options;
        options.places = app::Places::below(folder.path());
        options.sandboxArguments = {u"--answer-speed"_s, u"0"_s};
        app::Application program(options);
        program.start();
        signUpAndAsk(program.store());
        return folder.path();
    }();
    return path;
}

} // namespace kiv::bench
