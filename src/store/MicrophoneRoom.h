#pragma once

#include "base/Clock.h"
#include "voice/AudioDevices.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

class QSettings;

namespace kiv::store {

/// A microphone that can be chosen.
struct MicrophoneDevice {
    Q_GADGET
    QML_VALUE_TYPE(microphoneDevice)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
public:
    QString id;
    QString name;

    bool operator==(const MicrophoneDevice &) const = default;
};

/// Which microphone the person talks into, and how loud they are. Nothing is asked of the sound
/// system before the first look() or the first opened input.
class MicrophoneRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    /// Those that were there at the last look.
    Q_PROPERTY(QList<kiv::store::MicrophoneDevice> devices READ devices NOTIFY devicesChanged)
    /// The id of the person's choice; empty for the system's own.
    Q_PROPERTY(QString chosen READ chosen NOTIFY chosenChanged)
    /// Of the open input, from 0 to 1; 0 when none is open.
    Q_PROPERTY(double level READ level NOTIFY levelChanged)
    /// False once a look found no input, or one could not be opened.
    Q_PROPERTY(bool available READ available NOTIFY availableChanged)
public:
    /// Clock and settings outlive the room.
    MicrophoneRoom(Clock &clock, QSettings &settings);

    QList<MicrophoneDevice> devices() const { return m_list; }
    QString chosen() const { return m_chosen; }
    double level() const { return m_level; }
    /// Where the choice stands among the devices; -1 for the system's own, or when it is gone.
    Q_INVOKABLE int chosenRow() const;
    bool available() const { return m_available; }

    /// Asks the system which microphones there are.
    Q_INVOKABLE void look();
    /// The person's choice, which is kept. An open input goes over to it.
    Q_INVOKABLE void choose(const QString &id);

    /// An input that opens whatever is chosen when it is started, and reports its level here. The
    /// room outlives it.
    std::unique_ptr<voice::AudioInput> newInput();
    /// What the computer has; it outlives the room.
    void setSource(voice::AudioDevices *source) { m_source = source; }
    /// Takes the choice of before up; choices are kept from now on.
    void startPersisting();

    /// For the inputs of the room: opens the chosen device. Throws voice::AudioError.
    std::unique_ptr<voice::AudioInput> open(const voice::AudioInput::Samples &samples,
                                            const voice::AudioInput::Lost &lost);
    void setLevel(double level) { m_level = level; }

Q_SIGNALS:
    void devicesChanged();
    void chosenChanged();
    void levelChanged();
    void availableChanged();

private:
    Clock &m_clock;
    QSettings &m_settings;
    voice::AudioDevices *m_source = nullptr;
    bool m_isKept = false;
    Q_OBJECT_BINDABLE_PROPERTY(MicrophoneRoom, QList<MicrophoneDevice>, m_list,
                               &MicrophoneRoom::devicesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(MicrophoneRoom, QString, m_chosen, &MicrophoneRoom::chosenChanged)
    Q_OBJECT_BINDABLE_PROPERTY(MicrophoneRoom, double, m_level, &MicrophoneRoom::levelChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MicrophoneRoom, bool, m_available, true,
                                         &MicrophoneRoom::availableChanged)
};

} // namespace kiv::store
