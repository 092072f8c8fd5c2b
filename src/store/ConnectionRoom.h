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
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)
    Q_PROPERTY(bool serverDown READ serverDown NOTIFY serverDownChanged)
public:
    explicit ConnectionRoom(AppStore &store);

    /// Requests wait for the connection.
    bool offline() const { return m_offline; }
    /// They wait for the server of this computer, which is being started again.
    bool serverDown() const { return m_serverDown; }

    /// Why there is no backend to talk to; empty when there is one.
    QString failure() const { return m_failure; }

    /// Asks the server itself, whatever the system says.
    Q_INVOKABLE void retryNow();
    /// Starts the backend that could not be started.
    Q_INVOKABLE void startAgain();

    /// Takes up what is known of the connection.
    void look();
    void setFailure(const QString &why) { m_failure = why; }

Q_SIGNALS:
    void offlineChanged();
    void failureChanged();
    void startRequested();
    void serverDownChanged();

private:
    AppStore &m_store;
    Q_OBJECT_BINDABLE_PROPERTY(ConnectionRoom, bool, m_offline, &ConnectionRoom::offlineChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ConnectionRoom, QString, m_failure, &ConnectionRoom::failureChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ConnectionRoom, bool, m_serverDown,
                               &ConnectionRoom::serverDownChanged)
};

} // namespace kiv::store
