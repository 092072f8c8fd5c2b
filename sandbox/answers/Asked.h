#pragma once

#include "Answer.h"
#include "Database.h"

#include <QDate>
#include <QJsonArray>

#include <optional>

namespace kiv::sandbox {

/// A question on its way to an answer: the rows it may use and the language it was asked in.
class Asked {
public:
    Asked(Sql &sql, const Question &question);

    const Question &question() const { return m_question; }
    Sql &sql() const { return m_sql; }
    const QString &account() const { return m_question.scope.account; }
    /// The one project that is asked about; empty for all.
    const QString &slug() const { return m_slug; }
    /// The agent whose own work is asked about: the one who answers, or one that is named; empty
    /// for none.
    const QString &agent() const { return m_agent; }
    /// The day on which the workspace's figures were taken.
    QDate asOf() const { return m_asOf; }

    /// The text in the language of the question.
    QString say(const QString &english, const QString &russian) const;
    QString projectLabel(const QString &slug) const;
    /// What the answer is about: an agent's name, a project's, or all projects.
    QString subject() const;

    /// Rows of `SELECT <columns> FROM <table>` within the scope; `rest` follows the condition and
    /// begins with AND, GROUP BY or ORDER BY.
    QList<Row> rows(const QString &columns, const QString &table, const QString &rest = {},
                    const QVariantList &more = {}) const;
    /// Rows of `tasks` within the scope; of an agent, its own.
    QList<Row> tasks(const QString &columns, const QString &rest = {},
                     const QVariantList &more = {}) const;
    /// The scope's project that has rows in `table`; empty when none has.
    QString projectWith(const QString &table) const;

private:
    Sql &m_sql;
    const Question &m_question;
    QString m_slug;
    QString m_agent;
    QDate m_asOf;
    bool m_russian;
};

/// Prose before and after one drawable block.
Answer withBlock(const QString &before, const QJsonObject &view, const QString &after = {},
                 const QString &language = QStringLiteral("view"));

QString grouped(qint64 number);                   ///< 418,200
QString euros(qint64 amount);                     ///< €418,200
QString cents(qint64 amount);                     ///< €1.84
QString percentChange(double now, double before); ///< +6.2%
QString signedWhole(qint64 number);               ///< +5, −12, 0
QString hoursMinutes(qint64 minutes);             ///< 2 h 14 m
QJsonArray strings(const QStringList &list);

// The topics. Each gives nothing when the scope has no rows for it.
using Topic = std::optional<Answer> (*)(const Asked &);
std::optional<Answer> weeklyReport(const Asked &asked);
std::optional<Answer> projectStatus(const Asked &asked);
std::optional<Answer> releasePlan(const Asked &asked);
std::optional<Answer> todaysBrief(const Asked &asked);
std::optional<Answer> blockedTasks(const Asked &asked);
std::optional<Answer> retrospective(const Asked &asked);
std::optional<Answer> goalScores(const Asked &asked);
std::optional<Answer> workload(const Asked &asked);
std::optional<Answer> hostingOptions(const Asked &asked);
std::optional<Answer> decision(const Asked &asked);
std::optional<Answer> trialFunnel(const Asked &asked);
std::optional<Answer> unitCost(const Asked &asked);
std::optional<Answer> costs(const Asked &asked);
std::optional<Answer> budget(const Asked &asked);
std::optional<Answer> cashFlow(const Asked &asked);
std::optional<Answer> rankedRevenue(const Asked &asked);
std::optional<Answer> revenueTrend(const Asked &asked);
std::optional<Answer> spendByProject(const Asked &asked);
std::optional<Answer> highlightCards(const Asked &asked);
std::optional<Answer> headline(const Asked &asked);
std::optional<Answer> choices(const Asked &asked);
std::optional<Answer> projectTable(const Asked &asked);
std::optional<Answer> taskCounts(const Asked &asked);
std::optional<Answer> openTaskList(const Asked &asked);
std::optional<Answer> keyFacts(const Asked &asked);
std::optional<Answer> projectPage(const Asked &asked);
std::optional<Answer> nextSteps(const Asked &asked);
std::optional<Answer> goAhead(const Asked &asked);
std::optional<Answer> guide(const Asked &asked);
std::optional<Answer> greeting(const Asked &asked);
Answer plainAnswer(const Asked &asked);

} // namespace kiv::sandbox
