#include "EngineVoicePage.h"

#include "base/BaseUrl.h"
#include "voice/VoicePageText.h"

#include <QFile>
#include <QWebEngineNavigationRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

namespace kiv::web {

using namespace Qt::StringLiterals;

namespace {

QString sourceOf(const QString &name) {
    QFile file(name);
    if (!file.open(QFile::ReadOnly))
        qFatal("%s is missing from the plugin", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

} // namespace

EngineVoicePage::EngineVoicePage(voice::VoicePageWatcher &watcher)
    : m_port(watcher), m_page(&m_profile) {
    m_profile.setUrlRequestInterceptor(&m_gate);
    QWebEngineSettings *settings = m_page.settings();
    settings->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, false);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    m_channel.registerObject(u"port"_s, &m_port);
    m_page.setWebChannel(&m_channel, QWebEngineScript::MainWorld);
    connect(&m_page, &QWebEnginePage::featurePermissionRequested, this, &EngineVoicePage::decide);
    connect(&m_page, &QWebEnginePage::renderProcessTerminated, this,
            [&watcher] { watcher.pageGone(); });
    // It is the page that was given, and stays it.
    connect(&m_page, &QWebEnginePage::navigationRequested, this,
            [this](QWebEngineNavigationRequest &request) {
                if (!m_loading)
                    request.reject();
            });
    connect(&m_page, &QWebEnginePage::loadFinished, this, [this] { m_loading = false; });
}

EngineVoicePage::~EngineVoicePage() = default;

void EngineVoicePage::loadHtml(const QString &html, const QUrl &baseUrl) {
    m_gate.setHome(baseUrl);
    inject();
    m_loading = true;
    m_page.setHtml(html, baseUrl);
}

void EngineVoicePage::inject() {
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setSourceCode(sourceOf(u":/qtwebchannel/qwebchannel.js"_s) +
                         sourceOf(u":/kiv/web/port.js"_s) + sourceOf(u":/kiv/web/microphone.js"_s) +
                         microphoneScript());
    m_page.scripts().clear();
    m_page.scripts().insert(script);
}

void EngineVoicePage::evaluate(const QString &script) {
    m_page.runJavaScript(script);
}

QString EngineVoicePage::microphoneScript() const {
    return u"window.__microphone = "_s + voice::VoicePageText::jsString(m_microphone) + u';';
}

void EngineVoicePage::setMicrophone(const QString &name) {
    m_microphone = name;
    evaluate(microphoneScript());
}

void EngineVoicePage::setAudible(bool audible) {
    m_page.setAudioMuted(!audible);
}

void EngineVoicePage::decide(const QUrl &origin, QWebEnginePage::Feature feature) {
    const bool isOurs =
        feature == QWebEnginePage::MediaAudioCapture && isSameOrigin(origin, m_gate.home());
    m_page.setFeaturePermission(origin, feature,
                                isOurs ? QWebEnginePage::PermissionGrantedByUser
                                       : QWebEnginePage::PermissionDeniedByUser);
}

} // namespace kiv::web
