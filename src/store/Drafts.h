#pragma once

#include "base/Clock.h"
#include "base/FileWriter.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace kiv::store {

/// What each person has begun to type in each chat. It survives a restart in a file that only this
/// user can read. A file that is not understood whole is set aside; what of it is, is taken.
class Drafts {
public:
    /// Told why drafts cannot be saved, and nothing when they are again.
    using Report = std::function<void(const QString &why)>;

    /// An empty `file` keeps nothing beyond this object. The clock outlives it.
    Drafts(Clock &clock, QString file);
    Drafts(const Drafts &) = delete;
    Drafts &operator=(const Drafts &) = delete;
    ~Drafts();

    QString text(const QString &user, const QString &chat) const;
    void setText(const QString &user, const QString &chat, const QString &text);
    /// Drops everything of this person.
    void forget(const QString &user);

    void setReport(Report report) { m_report = std::move(report); }
    /// Where a damaged file has gone; empty when there was none.
    const QString &setAside() const { return m_setAside; }
    /// Tries again at once what could not be saved.
    void retry();

private:
    struct Draft {
        QString user;
        QString chat;
        QString text;
    };

    void load();
    bool take(const QByteArray &content);
    void scheduleSave();
    void save();
    void settle(const QString &failure);
    QByteArray content() const;

    Clock &m_clock;
    QString m_file;
    QList<Draft> m_drafts; ///< the one typed last at the end
    Clock::Timer m_saveTimer;
    /// Since when something is not saved, on the clock's scale.
    std::optional<Clock::Milliseconds> m_unsavedSince;
    QString m_failure; ///< of the last writing
    QString m_setAside;
    Report m_report;
    FileWriter m_writer;
};

} // namespace kiv::store
