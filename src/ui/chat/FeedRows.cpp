#include "ui/chat/FeedRows.h"

#include "base/LocalText.h"
#include "store/MessageModel.h"
#include "text/MDParser.h"

#include <algorithm>

namespace kiv::ui {

using store::MessageModel;
using text::MDBlock;

namespace {

constexpr int mostLinks = 8;

QString tabbed(const MDBlock::Table &table) {
    QStringList lines{table.header.join(u'\t')};
    for (const QStringList &row : table.rows)
        lines.append(row.join(u'\t'));
    return lines.join(u'\n');
}

} // namespace

void FeedRows::setMessages(QObject *model) {
    auto *messages = qobject_cast<QAbstractItemModel *>(model);
    if (m_messages == messages)
        return;
    if (m_messages)
        m_messages->disconnect(this);
    m_messages = messages;
    if (messages) {
        using Model = QAbstractItemModel;
        connect(messages, &Model::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) { insertMessages(first, last); });
        connect(messages, &Model::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) { removeMessages(first, last); });
        connect(messages, &Model::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last) {
                    for (int message = first.row(); message <= last.row(); ++message)
                        refresh(message);
                });
        connect(messages, &Model::modelReset, this, &FeedRows::reset);
        connect(messages, &Model::layoutChanged, this, &FeedRows::reset);
        connect(messages, &QObject::destroyed, this, &FeedRows::reset);
    }
    reset();
    Q_EMIT messagesChanged();
}

void FeedRows::setOlderBefore(bool older) {
    if (std::exchange(m_olderBefore, older) == older)
        return;
    refresh(0);
    Q_EMIT olderBeforeChanged();
}

void FeedRows::setUnreadFrom(const QString &messageId) {
    if (m_unreadFrom == messageId)
        return;
    const QString before = std::exchange(m_unreadFrom, messageId);
    refresh(messageOf(before));
    refresh(messageOf(messageId));
    Q_EMIT unreadFromChanged();
}

void FeedRows::setCalendar(store::Calendar *calendar) {
    if (m_calendar == calendar)
        return;
    if (m_calendar)
        m_calendar->disconnect(this);
    m_calendar = calendar;
    if (calendar)
        connect(calendar, &store::Calendar::todayChanged, this, &FeedRows::refreshAll);
    refreshAll();
    Q_EMIT calendarChanged();
}

void FeedRows::reset() {
    beginResetModel();
    m_shown.clear();
    const int count = m_messages ? m_messages->rowCount() : 0;
    for (int message = 0; message < count; ++message)
        m_shown.append(build(message));
    sumUp(0);
    endResetModel();
}

void FeedRows::insertMessages(int first, int last) {
    QList<MessageRows> added;
    int count = 0;
    for (int message = first; message <= last; ++message) {
        added.append(build(message));
        count += static_cast<int>(added.last().rows.size());
    }
    beginInsertRows({}, m_starts.at(first), m_starts.at(first) + count - 1);
    m_shown = m_shown.first(first) + added + m_shown.sliced(first);
    sumUp(first);
    endInsertRows();
    refresh(last + 1);
}

void FeedRows::removeMessages(int first, int last) {
    beginRemoveRows({}, m_starts.at(first), m_starts.at(last + 1) - 1);
    m_shown.remove(first, last - first + 1);
    sumUp(first);
    endRemoveRows();
    refresh(first);
}

void FeedRows::refresh(int message) {
    if (message < 0 || message >= m_shown.size())
        return;
    MessageRows now = build(message, m_shown.at(message));
    m_shown[message].body = now.body;
    exchange(message, std::move(now.rows));
}

void FeedRows::refreshAll() {
    for (int message = 0; message < m_shown.size(); ++message)
        refresh(message);
}

/// Tells of what differs between the rows that a message had and has: of rows that say something
/// else, and of rows that came or went. A row does not turn into another kind.
void FeedRows::exchange(int message, QList<FeedRow> rows) {
    QList<FeedRow> &shown = m_shown[message].rows;
    const qsizetype shorter = std::min(shown.size(), rows.size());
    const auto fromEnd = [](const QList<FeedRow> &list, qsizetype i) -> const FeedRow & {
        return list.at(list.size() - 1 - i);
    };
    // Rows that are the same at the end stay there. Else rows keep their place from the top.
    qsizetype same = 0;
    while (same < shorter && fromEnd(shown, same) == fromEnd(rows, same))
        ++same;
    qsizetype head = 0;
    while (head < shorter - same && shown.at(head).kind == rows.at(head).kind)
        ++head;
    qsizetype tail = same;
    while (tail < shorter - head && fromEnd(shown, tail).kind == fromEnd(rows, tail).kind)
        ++tail;

    const auto rowAt = [start = m_starts.at(message)](qsizetype row) {
        return start + static_cast<int>(row);
    };
    if (const qsizetype gone = shown.size() - tail - head; gone > 0) {
        beginRemoveRows({}, rowAt(head), rowAt(head + gone) - 1);
        shown.remove(head, gone);
        sumUp(message);
        endRemoveRows();
    }
    if (const qsizetype added = rows.size() - tail - head; added > 0) {
        beginInsertRows({}, rowAt(head), rowAt(head + added) - 1);
        shown.insert(head, added, {});
        std::copy_n(rows.begin() + head, added, shown.begin() + head);
        sumUp(message);
        endInsertRows();
    }
    for (qsizetype row = 0; row < rows.size() - same; ++row) {
        if (shown.at(row) == rows.at(row))
            continue;
        shown[row] = std::move(rows[row]);
        const QModelIndex changed = index(rowAt(row));
        Q_EMIT dataChanged(changed, changed, {RowRole});
    }
}

