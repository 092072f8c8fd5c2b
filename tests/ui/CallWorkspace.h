#pragma once

#include "ui/Workspace.h"
#include "voice/VoicePage.h"

namespace kiv::ui {

/// A workspace in which calls can be made: the test speaks for the voice service.
class CallWorkspace : public Workspace, private voice::VoicePages {
public:
    CallWorkspace();
    ~CallWorkspace() override;

    /// Presses the call button and waits until the screen is up.
    bool call();
    /// The same until the call is connected.
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

    /// The scripts that the page was given.
    const QStringList &scripts() const { return m_scripts; }

private:
    class Page;

    QString refusal() override { return {}; }
    std::unique_ptr<voice::VoicePage> makePage(voice::VoicePageWatcher &watcher) override;
    void post(const QVariantMap &message);

    voice::VoicePageWatcher *m_watcher = nullptr;
    QStringList m_scripts;
};

/// Past calls as the server lists them, newest first, and what was said in one.
QByteArray pastCalls();
QByteArray pastTranscript();

} // namespace kiv::ui
