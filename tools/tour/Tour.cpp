#include "Tour.h"

#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

namespace kiv::tour {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Long enough for an answer to be thought about, written and settled.
constexpr auto answerPatience = 30s;
/// Sheets and scenes come in with a movement: what is drawn after it stands still.
constexpr auto entrance = 900ms;
/// PageHost::Shown
constexpr int shownPage = 1;

} // namespace

QList<Stop> stops() {
    return {
        {u"Weekly report"_s, u"report"_s},
        {u"Compare the hosting options"_s, u"compare"_s},
        {u"Should we build or buy invoicing?"_s, u"decision"_s},
        {u"Who does what for the release?"_s, u"agents"_s},
        {u"Where are we against the plan?"_s, u"status"_s},
        {u"How is the trial funnel?"_s, u"funnel"_s},
        {u"What does one invoice cost us?"_s, u"unit"_s},
        {u"What needs me today?"_s, u"brief"_s},
        {u"Show the retro"_s, u"retro"_s},
        {u"Where does the money go?"_s, u"costs"_s},
        {u"Cash flow of the last months"_s, u"cashflow"_s},
        {u"How are the goals?"_s, u"okr"_s},
        {u"Who is overloaded?"_s, u"workload"_s},
        {u"Are we within budget?"_s, u"budget"_s},
    };
}

Tour::Tour(app::Application &application, const QDir &pictures)
    : m_application(application), m_driver(application.window()), m_pictures(pictures) {}

bool Tour::take() {
    if (!signUp()) {
        std::fprintf(stderr, "Signing up did not work.\n");
        save(u"failed-sign-up"_s);
        return false;
    }
    bool all = true;
    for (const Stop &stop : stops())
        all = visit(stop) && all;
    return visitPage() && converse() && placeCall() && all;
}

bool Tour::signUp() {
    store::AppStore &store = m_application.store();
    auto phase = [&] { return store.scope()->auth(); };
    if (!m_driver.waitFor([&] { return phase() == store::AuthPhase::Anon; }))
        return false;
    save(u"signed-out"_s);
    if (!m_driver.click(u"signInButton"_s) || !m_driver.click(u"switchAuthMode"_s))
        return false;
    if (!m_driver.click(u"emailField"_s))
        return false;
    m_driver.type(u"founder@example.org"_s);
    m_driver.press(Qt::Key_Tab);
    m_driver.type(u"correct horse"_s);
    rest();
    save(u"sign-up"_s);
    m_driver.press(Qt::Key_Return);
    if (!m_driver.waitFor([&] {
            return phase() == store::AuthPhase::SignedIn && store.scope()->chatTarget() &&
                   store.chat()->msgs()->count() > 0;
        }))
        return false;
    rest();
    save(u"signed-in"_s);
    return true;
}

bool Tour::ask(const QString &question) {
    if (!m_driver.click(u"askField"_s))
        return false;
    m_driver.type(question);
    m_driver.press(Qt::Key_Return);
    return true;
}

bool Tour::visit(const Stop &stop) {
    store::CanvasRoom *canvas = m_application.store().canvas();
    if (!ask(stop.question))
        return false;
    QElapsedTimer sinceReturn;
    sinceReturn.start();
    m_driver.waitFor([&] { return canvas->phase() == store::Phase::Thinking; }, 2s);
    m_driver.waitFor([] { return false; }, 300ms);
    save(stop.art + u"-thinking"_s);
    const bool drawn = m_driver.waitFor(
        [&] { return canvas->phase() == store::Phase::Done && canvas->art() == stop.art; },
        answerPatience);
    const double seconds = static_cast<double>(sinceReturn.elapsed()) / 1000;
    m_driver.waitFor([&] { return !canvas->awaitingAnswer(); }, answerPatience);
    rest();
    const QString file = save(stop.art);
    std::printf("%s\t%s\t%.2f s\t%s\n", qUtf8Printable(stop.question),
                drawn ? qUtf8Printable(stop.art) : "not drawn", seconds, qUtf8Printable(file));
    std::fflush(stdout);
    return drawn;
}

