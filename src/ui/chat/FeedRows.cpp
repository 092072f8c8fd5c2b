#include "ui/chat/FeedRows.h"

#include "base/LocalText.h"
#include "store/MessageModel.h"
#include "text/MDParser.h"

#include <algorithm>

namespace kiv::ui {

using namespace Qt::StringLiterals;
using store::MessageModel;
using text::BlockPart;
using text::MDBlock;
using Kind = FeedDelegate::Kind;

namespace {

Kind kindOf(const MDBlock::Kind &content) {
    struct KindOf {
        Kind operator()(const MDBlock::Heading &) const { return Kind::Heading; }
        Kind operator()(const MDBlock::Paragraph &) const { return Kind::Paragraph; }
        Kind operator()(const MDBlock::Bullets &) const { return Kind::List; }
        Kind operator()(const MDBlock::Ordered &) const { return Kind::List; }
        Kind operator()(const MDBlock::Tasks &) const { return Kind::Tasks; }
        Kind operator()(const MDBlock::Quote &) const { return Kind::Quote; }
        Kind operator()(const MDBlock::Code &) const { return Kind::Code; }
        Kind operator()(const MDBlock::Table &) const { return Kind::Table; }
        Kind operator()(const MDBlock::Rule &) const { return Kind::Rule; }
    };
    return std::visit(KindOf(), content);
}

/// The parts of a message that rows show.
QList<BlockPart> partsIn(const QList<FeedRow> &rows) {
    QList<BlockPart> parts;
    for (const FeedRow &row : rows) {
        if (row.kind >= Kind::Own && row.kind <= Kind::Rule)
            parts.append(row.part);
    }
    return parts;
}

/// The parts of a text; one that is still being written is never without any.
QList<BlockPart> partsIn(const QString &body, bool mine, bool growing) {
    if (mine)
        return body.isEmpty() ? QList<BlockPart>() : text::plainParts(body);
    const auto parts =
        text::partsOf(growing ? text::MDParser::parse(body) : text::MDParser::blocks(body));
    return parts.isEmpty() && growing ? text::plainParts(body) : parts;
}

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
    QList<Shown> added;
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
    const Shown now = build(message, m_shown.at(message));
    m_shown[message].body = now.body;
    exchange(message, now.rows);
}

void FeedRows::refreshAll() {
    for (int message = 0; message < m_shown.size(); ++message)
        refresh(message);
}

/// Tells of what differs between the rows that a message had and has: of rows that say something
/// else, and of rows that came or went. A row does not turn into another kind.
void FeedRows::exchange(int message, const QList<FeedRow> &rows) {
    const QList<FeedRow> before = m_shown.at(message).rows;
    const qsizetype shorter = std::min(before.size(), rows.size());
    const auto fromEnd = [](const QList<FeedRow> &list, qsizetype i) -> const FeedRow & {
        return list.at(list.size() - 1 - i);
    };
    // Rows that are the same at the end stay there. Else rows keep their place from the top.
    qsizetype same = 0;
    while (same < shorter && fromEnd(before, same) == fromEnd(rows, same))
        ++same;
    qsizetype head = 0;
    while (head < shorter - same && before.at(head).kind == rows.at(head).kind)
        ++head;
    qsizetype tail = same;
    while (tail < shorter - head && fromEnd(before, tail).kind == fromEnd(rows, tail).kind)
        ++tail;

    QList<FeedRow> &shown = m_shown[message].rows;
    const auto rowAt = [start = m_starts.at(message)](qsizetype row) {
        return start + static_cast<int>(row);
    };
    if (const qsizetype gone = before.size() - tail - head; gone > 0) {
        beginRemoveRows({}, rowAt(head), rowAt(head + gone) - 1);
        shown.remove(head, gone);
        sumUp(message);
        endRemoveRows();
    }
    if (const qsizetype added = rows.size() - tail - head; added > 0) {
        beginInsertRows({}, rowAt(head), rowAt(head + added) - 1);
        shown = shown.first(head) + rows.sliced(head, added) + shown.sliced(head);
        sumUp(message);
        endInsertRows();
    }
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (shown.at(row) == rows.at(row))
            continue;
        shown[row] = rows.at(row);
        const QModelIndex changed = index(rowAt(row));
        Q_EMIT dataChanged(changed, changed, {RowRole});
    }
}

QVariant FeedRows::field(int message, int role) const {
    return m_messages->index(message, 0).data(role);
}

/// What shows of a message now. Parts of a text that has not changed since `before` are taken from
/// there.
FeedRows::Shown FeedRows::build(int message, const Shown &before) const {
    Shown shown{field(message, MessageModel::BodyRole).toString(), {}};
    const QString &body = shown.body;
    QList<FeedRow> &rows = shown.rows;
    FeedRow row;
    row.messageId = field(message, MessageModel::MessageIdRole).toString();
    row.mine = field(message, MessageModel::WhoRole).value<store::Who>() == store::Who::You;
    const auto add = [&rows, &row](Kind kind) -> FeedRow & {
        rows.append(row);
        rows.last().kind = kind;
        return rows.last();
    };
    if (message == 0 && m_olderBefore)
        add(Kind::Older);
    if (const QString label = dayLabel(message); !label.isEmpty())
        add(Kind::Day).label = label;
    if (!m_unreadFrom.isEmpty() && row.messageId == m_unreadFrom)
        add(Kind::Unread);

    row.callId = field(message, MessageModel::CallIdRole).toString();
    if (!row.callId.isEmpty()) {
        FeedRow &call = add(Kind::Call);
        call.label = body;
        call.callHasLines = field(message, MessageModel::CallHasLinesRole).toBool();
        call.callOpen = field(message, MessageModel::CallOpenRole).toBool();
        return shown;
    }
    row.fromCall = field(message, MessageModel::FromCallRole).toBool();
    const bool growing = field(message, MessageModel::GrowingRole).toBool();
    const auto delivery = field(message, MessageModel::DeliveryRole).value<store::Delivery>();
    const QString time = field(message, MessageModel::TimeRole).toString();
    if (!row.mine) {
        FeedRow &head = add(Kind::Head);
        head.time = time;
        head.memberLabel = field(message, MessageModel::MemberLabelRole).toString();
    }
    QList<BlockPart> parts;
    if (before.body == body)
        parts = partsIn(before.rows);
    if (parts.isEmpty())
        parts = partsIn(body, row.mine, growing);
    const auto files = field(message, MessageModel::FilesRole).value<QList<store::MsgFile>>();
    if (!files.isEmpty()) {
        FeedRow &above = add(Kind::Files);
        above.files = files;
        above.last = parts.isEmpty();
    }
    const qsizetype bubble = rows.size();
    for (BlockPart &part : parts) {
        FeedRow &words = add(row.mine ? Kind::Own : kindOf(part.content));
        words.delivery = delivery;
        words.part = std::move(part);
    }
    if (rows.size() > bubble) {
        rows[bubble].first = true;
        rows.last().last = true;
        rows.last().growing = growing;
    }

    FeedRow &tail = add(Kind::Tail);
    tail.growing = growing;
    tail.delivery = delivery;
    tail.time = time;
    tail.cardTitle = field(message, MessageModel::CardTitleRole).toString();
    tail.cardArt = field(message, MessageModel::CardArtRole).toString();
    tail.onCanvas = field(message, MessageModel::OnCanvasRole).toBool();
    tail.chips = field(message, MessageModel::ChipsRole).value<QList<canvas::ReplyChip>>();
    return shown;
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
    const auto found = std::ranges::find_if(
        m_shown, [&](const Shown &shown) { return shown.rows.first().messageId == messageId; });
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
