#include "store/MicrophoneRoom.h"

#include "store/ChosenInput.h"

#include <QSettings>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString microphoneKey = u"zandor.microphone"_s;

} // namespace

MicrophoneRoom::MicrophoneRoom(Clock &clock, QSettings &settings)
    : m_clock(clock), m_settings(settings) {}

void MicrophoneRoom::look() {
    QList<MicrophoneDevice> list;
    if (m_source) {
        for (const voice::AudioDevice &device : m_source->inputs())
            list.append({device.id, device.name});
    }
    m_available = !list.isEmpty();
    m_list = list;
}

int MicrophoneRoom::chosenRow() const {
    const QList<MicrophoneDevice> &list = m_list.value();
    const auto found = std::ranges::find(list, m_chosen.value(), &MicrophoneDevice::id);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void MicrophoneRoom::choose(const QString &id) {
    if (m_isKept && id.isEmpty())
        m_settings.remove(microphoneKey);
    else if (m_isKept)
        m_settings.setValue(microphoneKey, id);
    m_chosen = id;
}

void MicrophoneRoom::startPersisting() {
    m_isKept = true;
    m_chosen = m_settings.value(microphoneKey).toString();
}

std::unique_ptr<voice::AudioInput> MicrophoneRoom::newInput() {
    return std::make_unique<ChosenInput>(*this, m_clock);
}

std::unique_ptr<voice::AudioInput> MicrophoneRoom::open(const voice::AudioInput::Samples &samples,
                                                        const voice::AudioInput::Lost &lost) {
    try {
        if (!m_source)
            throw voice::AudioError("this program has no sound system");
        std::unique_ptr<voice::AudioInput> input = m_source->input(m_chosen);
        input->start(samples, lost);
        m_available = true;
        return input;
    } catch (const voice::AudioError &) {
        m_available = false;
        throw;
    }
}

} // namespace kiv::store
