#pragma once

#include "base/Work.h"
#include "store/EventModel.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

class AppStore;

/// The event feed of the current project.
class EventsRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::EventModel *events READ events CONSTANT)
    Q_PROPERTY(bool eventsLoading READ eventsLoading NOTIFY eventsLoadingChanged)
public:
    explicit EventsRoom(AppStore &store);

    EventModel *events() { return &m_events; }
    bool eventsLoading() const { return m_eventsLoading; }
    /// Asks for the events of the current project; the ones of before stay until they are here.
    Q_INVOKABLE void loadEvents();
    void clear();

Q_SIGNALS:
    void eventsLoadingChanged();

private:
    QCoro::Task<void> load(QString project, Cancel cancel);

    AppStore &m_store;
    QString m_project; ///< whose events these are
    EventModel m_events;
    Q_OBJECT_BINDABLE_PROPERTY(EventsRoom, bool, m_eventsLoading, &EventsRoom::eventsLoadingChanged)
    Work m_load;
};

} // namespace kiv::store
