#pragma once

#include "Accounts.h"
#include "Answerer.h"
#include "AttemptLimit.h"
#include "ChatHub.h"
#include "ChatStore.h"
#include "Database.h"
#include "Faults.h"
#include "Files.h"
#include "Options.h"
#include "SampleAccount.h"
#include "Sessions.h"
#include "Workspace.h"
#include "voice/CallStore.h"
#include "voice/CallWitness.h"

#include <mutex>

namespace kiv::sandbox {

/// Everything the routes work with, in the order in which one builds on the other.
struct Services {
    explicit Services(const Options &chosen)
        : options(chosen),
          database(chosen.dataDir + QStringLiteral("/workspace.sqlite")),
          accounts(database, chosen.seed),
          sessions(database),
          sample(chosen.dataDir, accounts),
          workspace(database),
          files(database, chosen.dataDir),
          chats(database),
          calls(database),
          answerer(chats, hub, chosen.answerPace) {
        faults.set(chosen.faults);
    }

    const Options options;
    Database database;
    Accounts accounts;
    Sessions sessions;
    AttemptLimit attempts;
    SampleAccount sample;
    Workspace workspace;
    Files files;
    ChatStore chats;
    CallStore calls;
    CallWitness witness;
    ChatHub hub;
    Faults faults;
    Answerer answerer;
    std::mutex asking; ///< of who stores a question and begins its answer
};

} // namespace kiv::sandbox
