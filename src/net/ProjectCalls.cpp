#include "base/BaseUrl.h"
#include "base/Text.h"
#include "net/KivAPI.h"

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

constexpr int briefLimit = 4000;

QString projectPath(const QString &slug, const QString &part) {
    return u"api/v2/projects/"_s + pathSegment(slug) + u'/' + part;
}

/// Reply to creating a project.
struct Wrap {
    ProjectSummary project;
};

} // namespace

template <>
inline constexpr auto tableOf<Wrap> = recordTable("Wrap", Field{&Wrap::project, "project"});

namespace KivAPI {

QCoro::Task<ProjectsList> projects(APIClient *client, Cancel cancel) {
    return client->get<ProjectsList>(u"api/v2/projects"_s, {}, std::move(cancel));
}

QCoro::Task<QList<ProjectMember>> projectRoster(APIClient *client, QString slug, Cancel cancel) {
    return client->get<QList<ProjectMember>>(projectPath(slug, u"members"_s), {},
                                             std::move(cancel));
}

QCoro::Task<QList<ProjectEvent>> projectEvents(APIClient *client, QString slug, int limit,
                                               Cancel cancel) {
    const APIClient::Query query{{u"limit"_s, QString::number(limit)}};
    ProjectEventsPage page =
        co_await client->get<ProjectEventsPage>(projectPath(slug, u"events"_s), query, cancel);
    co_return std::move(page.events).value_or(QList<ProjectEvent>());
}

QCoro::Task<ProjectSummary> createProject(APIClient *client, QString label, QString brief,
                                          Cancel cancel) {
    const QJsonObject body{{u"label"_s, label}, {u"brief"_s, firstCharacters(brief, briefLimit)}};
    const QByteArray reply = co_await client->postRaw(u"api/v2/projects"_s, body, cancel);
    co_return decodeBody<Wrap>(reply).project;
}

QCoro::Task<AgentsList> agents(APIClient *client, Cancel cancel) {
    return client->get<AgentsList>(u"api/v2/custom-agents"_s, {}, std::move(cancel));
}

QCoro::Task<OrchestratorInfo> orchestrator(APIClient *client, Cancel cancel) {
    return client->get<OrchestratorInfo>(u"api/v2/orchestrator"_s, {}, std::move(cancel));
}

QCoro::Task<AgentCreateResult> createAgent(APIClient *client, QString name, QString role,
                                           QString description, QString projectSlug,
                                           Cancel cancel) {
    QJsonObject body{
        {u"name"_s, name},
        {u"role"_s, role},
        {u"description"_s, description.isEmpty() ? role + u" specialist"_s : description},
        {u"agent_type"_s, u"employee"_s},
        {u"status"_s, u"active"_s},
        {u"trigger_type"_s, u"manual"_s},
    };
    if (!projectSlug.isEmpty())
        body.insert(u"project_slug"_s, projectSlug);
    const QByteArray reply = co_await client->postRaw(u"api/v2/custom-agents"_s, body, cancel);
    co_return decodeBody<AgentCreateResult>(reply);
}

} // namespace KivAPI

} // namespace kiv::net
