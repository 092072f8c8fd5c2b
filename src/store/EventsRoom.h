#pragma once

#include "base/Work.h"
#include "net/ProjectRecords.h"

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
    Q_PROPERTY(bool eventsLoading READ eventsLoading NOTIFY eventsLoadingChanged)
public:
    explicit EventsRoom(AppStore &store);

    const QList<net::KivAPI::ProjectEvent> &events() const { return m_events; }
    bool eventsLoading() const { return m_eventsLoading; }
    void loadEvents();
    void clear();

Q_SIGNALS:
    void eventsChanged();
    void eventsLoadingChanged();

private:
    QCoro::Task<void> load(QString project, Cancel cancel);

    AppStore &m_store;
    QString m_project; ///< whose events these are
    QList<net::KivAPI::ProjectEvent> m_events;
    Q_OBJECT_BINDABLE_PROPERTY(EventsRoom, bool, m_eventsLoading, &EventsRoom::eventsLoadingChanged)
    Work m_load;
};

} // namespace kiv::store
