#pragma once

#include "base/JVal.h"
#include "canvas/ReplyOptions.h"
#include "canvas/ViewSpec.h"
#include "net/ChatRecords.h"
#include "store/ChatAttachment.h"
#include "store/Enums.h"
#include "store/FileTypes.h"

#include <QDateTime>
#include <QUuid>

#include <optional>

namespace kiv::store {

/// A file of a message.
struct MsgFile {
    Q_GADGET
    QML_VALUE_TYPE(msgFile)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString url MEMBER url)
    Q_PROPERTY(kiv::store::FileKind kind READ kind STORED false)
public:
    QUuid id = QUuid::createUuid();
    QString name;
    QString url; ///< http or https

    FileKind kind() const { return fileKind(name); }
    /// Equal files are shown alike.
    friend bool operator==(const MsgFile &a, const MsgFile &b) {
        return a.name == b.name && a.url == b.url;
    }
};

/// One line of the conversation.
struct Msg {
    QUuid id = QUuid::createUuid();
    Who who = Who::Agent;
    QString text;                         ///< the row's own text
    QString shown;                        ///< what the bubble shows of it
    QString shownMeanwhile;               ///< what the bubble shows of it while it is being written
    std::optional<canvas::ViewSpec> spec; ///< what the canvas can read in it
    /// What is still to come changes nothing about `spec`, as far as can be told.
    bool isWhole = false;
    QString title; ///< heading of what the canvas can draw of it
    QString art;   ///< the scene the canvas can draw of it; empty when there is none
    std::optional<qint64> serverID;
    /// The request id of a message sent from here that the server has not confirmed.
    QString pendingID;
    bool failed = false;
    /// The stored row above a message of ours when it was sent, 0 for none. Nothing when the rows
    /// of the chat were not here yet.
    std::optional<qint64> follows;
    QList<MsgFile> files;
    /// What a message sent from here carries.
    QList<ChatAttachment> attachments;
    std::optional<JVal> view;
    QList<canvas::ReplyChip> chips;     ///< replies offered under an answer
    std::optional<QString> chipsChosen; ///< label of the one that was picked
    QString memberLabel;
    /// Said in a voice call, or the line of a call itself.
    bool fromCall = false;
    QString callID;              ///< the call that it belongs to
    bool callHead = false;       ///< the line of a call
    bool callHasLines = false;   ///< of the line of a call: there is what was said
    bool callOpen = false;       ///< of the line of a call: what was said follows it
    std::optional<QDateTime> at; ///< server time of the row

    /// The stored form of `sent`: its files stay, though the server may not repeat them.
    void keepFilesOf(const Msg &sent) {
        attachments = sent.attachments;
        if (files.isEmpty())
            files = sent.files;
    }
    bool isUnsent() const { return !pendingID.isEmpty() && !serverID; }
    friend bool operator==(const Msg &, const Msg &) = default;
};

/// A line of our own making: a greeting, a note, what the person typed.
Msg localMsg(Who who, const QString &text);

/// The files that can be opened from a message that carries these attachments.
QList<MsgFile> msgFiles(const QList<ChatAttachment> &attachments);

/// A server row as a message; nothing for a role that is neither side of the conversation.
std::optional<Msg> rowToMsg(const net::ChatRow &row);

} // namespace kiv::store
