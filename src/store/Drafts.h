#pragma once

#include "base/Clock.h"

#include <QFuture>
#include <QList>
#include <QString>

#include <optional>

namespace kiv::store {

/// What each person has begun to type in each chat. It survives a restart in a file that only this
/// user can read; what of such a file cannot be understood is left out.
class Drafts {
public:
    /// An empty `file` keeps nothing beyond this object. The clock outlives it.
    Drafts(Clock &clock, QString file);
    Drafts(const Drafts &) = delete;
    Drafts &operator=(const Drafts &) = delete;
    ~Drafts();

    QString text(const QString &user, const QString &chat) const;
    void setText(const QString &user, const QString &chat, const QString &text);
    /// Drops everything of this person.
    void forget(const QString &user);

private:
    struct Draft {
        QString user;
        QString chat;
        QString text;
    };

    void load();
    void scheduleSave();
    void save();
    QByteArray content() const;

    Clock &m_clock;
    QString m_file;
    QList<Draft> m_drafts; ///< the one typed last at the end
    Clock::Timer m_saveTimer;
    /// Since when something is not saved, on the clock's scale.
    std::optional<Clock::Milliseconds> m_unsavedSince;
    QFuture<void> m_writing;
};

} // namespace kiv::store
