#include "soak/Stage.h"

#include "soak/Screen.h"

#include <malloc.h>

namespace kiv::soak {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keptSteps = 200;

} // namespace

Stage::Stage(quint64 seed) : random(seed) {}

Stage::~Stage() {
    close();
}

std::optional<Chat> Stage::chat() {
    const auto &connected = store().chat()->connected();
    if (!connected)
        return std::nullopt;
    return ledger.known({store().scope()->userEmail(), connected->chatPath()});
}

void Stage::open() {
    const MainThread::OwnDoing starting(thread);
    program = std::make_unique<Program>(clock, cable, folder.path(), server.url());
    screen = std::make_unique<Screen>(*this);
}

void Stage::close() {
    const MainThread::OwnDoing ending(thread);
    if (program)
        takeLeave();
    leaving.clear();
    screen.reset();
    program.reset();
    // As the end of its process would: what the allocator keeps of it is not the next one's.
    ::malloc_trim(0);
    entered.reset();
    isCleared = false;
    ledger.messages.clear(); // no other program shows any of them
}

/// Signing out by oneself drops what was typed; a session that expires opens the sheet.
void Stage::takeLeave() {
    if (store().scope()->auth() != store::AuthPhase::Anon)
        return;
    const QString user = std::exchange(leaving, QString());
    if (!user.isEmpty() && store().session()->authSheet() == store::AuthSheetMode::Closed)
        ledger.dropAll(user);
}

void Stage::note(const QString &step) {
    lastSteps.append(u"%1  %2 s  %3"_s.arg(steps, 6)
                         .arg(static_cast<double>(clock.elapsed().count()) / 1000, 9, 'f', 2)
                         .arg(step));
    if (lastSteps.size() > keptSteps)
        lastSteps.removeFirst();
}

void Stage::fail(const QString &what) {
    if (failure.isEmpty())
        failure = what;
}

} // namespace kiv::soak
