#pragma once

#include "store/Msg.h"

#include <QAbstractListModel>
#include <QSortFilterProxyModel>

#include <functional>

namespace kiv::store {

/// The conversation on the screen. Rows are added, removed and changed one by one, so that an
/// answer that grows repaints one row.
class MessageModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        MessageIdRole = Qt::UserRole + 1, ///< as `messageId`, text
        WhoRole,                          ///< Who
        BodyRole,                         ///< the text of the bubble, as `body`
        RawTextRole,                      ///< the row's own text, for copying
        TimeRole,                         ///< local time, "09:42", as `time`; empty without one
        DayRole,                          ///< local date; invalid without one
        MemberLabelRole,
        FilesRole, ///< list of MsgFile
        DeliveryRole,
        GrowingRole,   ///< the answer is still being written
        CardTitleRole, ///< heading of the scene that the message carries; empty without one
        CardArtRole,
        OnCanvasRole,     ///< the canvas shows this message's scene
        FromCallRole,     ///< said in a voice call, or the line of one
        CallIdRole,       ///< of the line of a call, "Call · 3:12": which; else empty
        CallHasLinesRole, ///< of the line of a call: it can be opened
        CallOpenRole,     ///< of the line of a call: what was said follows it
        ChipsRole,        ///< replies to pick from: under a finished answer that nothing follows
    };

    explicit MessageModel(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    const QList<Msg> &messages() const { return m_messages; }
    int count() const { return static_cast<int>(m_messages.size()); }

    void append(Msg message);
    /// Exchanges the whole list. A message that comes back, by its server id or its own, keeps its
    /// row and identity.
    void replaceAll(QList<Msg> messages);
    /// Changes a row in place. The message keeps its identity.
    void update(qsizetype row, Msg message);
    void remove(qsizetype row);

    /// The row with this server id, or -1.
    qsizetype rowOfServerID(qint64 id) const;
    qsizetype rowOf(const QUuid &id) const;
    /// The first row for which `matches` holds, or -1.
    qsizetype find(const std::function<bool(const Msg &)> &matches) const;

    /// The language has changed, and with it how times are written.
    void retranslate();
    /// The row that is still being written; a null id for none.
    void setGrowing(const QUuid &id);
    const QUuid &growing() const { return m_growing; }
    void setOnCanvas(const QUuid &id);
    /// Marks the reply that was picked under an answer.
    void chooseChip(qsizetype row, const QString &label);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void insertRange(qsizetype row, const QList<Msg> &messages);
    void removeRange(qsizetype first, qsizetype end);
    void countHasChanged();
    void touch(const QUuid &id, const QList<int> &roles);

    QList<Msg> m_messages;
    QUuid m_growing;
    QUuid m_onCanvas;
    QUuid m_last; ///< the last row, whose replies show
};

/// The last messages of a conversation: the compact feed of the rail.
class FeedModel : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool hasOlder READ hasOlder NOTIFY hasOlderChanged)
public:
    explicit FeedModel(MessageModel *messages, QObject *parent = nullptr);

    int window() const { return m_window; }
    void setWindow(int window);
    /// Whether there are messages before the first that shows.
    bool hasOlder() const { return m_hasOlder; }

Q_SIGNALS:
    void hasOlderChanged();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    void follow();

    int m_window = 30;
    bool m_hasOlder = false;
};

} // namespace kiv::store
