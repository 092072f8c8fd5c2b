#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace kiv::test {

/// The desktop's server for notifications, as a test plays it.
class NotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Shown {
        uint replaced = 0;
        QString icon;
        QString title;
        QString text;
        QStringList actions;
        QVariantMap hints;
    };

    bool start(QDBusConnection bus) {
        return bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                  QDBusConnection::ExportAllSlots |
                                      QDBusConnection::ExportAllSignals) &&
               bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    /// The person clicks it; newer servers give a token first.
    void click(uint id, const QString &token = {},
               const QString &action = QStringLiteral("default")) {
        if (!token.isEmpty())
            Q_EMIT ActivationToken(id, token);
        Q_EMIT ActionInvoked(id, action);
        Q_EMIT NotificationClosed(id, 2);
    }

    QStringList abilities{QStringLiteral("body"), QStringLiteral("actions")};
    QList<Shown> shown; ///< the id of each is its place, from 1
    QList<uint> closed;

public Q_SLOTS:
    QStringList GetCapabilities() { return abilities; }
    uint Notify(const QString &, uint replaced, const QString &icon, const QString &title,
                const QString &text, const QStringList &actions, const QVariantMap &hints, int) {
        shown.append({replaced, icon, title, text, actions, hints});
        return static_cast<uint>(shown.size());
    }
    void CloseNotification(uint id) { closed.append(id); }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
    void ActivationToken(uint id, const QString &token);
    void NotificationClosed(uint id, uint reason);
};

} // namespace kiv::test
