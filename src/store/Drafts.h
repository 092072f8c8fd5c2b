#pragma once

#include "base/Clock.h"

#include <QList>
#include <QString>

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

    Clock &m_clock;
    QString m_file;
    QList<Draft> m_drafts; ///< the one typed last at the end
    Clock::Timer m_saveTimer;
    bool m_savePending = false;
};

} // namespace kiv::store
