#pragma once

#include <QDBusConnection>
#include <QLockFile>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <memory>

namespace kiv::desktop {

/// The program's place on the session bus (`org.freedesktop.Application`). A profile is used by
/// one running program; a second start hands what it was asked to the first and ends. A file tells
/// of the first, too: to those that are on another bus or on none, and can ask it for nothing.
class Instance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    /// Whether this program is the one that runs, has handed over, or found one that does not
    /// answer.
    enum class Place { First, HandedOver, NoAnswer };

    /// `profile` is the folder of a profile of its own; empty for the user's. `lockFile` is the
    /// file that tells of a running program; empty for none.
    Instance(const QDBusConnection &bus, const QString &profile, const QString &lockFile = {});
    ~Instance() override;

    /// Takes the place, or hands `links` (to raise the window: none) over with the token that the
    /// desktop gave this start for it. Waits for an answer no longer than `patience`, and as long
    /// for one that is just ending. The place is kept as long as this lives.
    Place claim(const QStringList &links, const QString &token, std::chrono::milliseconds patience);

    /// Takes no calls any more, as at the end of the application; the profile stays taken.
    void leave();

    /// The name on the bus: the program's own, with a part of its own for a profile of its own.
    static QString nameFor(const QString &profile);

public Q_SLOTS: // of the interface
    Q_SCRIPTABLE void Activate(const QVariantMap &platform);
    Q_SCRIPTABLE void Open(const QStringList &links, const QVariantMap &platform);
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &platform);

Q_SIGNALS:
    /// The window is to be raised; the token, perhaps empty, is the desktop's leave to do so.
    void activated(const QString &token);
    void linkOpened(const QString &link);
    /// An action of the desktop file was chosen.
    void actionChosen(const QString &action);

private:
    bool take();
    Place lock(std::chrono::milliseconds patience);

    QDBusConnection m_bus;
    QString m_name;
    QString m_lockFile;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isOnBus = false;
};

} // namespace kiv::desktop
