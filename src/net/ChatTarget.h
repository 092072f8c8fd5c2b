#pragma once

#include <QString>

namespace kiv::net {

/// Whom a chat is with: one agent, or a project's room. Knows the paths of its chat.
class ChatTarget {
public:
    static ChatTarget agent(QString id) { return ChatTarget(Kind::Agent, std::move(id)); }
    static ChatTarget project(QString slug) { return ChatTarget(Kind::Project, std::move(slug)); }

    bool isAgent() const { return m_kind == Kind::Agent; }
    bool isProject() const { return m_kind == Kind::Project; }
    /// The agent's id or the project's slug.
    const QString &id() const { return m_id; }

    /// Relative to the base URL.
    QString chatPath() const;
    QString streamPath() const;
    QString filesPath() const;
    QString stopPath() const;

    friend bool operator==(const ChatTarget &, const ChatTarget &) = default;

private:
    enum class Kind { Agent, Project };
    ChatTarget(Kind kind, QString id) : m_kind(kind), m_id(std::move(id)) {}

    Kind m_kind;
    QString m_id;
};

} // namespace kiv::net
