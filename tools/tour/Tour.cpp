#include "Tour.h"

#include <QElapsedTimer>
#include <QTest>

#include <cstdio>

namespace kiv::tour {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Long enough for an answer to be thought about, written and settled.
constexpr auto answerPatience = 30s;
/// Sheets and scenes come in with a movement: what is drawn after it stands still.
constexpr auto entrance = 900ms;

} // namespace

QList<Stop> stops() {
    return {
        {u"Weekly report"_s, u"report"_s, u"report"_s},
        {u"Compare the hosting options"_s, u"compare"_s, u"compare"_s},
        {u"Where are we against the plan?"_s, u"compare"_s, u"figures-as-table"_s},
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
    return all;
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

bool Tour::visit(const Stop &stop) {
    store::CanvasRoom *canvas = m_application.store().canvas();
    if (!m_driver.click(u"askField"_s))
        return false;
    m_driver.type(stop.question);
    m_driver.press(Qt::Key_Return);
    QElapsedTimer sinceReturn;
    sinceReturn.start();
    m_driver.waitFor([&] { return canvas->phase() == store::Phase::Thinking; }, 2s);
    m_driver.waitFor([] { return false; }, 300ms);
    save(stop.file + u"-thinking"_s);
    const bool drawn = m_driver.waitFor(
        [&] { return canvas->phase() == store::Phase::Done && canvas->art() == stop.art; },
        answerPatience);
    const double seconds = static_cast<double>(sinceReturn.elapsed()) / 1000;
    m_driver.waitFor([&] { return !canvas->awaitingAnswer(); }, answerPatience);
    rest();
    const QString file = save(stop.file);
    std::printf("%s\t%s\t%.2f s\t%s\n", qUtf8Printable(stop.question),
                drawn ? qUtf8Printable(stop.art) : "not drawn", seconds, qUtf8Printable(file));
    std::fflush(stdout);
    return drawn;
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
