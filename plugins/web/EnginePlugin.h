#pragma once

#include "web/WebPlugin.h"

#include <QObject>

namespace kiv::web {

/// The plugin on Qt WebEngine.
class EnginePlugin : public QObject, public WebPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIV_WEB_PLUGIN)
    Q_INTERFACES(kiv::web::WebPlugin)
public:
    QString refusal() const override;
    QString callRefusal() const override;
    std::unique_ptr<Page> makePage(QQmlEngine &engine, const PageWish &wish,
                                   PageWatcher &watcher) override;
    std::unique_ptr<voice::VoicePage> makeVoicePage(bool dark,
                                                    voice::VoicePageWatcher &watcher) override;

private:
    void startEngine(bool dark);

    bool m_started = false;
};

} // namespace kiv::web
