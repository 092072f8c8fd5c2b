#pragma once

#include "VoicePort.h"
#include "voice/VoicePage.h"

#include <QObject>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineProfile>

namespace kiv::web {

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

    QUrl m_home;
    QString m_microphone;
    bool m_loading = false;
    VoicePort m_port;
    QWebChannel m_channel;
    QWebEngineProfile m_profile; ///< without a name: off the record
    QWebEnginePage m_page;       ///< last: it goes before its profile
};

} // namespace kiv::web
