#include "soak/WorldSteps.h"

#include "soak/Stage.h"

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct FaultKind {
    const char16_t *name; ///< with "%1" for the value
    int least;
    int most;
    int mostTimes; ///< requests that it strikes; 0 for as many as come
};

// clang-format off
constexpr FaultKind kinds[] = {
    {u"latency=%1",         20, 2000, 0},
    {u"status=401",          0,    0, 1}, // ends the session when it meets a message
    {u"status=403",          0,    0, 4},
    {u"status=429",          0,    0, 4},
    {u"status=500",          0,    0, 4},
    {u"status=503",          0,    0, 0},
    {u"html=502",            0,    0, 4},
    {u"html=200",            0,    0, 2},
    {u"bad-json",            0,    0, 4},
    {u"close",               0,    0, 4},
    {u"slow=%1",             1,    3, 6},
    {u"stream-drop=%1",      0,   12, 3},
    {u"half-event=%1",       0,   12, 3},
    {u"half-character=%1",   0,   12, 3},
    {u"stream-stall=%1",     0,   12, 3},
};
constexpr const char16_t *paths[] = {u"", u"", u"/chat", u"/chat", u"/chat/stream", u"/files",
                                     u"/auth/", u"/projects", u"/custom-agents", u"/orchestrator",
                                     u"/user/profile", u"/events"};
constexpr const char16_t *methods[] = {u"", u"", u"GET", u"POST", u"PATCH"};
constexpr std::chrono::milliseconds sleeps[] = {5s, 36s, 61s, 200s, 1h, 9h};
constexpr std::chrono::milliseconds walls[] = {0s, 0s, 10min, 9h, -10min};
// clang-format on

QString randomFault(Random &random) {
    const FaultKind &kind = random.of(kinds);
    QString fault = QString::fromUtf16(kind.name);
    if (kind.most > 0)
        fault = fault.arg(random.between(kind.least, kind.most));
    const QString path = QString::fromUtf16(random.of(paths));
    const QString method = QString::fromUtf16(random.of(methods));
    if (!path.isEmpty())
        fault += u",path="_s + path;
    if (!method.isEmpty())
        fault += u",method="_s + method;
    if (kind.mostTimes > 0)
        fault += u",times=%1"_s.arg(random.between(1, kind.mostTimes));
    return fault;
}

} // namespace

bool always(Stage &) {
    return true;
}

bool isServerUp(Stage &stage) {
    return stage.server.isUp() && !stage.isFrozen;
}

bool isServerDown(Stage &stage) {
    return !isServerUp(stage);
}

bool isOnline(Stage &stage) {
    return stage.isCableIn;
}

bool isOffline(Stage &stage) {
    return !stage.isCableIn;
}

void strike(Stage &stage) {
    QStringList faults;
    for (int left = stage.random.between(1, 3); left > 0; --left)
        faults.append(randomFault(stage.random));
    stage.note(u"  "_s + faults.join(u' '));
    stage.server.setFaults(faults);
}

void relent(Stage &stage) {
    stage.server.setFaults({});
}

void killServer(Stage &stage) {
    stage.server.kill();
}

void freezeServer(Stage &stage) {
    stage.isFrozen = true;
    stage.server.freeze();
}

void reviveServer(Stage &stage) {
    stage.isFrozen = false;
    stage.server.thaw();
    stage.server.start();
}

void pullCable(Stage &stage) {
    stage.isCableIn = false;
    stage.cable.setOnline(false);
}

void plugCable(Stage &stage) {
    stage.isCableIn = true;
    stage.cable.setOnline(true);
}

void sleep(Stage &stage) {
    const auto time = stage.random.of(sleeps);
    stage.note(u"  %1 s"_s.arg(time / 1s));
    stage.clock.sleep(time);
}

void setWall(Stage &stage) {
    const auto ahead = stage.random.of(walls);
    stage.note(u"  %1 s ahead"_s.arg(ahead / 1s));
    stage.clock.setWall(ahead);
}

} // namespace kiv::soak
