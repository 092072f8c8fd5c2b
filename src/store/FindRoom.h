#pragma once

#include "base/Work.h"
#include "store/Enums.h"
#include "text/SearchText.h"

#include <QHash>
#include <QObject>
#include <QProperty>
#include <QUuid>

#include <memory>

namespace kiv::store {

class AppStore;

/// Finding words in the conversation: in all messages that are loaded, as they show. What comes in
/// meanwhile is searched too. The messages are read and searched on another thread.
class FindRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    Q_PROPERTY(QString pattern READ pattern NOTIFY patternChanged)
    /// The count is of another pattern or of other messages.
    Q_PROPERTY(bool searching READ isSearching NOTIFY searchingChanged)
    Q_PROPERTY(int count READ count NOTIFY foundChanged)
    /// Which of them is the current one, from 1; 0 for none.
    Q_PROPERTY(int place READ place NOTIFY foundChanged)
    Q_PROPERTY(QString currentMessage READ currentMessage NOTIFY foundChanged)
    /// The part of the message that the current one is in.
    Q_PROPERTY(int currentPart READ currentPart NOTIFY foundChanged)
public:
    explicit FindRoom(AppStore &store);

    bool isShown() const { return m_shown; }
    QString pattern() const { return m_pattern; }
    bool isSearching() const { return m_searching; }
    int count() const { return static_cast<int>(m_matches.size()); }
    int place() const { return m_current + 1; }
    QString currentMessage() const;
    int currentPart() const;
    const text::WordPlace *current() const;

    /// Begins, in the full conversation, with the pattern of the last time.
    Q_INVOKABLE void open();
    Q_INVOKABLE void close();
    /// Looks for other words, from the current place on; without one, from the message `from` on,
    /// and without that for the newest.
    Q_INVOKABLE void look(const QString &pattern, const QString &from);
    /// Goes to the next place, and from the last one to the first.
    Q_INVOKABLE void next() { step(1); }
    Q_INVOKABLE void previous() { step(-1); }

    /// What was found in one part of a message.
    QList<text::WordPlace> foundIn(const QString &messageId, int part) const;

Q_SIGNALS:
    void shownChanged();
    void patternChanged();
    void searchingChanged();
    void foundChanged();
    /// The person wants to type what to look for.
    void opened();
    /// The person went to a place: it is to be seen.
    void stepped();

private:
    /// A message to be searched; `text` is what was read of it before, if that is what it says now.
    struct Source {
        QUuid id;
        QString body;
        Who who = Who::Agent;
        std::shared_ptr<const text::SearchText> text;
    };
    struct Match {
        int message = 0; ///< in the order of the messages that were searched
        text::WordPlace place;
        friend auto operator<=>(const Match &, const Match &) = default;
    };
    struct Searched {
        QString pattern;
        QList<Source> sources;
        QList<Match> matches;
    };

    static Searched searched(QList<Source> sources, const QString &pattern);
    void schedule();
    QCoro::Task<void> search(Cancel cancel);
    QList<Source> sources() const;
    void take(Searched searched);
    int matchToShow() const;
    void clear();
    void step(int by);
    void keepPlace();
    QUuid idOf(const Match &match) const { return m_messages.at(match.message).id; }

    AppStore &m_store;
    QList<Source> m_messages; ///< that were searched
    QHash<QUuid, int> m_rows; ///< where they are in `m_messages`
    QList<Match> m_matches;
    int m_current = -1;
    /// From where on the current match is looked for.
    QUuid m_fromMessage;
    text::WordPlace m_fromPlace;
    bool m_isAsked = false; ///< the person waits to see what is found
    bool m_isStale = false; ///< what is searched now has changed
    Q_OBJECT_BINDABLE_PROPERTY(FindRoom, bool, m_shown, &FindRoom::shownChanged)
    Q_OBJECT_BINDABLE_PROPERTY(FindRoom, QString, m_pattern, &FindRoom::patternChanged)
    Q_OBJECT_BINDABLE_PROPERTY(FindRoom, bool, m_searching, &FindRoom::searchingChanged)
    Work m_work;
};

} // namespace kiv::store
