#include "store/ChatAttachment.h"

#include <QJsonObject>

namespace kiv::store {

using namespace Qt::StringLiterals;

ChatAttachment attachmentOf(const net::KivAPI::UploadedFile &file, const QString &sentAs) {
    ChatAttachment attachment;
    attachment.name = file.name.value_or(sentAs);
    attachment.size = file.size;
    attachment.mime = file.mime;
    attachment.text = file.text;
    attachment.url = file.url;
    attachment.key = file.key;
    attachment.kind = file.kind.value_or(u"file"_s);
    return attachment;
}

QJsonObject attachmentBody(const ChatAttachment &attachment) {
    QJsonObject body{{u"name"_s, attachment.name}};
    const auto insert = [&body](const QString &key, const auto &value) {
        if (value)
            body.insert(key, *value);
    };
    insert(u"size"_s, attachment.size);
    insert(u"mime"_s, attachment.mime);
    insert(u"text"_s, attachment.text);
    insert(u"kind"_s, attachment.kind);
    insert(u"url"_s, attachment.url);
    insert(u"key"_s, attachment.key);
    return body;
}

QJsonArray attachmentBodies(const QList<ChatAttachment> &attachments) {
    QJsonArray bodies;
    for (const ChatAttachment &attachment : attachments)
        bodies.append(attachmentBody(attachment));
    return bodies;
}

} // namespace kiv::store
