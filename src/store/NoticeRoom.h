#pragma once

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

class QSettings;

namespace kiv::store {

/// Whether the desktop tells the person of answers while the window is out of sight.
class NoticeRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool wanted READ wanted NOTIFY wantedChanged)
public:
    /// The settings outlive the room.
    explicit NoticeRoom(QSettings &settings) : m_settings(settings) {}

    bool wanted() const { return m_wanted; }
    /// The person's choice, which is kept.
    Q_INVOKABLE void choose(bool wanted);

    /// Takes the choice of before up; choices are kept from now on.
    void startPersisting();

Q_SIGNALS:
    void wantedChanged();

private:
    QSettings &m_settings;
    bool m_isKept = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NoticeRoom, bool, m_wanted, true,
                                         &NoticeRoom::wantedChanged)
};

} // namespace kiv::store
