#pragma once

#include <QDateTime>
#include <QString>

namespace kiv::sandbox {

class Sql;

/// Fills a new account's workspace: projects, agents, events and the tables that answers are made
/// from. The same seed gives the same figures; 0 gives them as written down, others vary them.
void seedWorkspace(Sql &sql, const QString &account, const QDateTime &now, quint64 seed);

/// Numbers that look random and are the same at every run.
class Variation {
public:
    explicit Variation(quint64 seed) : m_seed(seed), m_state(seed) {}
    /// `figure` as it is for seed 0, else moved by up to a tenth.
    int operator()(int figure);
    /// 0 to `end` - 1.
    int below(int end);

private:
    quint64 next();

    const quint64 m_seed;
    quint64 m_state;
};

/// A name out of a constant table.
inline QString text(const char16_t *raw) {
    return QString::fromUtf16(raw);
}

// The steps of seedWorkspace, a file each.
void seedRoster(Sql &sql, const QString &account, const QDateTime &now);
void seedFigures(Sql &sql, const QString &account, Variation &vary);
void seedChoices(Sql &sql, const QString &account, Variation &vary);
void seedTasks(Sql &sql, const QString &account, QDate today, Variation &vary);

} // namespace kiv::sandbox
