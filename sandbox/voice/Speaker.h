#pragma once

#include <QProcess>

#include <functional>

namespace kiv::sandbox {

/// The rate at which the voice speaks: signed 16 bit, little endian, mono.
constexpr int speakerRate = 22'050;

/// Turns a text into sound with espeak-ng. One text at a time: a newer one replaces the older.
class Speaker : public QObject {
public:
    using Spoken = std::function<void(const QByteArray &samples)>;

    ~Speaker() override;

    /// The program that speaks; empty where there is none.
    static QString program();
    /// `spoken` gets no samples when the voice fails; it is never called within this call.
    void speak(const QString &text, Spoken spoken);
    void stop();

private:
    QProcess *m_process = nullptr;
};

} // namespace kiv::sandbox
