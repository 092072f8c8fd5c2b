#pragma once

#include <QString>

namespace kiv::app {

/// Where the program keeps what is its own, and where its helpers stand.
struct Places {
    QString settingsFile;   ///< what the person set
    QString cookieFile;     ///< the session: readable by this user only
    QString draftsFile;     ///< what is being typed: readable by this user only
    QString workspaceDir;   ///< data of the embedded workspace
    QString sandboxProgram; ///< the embedded workspace server
    QString webPlugin;      ///< what shows pages, its file's ending left out
    QString micPlugin;      ///< what knows the microphones, likewise

    /// The user's own folders and the helpers installed beside the program.
    static Places standard();
    /// Everything below `folder`: a profile of its own.
    static Places below(const QString &folder);
};

} // namespace kiv::app