bool Tour::visitPage() {
    if (!ask(u"Open the dashboard of Orchard"_s))
        return false;
    const bool shown = m_driver.waitFor(
        [&] {
            const QQuickItem *page = m_driver.find(u"page"_s);
            return page && page->property("state").toInt() == shownPage;
        },
        answerPatience);
    rest();
    const QString file = save(u"page"_s);
    std::printf("Open the dashboard of Orchard\t%s\t%s\n", shown ? "page" : "no page",
                qUtf8Printable(file));
    std::fflush(stdout);
    return shown;
}

bool Tour::converse() {
    store::AppStore &store = m_application.store();
    if (!m_driver.click(u"historyButton"_s))
        return false;
    rest();
    save(u"history"_s);
    m_driver.press(Qt::Key_Escape);
    store.layout()->toggleDock();
    if (!ask(u"Explain how work gets done here"_s) || !answered())
        return false;
    save(u"markdown"_s);
    if (!ask(u"What next?"_s) || !answered() || !m_driver.find(u"replyChip:0"_s))
        return false;
    save(u"chips"_s);

    QFile plan(m_pictures.filePath(u"release-plan.csv"_s));
    if (!plan.open(QFile::WriteOnly) || plan.write("stage,weeks\nbuild,6\ntest,2\n") < 0)
        return false;
    plan.close();
    store.attachments()->uploadChatFiles({QUrl::fromLocalFile(plan.fileName())});
    if (!m_driver.waitFor([&] { return store.attachments()->chatFiles()->count() == 1; }))
        return false;
    rest();
    save(u"attached"_s);
    if (!ask(u"Keep this plan"_s) || !answered())
        return false;
    save(u"attachment-sent"_s);
    return true;
}

bool Tour::placeCall() {
    store::CallRoom *call = m_application.store().call();
    const auto lines = [call](bool owner) {
        QStringList said;
        for (const store::CallLine &line : call->callTranscript()->lines()) {
            if (line.isOwner() == owner && line.kind == store::CallLineKind::Speech &&
                !line.isPartial())
                said.append(line.text);
        }
        return said;
    };
    if (!m_driver.click(u"callButton"_s))
        return false;
    const bool connected =
        m_driver.waitFor([&] { return call->callPhase() == store::CallPhase::Active; });
    rest();
    save(u"call"_s);
    // A greeting, a question from the microphone, and its answer.
    const bool isAnswered =
        connected &&
        m_driver.waitFor([&] { return !lines(true).isEmpty() && lines(false).size() > 1; },
                         answerPatience);
    rest();
    const QString file = save(u"call-transcript"_s);
    std::printf("%s\t%s\t%s\n",
                lines(true).isEmpty() ? "A call" : qUtf8Printable(lines(true).first()),
                isAnswered ? qUtf8Printable(lines(false).last()) : "no answer in the call",
                qUtf8Printable(file));
    std::fflush(stdout);
    call->hangupCall();
    m_driver.waitFor([&] { return !call->call(); });
    rest();
    save(u"call-ended"_s);
    return isAnswered;
}

bool Tour::answered() const {
    store::AppStore &store = m_application.store();
    const bool whole =
        m_driver.waitFor([&] { return !store.canvas()->awaitingAnswer(); }, answerPatience);
    rest();
    return whole;
}

void Tour::rest() const {
    m_driver.waitFor([] { return false; }, entrance);
}

QString Tour::save(const QString &name) const {
    const QString path = m_pictures.filePath(name + u".png"_s);
    if (!m_driver.picture().save(path))
        std::fprintf(stderr, "The picture %s cannot be written.\n", qUtf8Printable(path));
    return path;
}

} // namespace kiv::tour
