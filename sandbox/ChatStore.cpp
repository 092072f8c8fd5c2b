#include "ChatStore.h"

#include "Database.h"
#include "Files.h"
#include "Http.h"

#include <QDateTime>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

const QString columns = u"SELECT id, role, content, metadata, created_at FROM messages"
                        u" WHERE account = ? AND chat = ?"_s;

ChatMessage messageOf(const Row &row) {
    return {row.whole(0), row.text(1), row.text(2),
            QJsonDocument::fromJson(row.text(3).toUtf8()).object(), row.text(4)};
}

ChatMessage insert(Sql &sql, const ChatKey &key, const QString &role, const QString &content,
                   const QJsonObject &metadata, const QVariant &requestId) {
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    const qint64 id = sql.insert(
        u"INSERT INTO messages (account, chat, role, content, metadata, request_id, created_at)"
        u" VALUES (?, ?, ?, ?, ?, ?, ?)"_s,
        {key.account, key.chat, role, content, QString::fromUtf8(compact(metadata)), requestId,
         now});
    return {id, role, content, metadata, now};
}

} // namespace

QJsonObject ChatMessage::rowObject(const QString &origin) const {
    QJsonObject shown = metadata;
    QJsonArray attachments;
    for (const QJsonValue &value : metadata.value(u"attachments"_s).toArray()) {
        QJsonObject attachment = value.toObject();
        const QString key = attachment.value(u"key"_s).toString();
        if (!key.isEmpty())
            attachment.insert(u"url"_s, fileAddress(origin, key));
        attachments.append(attachment);
    }
    if (!attachments.isEmpty())
        shown.insert(u"attachments"_s, attachments);
    return {{u"id"_s, id},
            {u"role"_s, role},
            {u"content"_s, content},
            {u"metadata"_s, shown.isEmpty() ? QJsonValue() : QJsonValue(shown)},
            {u"created_at"_s, createdAt}};
}

QList<ChatMessage> ChatStore::history(const ChatKey &key, int limit) {
    const auto rows = m_database.run([&](Sql &sql) {
        return sql.rows(columns + u" ORDER BY id DESC LIMIT ?"_s, {key.account, key.chat, limit});
    });
    QList<ChatMessage> messages;
    std::transform(rows.rbegin(), rows.rend(), std::back_inserter(messages), messageOf);
    return messages;
}

ChatMessage ChatStore::append(const ChatKey &key, const QString &role, const QString &content,
                              const QJsonObject &metadata) {
    return m_database.run(
        [&](Sql &sql) { return insert(sql, key, role, content, metadata, QVariant()); });
}

std::pair<ChatMessage, bool> ChatStore::appendOnce(const ChatKey &key, const QString &content,
                                                   const QJsonObject &metadata,
                                                   const QString &requestId) {
    return m_database.run([&](Sql &sql) {
        if (requestId.isEmpty())
            return std::pair(insert(sql, key, u"user"_s, content, metadata, QVariant()), true);
        const auto earlier =
            sql.row(columns + u" AND request_id = ?"_s, {key.account, key.chat, requestId});
        return earlier ? std::pair(messageOf(*earlier), false)
                       : std::pair(insert(sql, key, u"user"_s, content, metadata, requestId), true);
    });
}

bool ChatStore::isAnswered(const ChatKey &key, const ChatMessage &message) {
    return m_database.run([&](Sql &sql) {
        return sql
            .row(u"SELECT 1 FROM messages WHERE account = ? AND chat = ? AND id > ?"
                 u" AND role <> 'user' LIMIT 1"_s,
                 {key.account, key.chat, message.id})
            .has_value();
    });
}

void ChatStore::update(const ChatMessage &message) {
    m_database.run([&](Sql &sql) {
        sql.exec(u"UPDATE messages SET content = ?, metadata = ? WHERE id = ?"_s,
                 {message.content, QString::fromUtf8(compact(message.metadata)), message.id});
    });
}

qint64 ChatStore::characters(const QString &account) {
    const auto row = m_database.run([&](Sql &sql) {
        return sql.row(
            u"SELECT COALESCE(SUM(LENGTH(content)), 0) FROM messages WHERE account = ?"_s,
            {account});
    });
    return row->whole(0);
}

} // namespace kiv::sandbox
