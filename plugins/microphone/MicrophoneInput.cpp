#include "MicrophoneInput.h"

#include <QAudioDevice>

namespace kiv::microphone {

using namespace Qt::StringLiterals;
using voice::AudioError;
using voice::PcmFormat;

namespace {

/// In microseconds. Left to itself the sound system collects most of a second before it tells.
constexpr qint64 bufferedTime = 80'000;

QAudioDevice deviceOf(const QByteArray &id) {
    for (const QAudioDevice &device : QMediaDevices::audioInputs()) {
        if (!id.isEmpty() && device.id() == id)
            return device;
    }
    return QMediaDevices::defaultAudioInput();
}

PcmFormat pcmFormat(const QAudioFormat &format) {
    switch (format.sampleFormat()) {
    case QAudioFormat::UInt8:
        return PcmFormat::UInt8;
    case QAudioFormat::Int16:
        return PcmFormat::Int16;
    case QAudioFormat::Int32:
        return PcmFormat::Int32;
    case QAudioFormat::Float:
        return PcmFormat::Float;
    default:
        throw AudioError("the device has no format that is known");
    }
}

} // namespace

MicrophoneInput::MicrophoneInput(QByteArray id) : m_id(std::move(id)) {
    connect(&m_devices, &QMediaDevices::audioInputsChanged, this, &MicrophoneInput::lookForLoss);
}

void MicrophoneInput::start(Samples samples, Lost lost) {
    stop();
    m_device = deviceOf(m_id);
    if (m_device.isNull())
        throw AudioError("there is no microphone");
    const QAudioFormat format = m_device.preferredFormat();
    m_format = pcmFormat(format);
    m_channels = format.channelCount();
    m_resampler.emplace(format.sampleRate());
    auto source = std::make_unique<QAudioSource>(m_device, format);
    source->setBufferSize(format.bytesForDuration(bufferedTime));
    m_stream = source->start();
    if (!m_stream || source->error() != QAudio::NoError)
        throw AudioError("the device does not open: " + m_device.description().toStdString());
    m_samples = std::move(samples);
    m_lost = std::move(lost);
    m_source = std::move(source);
    connect(m_stream, &QIODevice::readyRead, this, &MicrophoneInput::read);
    connect(
        m_source.get(), &QAudioSource::stateChanged, this,
        [this, opened = m_source.get()](QAudio::State state) {
            if (state == QAudio::StoppedState && m_source.get() == opened)
                lose(u"the sound system closed it"_s);
        },
        Qt::QueuedConnection);
}

void MicrophoneInput::read() {
    if (!m_source || !m_stream)
        return;
    m_rest += m_stream->readAll();
    const qsizetype frame = qsizetype{voice::bytesPerSample(m_format)} * m_channels;
    const qsizetype whole = m_rest.size() / frame * frame;
    const QList<float> heard =
        voice::monoSamples(QByteArrayView(m_rest).first(whole), m_format, m_channels);
    m_rest.remove(0, whole);
    const QByteArray samples = voice::toInt16(m_resampler->add(heard));
    if (samples.isEmpty())
        return;
    m_level.add(samples);
    const Samples hand = m_samples; // stop() may be called from there
    hand(samples);
}

void MicrophoneInput::lookForLoss() {
    if (m_source && !QMediaDevices::audioInputs().contains(m_device))
        lose(u"it was unplugged: "_s + m_device.description());
}

void MicrophoneInput::lose(const QString &reason) {
    if (!m_source)
        return;
    const Lost lost = m_lost;
    stop();
    lost(reason);
}

void MicrophoneInput::stop() {
    if (!m_source)
        return;
    m_source->disconnect(this);
    if (m_stream)
        m_stream->disconnect(this);
    m_stream = nullptr;
    // Not within a signal of its own.
    m_source.release()->deleteLater();
    m_level.reset();
    m_rest.clear();
}

} // namespace kiv::microphone
