#include "ui/chat/MessageRows.h"

#include "store/MessageModel.h"
#include "text/MDParser.h"

namespace kiv::ui {

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

/// Makes the rows of one message, from the top down.
class RowMaker {
public:
    explicit RowMaker(const QModelIndex &message)
        : m_message(message),
          m_growing(flag(MessageModel::GrowingRole)),
          m_delivery(value<store::Delivery>(MessageModel::DeliveryRole)),
          m_time(text(MessageModel::TimeRole)) {
        m_common.messageId = text(MessageModel::MessageIdRole);
        m_common.mine = value<store::Who>(MessageModel::WhoRole) == store::Who::You;
    }

    bool isCall() const { return !text(MessageModel::CallIdRole).isEmpty(); }
    QString body() const { return text(MessageModel::BodyRole); }
    /// The parts of the text; one that is still being written is never without any.
    QList<BlockPart> partsOf(const QString &body) const {
        if (isMine())
            return body.isEmpty() ? QList<BlockPart>() : text::plainParts(body);
        const auto parts =
            text::partsOf(m_growing ? text::MDParser::parse(body) : text::MDParser::blocks(body));
        return parts.isEmpty() && m_growing ? text::plainParts(body) : parts;
    }
    QList<FeedRow> takeRows() { return std::move(m_rows); }

    void addPlace(const MessagePlace &place) {
        if (place.belowOlder)
            add(Kind::Older);
        if (!place.day.isEmpty())
            add(Kind::Day).label = place.day;
        if (place.isUnread)
            add(Kind::Unread);
    }

    void addCall() {
        FeedRow &call = add(Kind::Call);
        call.label = body();
        call.callId = text(MessageModel::CallIdRole);
        call.callHasLines = flag(MessageModel::CallHasLinesRole);
        call.callOpen = flag(MessageModel::CallOpenRole);
    }

    void addMessage(QList<BlockPart> parts) {
        m_common.fromCall = flag(MessageModel::FromCallRole);
        if (!isMine())
            addHead();
        addFiles(parts.isEmpty());
        addWords(std::move(parts));
        addTail();
    }

private:
    bool isMine() const { return m_common.mine; }

    template <typename T>
    T value(int role) const {
        return m_message.data(role).value<T>();
    }
    QString text(int role) const { return m_message.data(role).toString(); }
    bool flag(int role) const { return m_message.data(role).toBool(); }

    FeedRow &add(Kind kind) {
        m_rows.append(m_common);
        m_rows.last().kind = kind;
        return m_rows.last();
    }

    void addHead() {
        FeedRow &head = add(Kind::Head);
        head.time = m_time;
        head.memberLabel = text(MessageModel::MemberLabelRole);
    }

    void addFiles(bool isAll) {
        const auto files = value<QList<store::MsgFile>>(MessageModel::FilesRole);
        if (files.isEmpty())
            return;
        FeedRow &row = add(Kind::Files);
        row.files = files;
        row.last = isAll;
    }

    void addWords(QList<BlockPart> parts) {
        const qsizetype bubble = m_rows.size();
        m_rows.reserve(bubble + parts.size() + 1);
        for (BlockPart &part : parts) {
            FeedRow &words = add(isMine() ? Kind::Own : kindOf(part.content));
            words.delivery = m_delivery;
            words.part = std::move(part);
        }
        if (m_rows.size() == bubble)
            return;
        m_rows[bubble].first = true;
        m_rows.last().last = true;
        m_rows.last().growing = m_growing;
    }

    void addTail() {
        FeedRow &tail = add(Kind::Tail);
        tail.growing = m_growing;
        tail.delivery = m_delivery;
        tail.time = m_time;
        tail.cardTitle = text(MessageModel::CardTitleRole);
        tail.cardArt = text(MessageModel::CardArtRole);
        tail.onCanvas = flag(MessageModel::OnCanvasRole);
        tail.chips = value<QList<canvas::ReplyChip>>(MessageModel::ChipsRole);
    }

    QModelIndex m_message;
    bool m_growing;
    store::Delivery m_delivery;
    QString m_time;
    FeedRow m_common; ///< what all rows of the message have
    QList<FeedRow> m_rows;
};

} // namespace

MessageRows messageRows(const QModelIndex &message, const MessagePlace &place,
                        const MessageRows &before) {
    RowMaker maker(message);
    const QString body = maker.body();
    maker.addPlace(place);
    if (maker.isCall()) {
        maker.addCall();
        return {body, maker.takeRows()};
    }
    QList<BlockPart> parts;
    if (before.body == body)
        parts = partsIn(before.rows);
    if (parts.isEmpty())
        parts = maker.partsOf(body);
    maker.addMessage(std::move(parts));
    return {body, maker.takeRows()};
}

} // namespace kiv::ui
