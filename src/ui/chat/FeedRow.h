#pragma once

#include "canvas/ReplyOptions.h"
#include "store/Msg.h"
#include "ui/markdown/MarkdownPart.h"

#include <QQmlComponent>

namespace kiv::ui {

/// What a row of a feed is made of: one for each kind.
class FeedDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "view")
    Q_PROPERTY(Kind kind MEMBER kind REQUIRED)
    /// Has a property `row`, and an implicit height.
    Q_PROPERTY(QQmlComponent *view MEMBER view REQUIRED)
public:
    enum Kind {
        Older,  ///< leads to the messages before the first
        Day,    ///< names the day of what follows
        Unread, ///< stands above what the person has not seen
        Call,   ///< a call that took place here
        Head,   ///< who answers, and when
        Files,  ///< the files of a message
        Own,    ///< words of the person
        Paragraph,
        Heading,
        List,
        Tasks,
        Quote,
        Code,
        Table,
        Rule,
        Tail, ///< what goes with a message: its scene, and what can be done with it
    };
    Q_ENUM(Kind)

    using QObject::QObject;

    Kind kind = Paragraph;
    QQmlComponent *view = nullptr;
};

/// One row of a feed: a message takes several. What its kind does not show is empty.
struct FeedRow {
    Q_GADGET
    QML_VALUE_TYPE(feedRow)
    Q_PROPERTY(QString messageId MEMBER messageId)
    Q_PROPERTY(bool mine MEMBER mine)
    Q_PROPERTY(bool first MEMBER first)
    Q_PROPERTY(bool last MEMBER last)
    Q_PROPERTY(kiv::ui::MarkdownPart part MEMBER part)
    Q_PROPERTY(bool growing MEMBER growing)
    Q_PROPERTY(int delivery READ deliveryState)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString memberLabel MEMBER memberLabel)
    Q_PROPERTY(bool fromCall MEMBER fromCall)
    Q_PROPERTY(QString callId MEMBER callId)
    Q_PROPERTY(bool callHasLines MEMBER callHasLines)
    Q_PROPERTY(bool callOpen MEMBER callOpen)
    Q_PROPERTY(QList<kiv::store::MsgFile> files MEMBER files)
    Q_PROPERTY(QString cardTitle MEMBER cardTitle)
    Q_PROPERTY(QString cardArt MEMBER cardArt)
    Q_PROPERTY(bool onCanvas MEMBER onCanvas)
    Q_PROPERTY(QList<kiv::canvas::ReplyChip> chips MEMBER chips)
public:
    FeedDelegate::Kind kind = FeedDelegate::Paragraph;
    QString messageId;
    bool mine = false;
    bool first = false; ///< the bubble begins with it
    bool last = false;  ///< the bubble ends with it
    MarkdownPart part;
    bool growing = false; ///< more words will come behind it
    store::Delivery delivery = store::Delivery::Stored;
    QString label; ///< of a day or a call
    QString time;
    QString memberLabel;
    bool fromCall = false; ///< said in a call
    QString callId;
    bool callHasLines = false; ///< the call can be opened
    bool callOpen = false;     ///< what was said in the call follows it
    QList<store::MsgFile> files;
    QString cardTitle;
    QString cardArt;
    bool onCanvas = false;
    QList<canvas::ReplyChip> chips;

    int deliveryState() const { return static_cast<int>(delivery); }
    friend bool operator==(const FeedRow &, const FeedRow &) = default;
};

} // namespace kiv::ui
