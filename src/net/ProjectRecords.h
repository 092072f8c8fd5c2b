#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

namespace kiv::net {

struct ProjectSummary {
    QString slug; ///< the project's identity in paths
    std::optional<QString> label;
    std::optional<QString> name;
    std::optional<QString> status;
    std::optional<qint64> agentsCount;

    friend bool operator==(const ProjectSummary &, const ProjectSummary &) = default;
};

struct ProjectsList {
    QList<ProjectSummary> projects;

    friend bool operator==(const ProjectsList &, const ProjectsList &) = default;
};

/// One row of a project's roster.
struct ProjectMember {
    struct MemberAgent {
        QString id;
        std::optional<QString> name;
        std::optional<QString> role;
        std::optional<QString> status;

        friend bool operator==(const MemberAgent &, const MemberAgent &) = default;
    };

    std::optional<QString> memberKind;
    std::optional<MemberAgent> agent;

    friend bool operator==(const ProjectMember &, const ProjectMember &) = default;
};

namespace KivAPI {

/// One line of a project's event feed.
struct ProjectEvent {
    std::optional<qint64> id;
    std::optional<QString> kind;
    std::optional<QString> title;
    std::optional<QString> detail;
    std::optional<QString> createdAt;

    friend bool operator==(const ProjectEvent &, const ProjectEvent &) = default;
};

struct ProjectEventsPage {
    std::optional<QList<ProjectEvent>> events;

    friend bool operator==(const ProjectEventsPage &, const ProjectEventsPage &) = default;
};

} // namespace KivAPI

// clang-format off
template <>
inline constexpr auto tableOf<ProjectSummary> = recordTable("ProjectSummary",
    Field{&ProjectSummary::slug, "slug"},
    Field{&ProjectSummary::label, "label"},
    Field{&ProjectSummary::name, "name"},
    Field{&ProjectSummary::status, "status"},
    Field{&ProjectSummary::agentsCount, "agents_count"});

template <>
inline constexpr auto tableOf<ProjectsList> = recordTable("ProjectsList",
    Field{&ProjectsList::projects, "projects"});

template <>
inline constexpr auto tableOf<ProjectMember::MemberAgent> = recordTable("ProjectMember.MemberAgent",
    Field{&ProjectMember::MemberAgent::id, "id"},
    Field{&ProjectMember::MemberAgent::name, "name"},
    Field{&ProjectMember::MemberAgent::role, "role"},
    Field{&ProjectMember::MemberAgent::status, "status"});

template <>
inline constexpr auto tableOf<ProjectMember> = recordTable("ProjectMember",
    Field{&ProjectMember::memberKind, "member_kind"},
    Field{&ProjectMember::agent, "agent"});

template <>
inline constexpr auto tableOf<KivAPI::ProjectEvent> = recordTable("KivAPI.ProjectEvent",
    Field{&KivAPI::ProjectEvent::id, "id"},
    Field{&KivAPI::ProjectEvent::kind, "kind"},
    Field{&KivAPI::ProjectEvent::title, "title"},
    Field{&KivAPI::ProjectEvent::detail, "detail"},
    Field{&KivAPI::ProjectEvent::createdAt, "created_at"});

template <>
inline constexpr auto tableOf<KivAPI::ProjectEventsPage> = recordTable("KivAPI.ProjectEventsPage",
    Field{&KivAPI::ProjectEventsPage::events, "events"});
// clang-format on

} // namespace kiv::net
