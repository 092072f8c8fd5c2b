#include "store/MessageModel.h"

#include "base/LocalText.h"

#include <algorithm>

namespace kiv::store {

namespace {

bool isSame(const Msg &a, const Msg &b) {
    return a.id == b.id || (a.serverID && a.serverID == b.serverID);
}

} // namespace

void MessageModel::append(Msg message) {
    const int row = count();
    beginInsertRows({}, row, row);
    m_messages.append(std::move(message));
    endInsertRows();
    countHasChanged();
}

void MessageModel::replaceAll(QList<Msg> messages) {
    const auto comesBack = [&](const Msg &shown) {
        return std::ranges::any_of(messages,
                                   [&](const Msg &message) { return isSame(shown, message); });
    };
    for (qsizetype end = m_messages.size(); end > 0;) {
        qsizetype first = end;
        while (first > 0 && !comesBack(m_messages.at(first - 1)))
            --first;
        removeRange(first, end);
        end = first - 1;
    }
    for (qsizetype row = 0; row < messages.size();) {
        const auto isShownHere = [&](const Msg &message) {
            return row < m_messages.size() && isSame(m_messages.at(row), message);
        };
        if (isShownHere(messages.at(row))) {
            update(row, messages.at(row));
            ++row;
            continue;
        }
        const auto begin = messages.cbegin() + row;
        const auto end = std::find_if(begin, messages.cend(), isShownHere);
        insertRange(row, QList<Msg>(begin, end));
        row += end - begin;
    }
    // Rows that stood in another order.
    removeRange(messages.size(), m_messages.size());
    countHasChanged();
}

void MessageModel::insertRange(qsizetype row, const QList<Msg> &messages) {
    beginInsertRows({}, static_cast<int>(row), static_cast<int>(row + messages.size()) - 1);
    QList<Msg> below = m_messages.sliced(row);
    m_messages.resize(row);
    m_messages += messages + below;
    endInsertRows();
}

void MessageModel::removeRange(qsizetype first, qsizetype end) {
    if (first >= end)
        return;
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
    m_messages.remove(first, end - first);
    endRemoveRows();
}

void MessageModel::update(qsizetype row, Msg message) {
    Msg &shown = m_messages[row];
    message.id = shown.id;
    if (!message.chipsChosen)
        message.chipsChosen = shown.chipsChosen;
    if (shown == message)
        return;
    shown = std::move(message);
    const QModelIndex changed = index(static_cast<int>(row));
    Q_EMIT dataChanged(changed, changed,
                       {BodyRole, RawTextRole, TimeRole, DayRole, MemberLabelRole, FilesRole,
                        DeliveryRole, CardTitleRole, CardArtRole, CallOpenRole, ChipsRole});
}

void MessageModel::remove(qsizetype row) {
    removeRange(row, row + 1);
    countHasChanged();
}

qsizetype MessageModel::find(const std::function<bool(const Msg &)> &matches) const {
    const auto found = std::ranges::find_if(m_messages, matches);
    return found == m_messages.end() ? -1 : found - m_messages.begin();
}

qsizetype MessageModel::rowOfServerID(qint64 id) const {
    return find([id](const Msg &message) { return message.serverID == id; });
}

qsizetype MessageModel::rowOf(const QUuid &id) const {
    return find([id](const Msg &message) { return message.id == id; });
}

void MessageModel::countHasChanged() {
    const QUuid last = m_messages.isEmpty() ? QUuid() : m_messages.last().id;
    const QUuid before = std::exchange(m_last, last);
    if (before != last) {
        touch(before, {ChipsRole});
        touch(last, {ChipsRole});
    }
    Q_EMIT countChanged();
}

void MessageModel::touch(const QUuid &id, const QList<int> &roles) {
    const qsizetype row = id.isNull() ? -1 : rowOf(id);
    if (row < 0)
        return;
    const QModelIndex changed = index(static_cast<int>(row));
    Q_EMIT dataChanged(changed, changed, roles);
}

void MessageModel::setGrowing(const QUuid &id) {
    if (id == m_growing)
        return;
    const QUuid before = std::exchange(m_growing, id);
    touch(before, {GrowingRole, BodyRole, ChipsRole});
    touch(id, {GrowingRole, BodyRole, ChipsRole});
}

void MessageModel::setOnCanvas(const QUuid &id) {
    if (id == m_onCanvas)
        return;
    const QUuid before = std::exchange(m_onCanvas, id);
    touch(before, {OnCanvasRole});
    touch(id, {OnCanvasRole});
}

void MessageModel::chooseChip(qsizetype row, const QString &label) {
    m_messages[row].chipsChosen = label;
    touch(m_messages.at(row).id, {ChipsRole});
}

void MessageModel::retranslate() {
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), {TimeRole, DayRole});
}

int MessageModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant MessageModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Msg &message = m_messages.at(index.row());
    switch (role) {
    case MessageIdRole:
        return message.id.toString(QUuid::WithoutBraces);
    case WhoRole:
        return QVariant::fromValue(message.who);
    case Qt::DisplayRole:
    case BodyRole:
        return message.id == m_growing ? message.shownMeanwhile : message.shown;
    case RawTextRole:
        return message.text;
    case TimeRole:
        return message.at ? timeText(*message.at) : QString();
    case DayRole:
        return message.at ? message.at->toLocalTime().date() : QDate();
    case MemberLabelRole:
        return message.memberLabel;
    case FilesRole:
        return QVariant::fromValue(message.files);
    case DeliveryRole:
        if (!message.isUnsent())
            return QVariant::fromValue(Delivery::Stored);
        return QVariant::fromValue(message.failed ? Delivery::Failed : Delivery::Pending);
    case GrowingRole:
        return message.id == m_growing;
    case CardTitleRole:
        return message.title;
    case CardArtRole:
        return message.art;
    case OnCanvasRole:
        return message.id == m_onCanvas;
    case FromCallRole:
        return message.fromCall;
    case CallIdRole:
        return message.callHead ? message.callID : QString();
    case CallHasLinesRole:
        return message.callHasLines;
    case CallOpenRole:
        return message.callOpen;
    case ChipsRole: {
        const bool offered =
            message.id == m_last && message.id != m_growing && !message.chipsChosen;
        return QVariant::fromValue(offered ? message.chips : QList<canvas::ReplyChip>());
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> MessageModel::roleNames() const {
    return {{MessageIdRole, "messageId"},
            {WhoRole, "who"},
            {BodyRole, "body"},
            {RawTextRole, "rawText"},
            {TimeRole, "time"},
            {DayRole, "day"},
            {MemberLabelRole, "memberLabel"},
            {FilesRole, "files"},
            {DeliveryRole, "delivery"},
            {GrowingRole, "growing"},
            {CardTitleRole, "cardTitle"},
            {CardArtRole, "cardArt"},
            {OnCanvasRole, "onCanvas"},
            {FromCallRole, "fromCall"},
            {CallIdRole, "callId"},
            {CallHasLinesRole, "callHasLines"},
            {CallOpenRole, "callOpen"},
            {ChipsRole, "chips"}};
}

FeedModel::FeedModel(MessageModel *messages, QObject *parent) : QSortFilterProxyModel(parent) {
    setSourceModel(messages);
    connect(messages, &MessageModel::countChanged, this, &FeedModel::follow);
}

void FeedModel::setWindow(int window) {
    m_window = window;
    follow();
}

void FeedModel::follow() {
    const bool older = sourceModel()->rowCount() > m_window;
    // Rows leave the window only once there are more than it holds.
    if (older || m_hasOlder)
        invalidateFilter();
    if (older != m_hasOlder) {
        m_hasOlder = older;
        Q_EMIT hasOlderChanged();
    }
}

bool FeedModel::filterAcceptsRow(int row, const QModelIndex &) const {
    return row >= sourceModel()->rowCount() - m_window;
}

} // namespace kiv::store
