#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <optional>

class QDBusPendingCall;

namespace kiv::desktop {

/// What the person is told while the window is out of sight.
struct Notice {
    QString topic; ///< what it is about; a newer one of the same topic takes its place
    QString title;
    QString text;
};

/// The desktop's notifications (`org.freedesktop.Notifications`). Nothing here waits: without a bus
/// or a server for them nothing is shown.
class Notifier : public QObject {
    Q_OBJECT
public:
    explicit Notifier(const QDBusConnection &bus);

    void show(const Notice &notice);
    /// Takes everything back that is still shown.
    void withdraw();

Q_SIGNALS:
    /// The person has clicked the notice; the token, perhaps empty, is the desktop's leave to
    /// raise the window.
    void clicked(const QString &topic, const QString &token);

private Q_SLOTS:
    void takeToken(uint id, const QString &token);
    void takeAction(uint id, const QString &action);
    void takeClosed(uint id, uint reason);

private:
    void follow();
    void send(const Notice &notice);
    QDBusPendingCall call(const QString &method, const QVariantList &arguments);

    QDBusConnection m_bus;
    bool m_isFollowed = false;
    std::optional<QStringList> m_abilities; ///< of the server, once it has told them
    QHash<QString, uint> m_shown;           ///< by topic
    QHash<uint, QString> m_tokens;
    /// Topics of notices on their way to the server, which says their numbers; each with the one
    /// that is to take its place then.
    QHash<QString, std::optional<Notice>> m_underWay;
    int m_withdrawals = 0; ///< what was asked for before the last one is not to be seen
};

} // namespace kiv::desktop
