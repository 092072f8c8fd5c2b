#pragma once

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

class AppStore;

/// Whether the backend is within reach.
class ConnectionRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool offline READ offline NOTIFY offlineChanged)
public:
    explicit ConnectionRoom(AppStore &store);

    /// Requests wait for the connection.
    bool offline() const { return m_offline; }

    /// Asks the server itself, whatever the system says.
    Q_INVOKABLE void retryNow();

    /// Takes up what is known of the connection.
    void look();

Q_SIGNALS:
    void offlineChanged();

private:
    AppStore &m_store;
    Q_OBJECT_BINDABLE_PROPERTY(ConnectionRoom, bool, m_offline, &ConnectionRoom::offlineChanged)
};

} // namespace kiv::store
