#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <tuple>

namespace kiv::sandbox {

class Database;

/// Which conversation: an account's chat with one agent or one project room.
struct ChatKey {
    QString account;
    QString chat; ///< "agent:" or "project:" followed by the id or slug

    static ChatKey ofAgent(const QString &account, const QString &id) {
        return {account, QStringLiteral("agent:") + id};
    }
    static ChatKey ofProject(const QString &account, const QString &slug) {
        return {account, QStringLiteral("project:") + slug};
    }
    friend bool operator<(const ChatKey &one, const ChatKey &other) {
        return std::tie(one.account, one.chat) < std::tie(other.account, other.chat);
    }
};

/// One stored message. Attachments in `metadata` name files by key; rowObject adds addresses.
struct ChatMessage {
    qint64 id = 0;
    QString role;
    QString content;
    QJsonObject metadata;
    QString createdAt;

    /// The row as it goes out, with the addresses of its files under `origin`.
    QJsonObject rowObject(const QString &origin) const;
};

/// Conversations on disk.
class ChatStore {
public:
    explicit ChatStore(Database &database) : m_database(database) {}

    /// The last `limit` messages, oldest first.
    QList<ChatMessage> history(const ChatKey &key, int limit);
    ChatMessage append(const ChatKey &key, const QString &role, const QString &content,
                       const QJsonObject &metadata);
    /// Stores a person's message, unless an earlier request with the same id (empty for none) did.
    /// The result is the stored message, and whether it is new.
    std::pair<ChatMessage, bool> appendOnce(const ChatKey &key, const QString &content,
                                            const QJsonObject &metadata, const QString &requestId);
    /// Whether somebody else has said something after the message.
    bool isAnswered(const ChatKey &key, const ChatMessage &message);
    /// Replaces what an answer says so far.
    void update(const ChatMessage &message);
    /// How many characters the account's conversations hold.
    qint64 characters(const QString &account);

private:
    Database &m_database;
};

} // namespace kiv::sandbox
