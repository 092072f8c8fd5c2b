#pragma once

#include "RequestGate.h"
#include "VoicePort.h"
#include "voice/VoicePage.h"

#include <QObject>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineProfile>

namespace kiv::web {

/// What its scripts say to themselves does not belong in the program's log.
class QuietPage : public QWebEnginePage {
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int,
                                  const QString &) override {}
};

/// A voice page on Qt WebEngine: without a view, with a profile of its own that is never written
/// to the disk, and with the microphone for the host alone that it was loaded from.
class EngineVoicePage : public QObject, public voice::VoicePage {
    Q_OBJECT
public:
    explicit EngineVoicePage(voice::VoicePageWatcher &watcher);
    ~EngineVoicePage() override;

    void loadHtml(const QString &html, const QUrl &baseUrl) override;
    void evaluate(const QString &script) override;
    void setMicrophone(const QString &name) override;
    void setAudible(bool audible) override;

private:
    void inject();
    QString microphoneScript() const;
    void decide(const QUrl &origin, QWebEnginePage::Feature feature);

    QString m_microphone;
    bool m_loading = false;
    VoicePort m_port;
    QWebChannel m_channel;
    RequestGate m_gate;
    QWebEngineProfile m_profile; ///< without a name: off the record
    QuietPage m_page;            ///< last: it goes before its profile
};

} // namespace kiv::web