QVariant FeedRows::field(int message, int role) const {
    return m_messages->index(message, 0).data(role);
}

MessageRows FeedRows::build(int message, const MessageRows &before) const {
    const QString id = field(message, MessageModel::MessageIdRole).toString();
    const MessagePlace place{.belowOlder = message == 0 && m_olderBefore,
                             .isUnread = !m_unreadFrom.isEmpty() && m_unreadFrom == id,
                             .day = dayLabel(message)};
    return messageRows(m_messages->index(message, 0), place, before);
}

/// The day of a message, where it is another than that of the one before. A conversation of today
/// begins without one.
QString FeedRows::dayLabel(int message) const {
    const QDate day = field(message, MessageModel::DayRole).toDate();
    if (!day.isValid())
        return {};
    QDate before = today();
    for (int above = message - 1; above >= 0; --above) {
        const QDate other = field(above, MessageModel::DayRole).toDate();
        if (other.isValid()) {
            before = other;
            break;
        }
    }
    if (day == before)
        return {};
    if (day == today())
        return tr("Today");
    if (day == today().addDays(-1))
        return tr("Yesterday");
    return dayText(day, today());
}

void FeedRows::sumUp(int from) {
    m_starts.resize(m_shown.size() + 1);
    for (qsizetype message = from; message < m_shown.size(); ++message)
        m_starts[message + 1] =
            m_starts.at(message) + static_cast<int>(m_shown.at(message).rows.size());
}

int FeedRows::messageAt(int row) const {
    const auto behind = std::upper_bound(m_starts.begin(), m_starts.end(), row);
    return static_cast<int>(behind - m_starts.begin()) - 1;
}

const FeedRow &FeedRows::at(int row) const {
    const int message = messageAt(row);
    return m_shown.at(message).rows.at(row - m_starts.at(message));
}

int FeedRows::messageOf(const QString &messageId) const {
    const auto found = std::ranges::find_if(m_shown, [&](const MessageRows &shown) {
        return shown.rows.first().messageId == messageId;
    });
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

std::pair<int, int> FeedRows::rowsOf(const QString &messageId) const {
    const int message = messageOf(messageId);
    return message < 0 ? std::pair(0, 0)
                       : std::pair(m_starts.at(message), m_starts.at(message + 1));
}

QString FeedRows::lastMessage() const {
    return m_shown.isEmpty() ? QString() : m_shown.last().rows.first().messageId;
}

QString FeedRows::messageBeside(const QString &messageId, int by) const {
    const int message = messageOf(messageId);
    const QList<FeedRow> rows = message < 0 ? QList<FeedRow>() : m_shown.value(message + by).rows;
    return rows.isEmpty() ? QString() : rows.first().messageId;
}

FeedRow FeedRows::tailOf(const QString &messageId) const {
    const int message = messageOf(messageId);
    return message < 0 ? FeedRow() : m_shown.at(message).rows.last();
}

int FeedRows::messagesAfter(const QString &messageId) const {
    const int message = messageOf(messageId);
    return message < 0 ? 0 : static_cast<int>(m_shown.size()) - message - 1;
}

QString FeedRows::messageText(const QString &messageId) const {
    const int message = messageOf(messageId);
    return message < 0 ? QString() : field(message, MessageModel::RawTextRole).toString();
}

QString FeedRows::messageBody(const QString &messageId) const {
    const int message = messageOf(messageId);
    return message < 0 ? QString() : field(message, MessageModel::BodyRole).toString();
}

QList<MessageLink> FeedRows::messageLinks(const QString &messageId) const {
    if (messageOf(messageId) < 0 || tailOf(messageId).mine)
        return {};
    const auto found = text::linksOf(text::MDParser::blocks(messageBody(messageId)), mostLinks);
    return {found.begin(), found.end()};
}

QString FeedRows::blockText(const QString &messageId, int block) const {
    const int message = messageOf(messageId);
    if (message < 0)
        return {};
    const auto blocks = text::MDParser::blocks(field(message, MessageModel::BodyRole).toString());
    if (block < 0 || block >= blocks.size())
        return {};
    const MDBlock::Kind &content = blocks.at(block).kind;
    if (const auto *code = std::get_if<MDBlock::Code>(&content))
        return code->text;
    const auto *table = std::get_if<MDBlock::Table>(&content);
    return table ? tabbed(*table) : QString();
}

int FeedRows::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : m_starts.last();
}

QVariant FeedRows::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != RowRole)
        return {};
    return QVariant::fromValue(at(index.row()));
}

QHash<int, QByteArray> FeedRows::roleNames() const {
    return {{RowRole, "row"}};
}

} // namespace kiv::ui
