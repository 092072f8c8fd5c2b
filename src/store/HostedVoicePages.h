#pragma once

#include "voice/VoicePage.h"

namespace kiv::store {

class AppStore;

/// The pages of calls that the store's web host makes.
class HostedVoicePages : public voice::VoicePages {
public:
    explicit HostedVoicePages(AppStore &store) : m_store(store) {}

    QString refusal() override;
    std::unique_ptr<voice::VoicePage> makePage(voice::VoicePageWatcher &watcher) override;

private:
    AppStore &m_store;
};

} // namespace kiv::store
