#include "soak/Steps.h"

#include "soak/PersonSteps.h"
#include "soak/Stage.h"
#include "soak/WorldSteps.h"

namespace kiv::soak {

namespace {

// clang-format off
const Step steps[] = {
    // What a person does
    {"ask",               14, isInChat,     ask},
    {"ask from canvas",    4, isInChat,     askFromCanvas},
    {"type",              12, isInChat,     type},
    {"clear the draft",    1, isInChat,     clearDraft},
    {"attach files",       5, isInChat,     attach},
    {"take a file off",    2, hasFiles,     removeFile},
    {"upload again",       2, hasFiles,     uploadAgain},
    {"send again",         5, hasFailed,    retry},
    {"edit a message",     3, isInChat,     edit},
    {"ask again",          1, isInChat,     askAgain},
    {"ask the turn again", 1, hasFailed,    retryTurn},
    {"pick a reply",       2, isInChat,     pickReply},
    {"stop",               4, canStop,      stop},
    {"go elsewhere",      14, isSignedIn,   changeScope},
    {"new chat",           1, isInChat,     newChat},
    {"older messages",     2, isInChat,     showOlder},
    {"find",               3, isInChat,     find},
    {"walk the history",   3, isSignedIn,   walkHistory},
    {"events",             3, isSignedIn,   showEvents},
    {"edit the profile",   4, isSignedIn,   editProfile},
    {"move the panels",    4, always,       movePanels},
    {"another look",       1, always,       changeLook},
    {"sign out",           1, isSignedIn,   signOut},
    {"sign in",           12, isSignedOut,  signIn},
    {"start anew",         2, always,       reopen},
    // What the world does
    {"faults",            12, always,       strike},
    {"no faults",          5, always,       relent},
    {"kill the server",    2, isServerUp,   killServer},
    {"freeze the server",  2, isServerUp,   freezeServer},
    {"the server is back",12, isServerDown, reviveServer},
    {"pull the cable",     1, isOnline,     pullCable},
    {"plug the cable in", 15, isOffline,    plugCable},
    {"sleep",              3, always,       sleep},
    {"set the clock",      1, always,       setWall},
};
// clang-format on

} // namespace

const Step &nextStep(Stage &stage) {
    int sum = 0;
    for (const Step &step : steps)
        sum += step.isPossible(stage) ? step.weight : 0;
    auto left = static_cast<int>(stage.random.below(sum));
    for (const Step &step : steps) {
        left -= step.isPossible(stage) ? step.weight : 0;
        if (left < 0)
            return step;
    }
    Q_UNREACHABLE();
}

} // namespace kiv::soak
