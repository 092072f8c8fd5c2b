#include "store/EventsRoom.h"

#include "net/KivAPI.h"
#include "store/AppStore.h"

namespace kiv::store {

namespace {
constexpr int eventLimit = 50;
}

EventsRoom::EventsRoom(AppStore &store) : m_store(store), m_events(store.clock()) {}

void EventsRoom::loadEvents() {
    const auto project = m_store.scope()->currentProject();
    if (m_store.isSnapshot() || !project)
        return;
    m_events.refreshAges();
    if (project->id != m_project) {
        clear();
        m_project = project->id;
    }
    m_load.restart([this, id = project->id](Cancel cancel) { return load(id, std::move(cancel)); });
}

QCoro::Task<void> EventsRoom::load(QString project, Cancel cancel) {
    m_eventsLoading = true;
    try {
        m_events.replaceAll(
            co_await net::KivAPI::projectEvents(&m_store.net(), project, eventLimit, cancel));
    } catch (const std::exception &) {
        // The events of before stay.
        cancel.throwIfRequested();
    }
    m_eventsLoading = false;
}

void EventsRoom::clear() {
    m_load.cancel();
    m_eventsLoading = false;
    m_project = QString();
    m_events.replaceAll({});
}

} // namespace kiv::store
