#include "Seed.h"

#include "Database.h"

namespace kiv::sandbox {

quint64 Variation::next() {
    // splitmix64: one addition and two mixing steps a number.
    m_state += 0x9E3779B97F4A7C15u;
    quint64 mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

int Variation::below(int end) {
    return static_cast<int>(next() % static_cast<quint64>(end));
}

int Variation::operator()(int figure) {
    if (m_seed == 0)
        return figure;
    const int promille = below(201) - 100;
    return figure + static_cast<int>(static_cast<qint64>(figure) * promille / 1000);
}

void seedWorkspace(Sql &sql, const QString &account, const QDateTime &now, quint64 seed) {
    Variation vary(seed);
    seedRoster(sql, account, now);
    seedFigures(sql, account, vary);
    seedChoices(sql, account, vary);
    seedTasks(sql, account, now.date(), vary);
}

} // namespace kiv::sandbox
