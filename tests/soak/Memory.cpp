#include "soak/Memory.h"

#include <QFile>

#include <algorithm>

namespace kiv::soak {

using namespace Qt::StringLiterals;

void Memory::sample(std::chrono::seconds at) {
    QFile sums(u"/proc/self/smaps_rollup"_s);
    if (!sums.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : sums.readAll().split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.constFirst() == "Pss_Anon:")
            m_readings.append({at, words.at(1).toLongLong()});
    }
}

qint64 Memory::median(std::chrono::seconds from, std::chrono::seconds to) const {
    QList<qint64> values;
    for (const Reading &reading : m_readings) {
        if (reading.at >= from && reading.at <= to)
            values.append(reading.kib);
    }
    if (values.isEmpty())
        return 0;
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace kiv::soak
