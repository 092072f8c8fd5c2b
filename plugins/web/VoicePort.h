#pragma once

#include "voice/VoicePage.h"

#include <QObject>

namespace kiv::web {

/// What a voice page can call: its messages come in here.
class VoicePort : public QObject {
    Q_OBJECT
public:
    explicit VoicePort(voice::VoicePageWatcher &watcher) : m_watcher(watcher) {}

    Q_INVOKABLE void post(const QString &channel, const QVariant &body) {
        m_watcher.pageMessage(channel, body);
    }

private:
    voice::VoicePageWatcher &m_watcher;
};

} // namespace kiv::web
