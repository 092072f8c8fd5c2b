#pragma once

#include "store/Calendar.h"
#include "store/FindRoom.h"
#include "ui/chat/MessageLink.h"
#include "ui/chat/MessageRows.h"

#include <QAbstractListModel>
#include <QPointer>

namespace kiv::ui {

/// The rows of a feed: each message as its head, the blocks of its text and what goes with it, with
/// the days between. A message that changes tells of the rows that changed, and of no others: an
/// answer that grows is laid out at its end alone.
class FeedRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    /// The model of the messages.
    Q_PROPERTY(QObject *messages READ messages WRITE setMessages NOTIFY messagesChanged)
    /// A link to older messages stands first.
    Q_PROPERTY(bool olderBefore READ hasOlderBefore WRITE setOlderBefore NOTIFY olderBeforeChanged)
    /// The first message that the person has not seen; empty for none.
    Q_PROPERTY(QString unreadFrom READ unreadFrom WRITE setUnreadFrom NOTIFY unreadFromChanged)
    Q_PROPERTY(kiv::store::Calendar *calendar READ calendar WRITE setCalendar NOTIFY calendarChanged
                   REQUIRED)
    /// Marks the words that it found; null for none.
    Q_PROPERTY(kiv::store::FindRoom *finder READ finder WRITE setFinder NOTIFY finderChanged)
public:
    enum Role { RowRole = Qt::UserRole + 1 };

    using QAbstractListModel::QAbstractListModel;

    QObject *messages() const { return m_messages; }
    void setMessages(QObject *model);
    bool hasOlderBefore() const { return m_olderBefore; }
    void setOlderBefore(bool older);
    QString unreadFrom() const { return m_unreadFrom; }
    void setUnreadFrom(const QString &messageId);
    store::Calendar *calendar() const { return m_calendar; }
    void setCalendar(store::Calendar *calendar);
    store::FindRoom *finder() const { return m_finder; }
    void setFinder(store::FindRoom *finder);

    const FeedRow &at(int row) const;
    /// A row as it shows now: with what was found in it.
    FeedRow shown(int row) const;
    /// The row of a part of a message's text; -1 for none.
    int rowOfPart(const QString &messageId, int part) const;
    /// The rows of a message, from the first to behind the last; none for a stranger.
    std::pair<int, int> rowsOf(const QString &messageId) const;
    QString lastMessage() const;
    /// The message `by` places further down; empty for none.
    QString messageBeside(const QString &messageId, int by) const;
    /// The last row of a message: what can be done with it.
    Q_INVOKABLE kiv::ui::FeedRow tailOf(const QString &messageId) const;
    /// How many messages stand behind this one.
    int messagesAfter(const QString &messageId) const;
    /// The words of a message as it was written, marks and all.
    Q_INVOKABLE QString messageText(const QString &messageId) const;
    /// The words of a message as they show.
    Q_INVOKABLE QString messageBody(const QString &messageId) const;
    /// The first links of an answer; none of what the person wrote, where a link is but words.
    Q_INVOKABLE QList<kiv::ui::MessageLink> messageLinks(const QString &messageId) const;
    /// What copying one block of a message gives: code as it is, a table with tabs between cells.
    Q_INVOKABLE QString blockText(const QString &messageId, int block) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void messagesChanged();
    void olderBeforeChanged();
    void unreadFromChanged();
    void calendarChanged();
    void finderChanged();
    /// Other words are marked, or the current ones are others.
    void marksChanged();

private:
    void reset();
    void insertMessages(int first, int last);
    void removeMessages(int first, int last);
    void refresh(int message);
    void refreshAll();
    void exchange(int message, QList<FeedRow> rows);
    MessageRows build(int message, const MessageRows &before = {}) const;
    QDate today() const { return m_calendar ? m_calendar->today() : QDate(); }
    QString dayLabel(int message) const;
    void sumUp(int from);
    QVariant field(int message, int role) const;
    int messageOf(const QString &messageId) const;
    int messageAt(int row) const;

    QPointer<QAbstractItemModel> m_messages;
    QPointer<store::Calendar> m_calendar;
    QList<MessageRows> m_shown;
    QList<int> m_starts{0}; ///< the first row of each message, and the count of all
    bool m_olderBefore = false;
    QString m_unreadFrom;
    QPointer<store::FindRoom> m_finder;
};

} // namespace kiv::ui
