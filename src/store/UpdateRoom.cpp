#include "store/UpdateRoom.h"

#include "store/AppStore.h"

namespace kiv::store {

UpdateRoom::UpdateRoom(AppStore &store) : m_store(store) {}

void UpdateRoom::checkForUpdates() {
    if (!m_checkingUpdate)
        m_check.start([this](Cancel cancel) { return check(std::move(cancel)); });
}

QCoro::Task<void> UpdateRoom::check(Cancel cancel) {
    m_checkingUpdate = true;
    offer(co_await net::UpdateCheck::latest(&m_store.net(), m_running, cancel));
    m_checkingUpdate = false;
}

void UpdateRoom::dismiss() {
    offer(std::nullopt);
}

void UpdateRoom::offer(const std::optional<net::UpdateInfo> &update) {
    if (m_update == update)
        return;
    m_update = update;
    Q_EMIT updateChanged();
}

} // namespace kiv::store
