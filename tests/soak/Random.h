#pragma once

#include <QtGlobal>

#include <random>

namespace kiv::soak {

/// Every choice of a run comes from one seed.
class Random {
public:
    explicit Random(quint64 seed) : m_engine(seed) {}

    /// From 0 to `end` - 1.
    qsizetype below(qsizetype end) {
        return static_cast<qsizetype>(m_engine() % static_cast<quint64>(end));
    }
    int between(int least, int most) { return least + static_cast<int>(below(most - least + 1)); }
    bool oneIn(int count) { return below(count) == 0; }
    template <typename List>
    const auto &of(const List &list) {
        return *std::next(std::begin(list), below(std::ssize(list)));
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace kiv::soak
