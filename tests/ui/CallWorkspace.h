#pragma once

#include "ScriptedPage.h"
#include "ScriptedVoice.h"
#include "ui/Workspace.h"

namespace kiv::ui {

/// A workspace in which calls can be made: the test speaks for the voice service.
class CallWorkspace : public Workspace {
public:
    CallWorkspace();
    ~CallWorkspace();

    /// Presses the call button; true when the service is asked to connect.
    bool call();
    /// Of a call that the window has begun: true when the service is asked to connect.
    bool dialled();
    /// Calls and connects.
    bool talk();
    /// Lets this much time of the call pass.
    void pass(std::chrono::seconds time);

    // What the service has to say.
    void connectCall();
    void hear(const QString &who, const QString &words, bool partial = false);
    void speaking(bool speaking);
    void drop();

    /// A short conversation with something in both alphabets.
    void converse();

    test::ScriptedMicrophones microphones;

private:
    void post(const QVariantMap &message);

    test::ScriptedPages m_pages;
};

/// Past calls as the server lists them, newest first, and what was said in one.
QByteArray pastCalls();
QByteArray pastTranscript();

} // namespace kiv::ui
