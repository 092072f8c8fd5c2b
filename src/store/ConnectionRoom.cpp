#include "store/ConnectionRoom.h"

#include "store/AppStore.h"

namespace kiv::store {

ConnectionRoom::ConnectionRoom(AppStore &store) : m_store(store) {
    connect(store.net().environment().connectivity, &net::Connectivity::changed, this,
            &ConnectionRoom::look);
}

void ConnectionRoom::look() {
    const QUrl &server = m_store.net().baseUrl();
    const bool before = m_offline;
    m_serverDown = m_store.net().environment().connectivity->isServerDown();
    m_offline = !server.isEmpty() && !m_store.net().environment().connectivity->reaches(server);
    if (before && !m_offline)
        m_store.chat()->refresh();
}

void ConnectionRoom::retryNow() {
    m_store.net().environment().connectivity->probe(m_store.net().baseUrl());
}

void ConnectionRoom::startAgain() {
    m_failure = QString();
    Q_EMIT startRequested();
}

} // namespace kiv::store
