#pragma once

#include "net/ChatRecords.h"

#include <QJsonArray>
#include <QUuid>

namespace kiv::store {

/// A file that was uploaded for the next message. What the server did not say is absent.
struct ChatAttachment {
    QUuid id = QUuid::createUuid();
    QString name;
    std::optional<qint64> size; ///< bytes
    std::optional<QString> mime;
    std::optional<QString> text; ///< what the file says, for a text
    std::optional<QString> url;
    std::optional<QString> key;
    std::optional<QString> kind;

    friend bool operator==(const ChatAttachment &, const ChatAttachment &) = default;
};

/// The attachment that an uploaded file becomes. `sentAs` is the name it was sent under.
ChatAttachment attachmentOf(const net::KivAPI::UploadedFile &file, const QString &sentAs);

/// What a message carries of an attachment; absent values are left out.
QJsonObject attachmentBody(const ChatAttachment &attachment);
QJsonArray attachmentBodies(const QList<ChatAttachment> &attachments);

} // namespace kiv::store
