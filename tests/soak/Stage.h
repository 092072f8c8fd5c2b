#pragma once

#include "soak/JumpingClock.h"
#include "soak/Ledger.h"
#include "soak/MainThread.h"
#include "soak/Program.h"
#include "soak/Random.h"
#include "soak/Server.h"
#include "support/TestConnectivity.h"

#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <memory>

namespace kiv::soak {

class Screen;

/// Somebody with an account.
struct User {
    QString email;
    QString password;
};

/// Everything that a step acts on and a check looks at.
struct Stage {
    explicit Stage(quint64 seed);
    ~Stage();

    store::AppStore &store() { return program->store(); }
    /// The conversation that the screen shows; nothing while there is none.
    std::optional<Chat> chat();

    /// Starts the program, or ends it.
    void open();
    void close();

    /// What was typed by whoever has asked to sign out is dropped once they are out.
    void takeLeave();

    void note(const QString &step);
    /// The first failure ends the run.
    void fail(const QString &what);

    QTemporaryDir folder;
    Random random;
    JumpingClock clock;
    test::TestConnectivity cable;
    bool isCableIn = true;
    bool isFrozen = false;
    Server server{folder.filePath(QStringLiteral("server"))};
    QList<User> users;
    Ledger ledger;
    MainThread thread;
    std::unique_ptr<Program> program;
    std::unique_ptr<Screen> screen;
    std::optional<Chat> entered; ///< the conversation that was looked at last
    QString leaving;             ///< who has asked to sign out
    bool isCleared = false;      ///< the conversation was taken off the screen

    QString failure;
    int steps = 0;
    std::map<QString, int> tally;
    QStringList lastSteps;
};

} // namespace kiv::soak
