#pragma once

#include "base/Work.h"
#include "net/UpdateCheck.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

class AppStore;

/// Whether there is a newer release.
class UpdateRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool offered READ offered NOTIFY updateChanged)
    Q_PROPERTY(QString version READ version NOTIFY updateChanged)
    Q_PROPERTY(QUrl page READ page NOTIFY updateChanged)
    Q_PROPERTY(bool checkingUpdate READ checkingUpdate NOTIFY checkingUpdateChanged)
public:
    explicit UpdateRoom(AppStore &store);

    const std::optional<net::UpdateInfo> &update() const { return m_update; }
    bool offered() const { return m_update.has_value(); }
    QString version() const { return m_update ? m_update->version : QString(); }
    /// Where the release can be had.
    QUrl page() const { return m_update ? m_update->page : QUrl(); }
    bool checkingUpdate() const { return m_checkingUpdate; }

    /// Looks once; nothing while a look is under way.
    Q_INVOKABLE void checkForUpdates();
    /// The person has seen the offer.
    Q_INVOKABLE void dismiss();

    /// Compares with another version than that of the running program.
    void setRunning(const AppVersion &running) { m_running = running; }

Q_SIGNALS:
    void updateChanged();
    void checkingUpdateChanged();

private:
    QCoro::Task<void> check(Cancel cancel);
    void offer(const std::optional<net::UpdateInfo> &update);

    AppStore &m_store;
    AppVersion m_running = AppVersion::running();
    std::optional<net::UpdateInfo> m_update;
    Q_OBJECT_BINDABLE_PROPERTY(UpdateRoom, bool, m_checkingUpdate,
                               &UpdateRoom::checkingUpdateChanged)
    Work m_check;
};

} // namespace kiv::store
