#pragma once

#include <QString>

namespace kiv::app {

/// Where the program keeps what is its own, and where its helpers stand. What the person set, what
/// must not get lost, and what the program only notes down have folders of their own.
struct Places {
    QString profile;        ///< the folder of a profile of its own; empty for the user's
    QString settingsFile;   ///< what the person set
    QString cookieFile;     ///< the session: readable by this user only
    QString draftsFile;     ///< what is being typed: readable by this user only
    QString workspaceDir;   ///< data of the embedded workspace
    QString stateFile;      ///< where the window was
    QString logFile;        ///< what went wrong
    QString lockFile;       ///< tells that a program runs, where nothing else does
    QString sandboxProgram; ///< the embedded workspace server
    QString webPlugin;      ///< what shows pages, its file's ending left out
    QString micPlugin;      ///< what knows the microphones, likewise

    /// The user's own folders and the helpers installed beside the program.
    static Places standard();
    /// Everything below `folder`: a profile of its own, which shares nothing with the desktop.
    static Places below(const QString &folder);
};

} // namespace kiv::app
