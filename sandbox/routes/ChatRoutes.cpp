#include "EventStream.h"
#include "Router.h"
#include "Routes.h"
#include "Services.h"
#include "base/Text.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype longestMessage = 16'000;
constexpr qsizetype mostAttachments = 5;

/// Who is asked, found under the caller's account.
struct Target {
    ChatKey key;
    Scope scope;
    QString label; ///< the name that a project room's answers carry
    bool stopped = false;
};

Target projectTarget(Services &services, const Call &call) {
    const QString slug = call.segment(1);
    const QString label = services.workspace.projectLabel(call.account, slug);
    return {ChatKey::ofProject(call.account, slug), {call.account, slug, label, {}}, label};
}

Target agentTarget(Services &services, const Call &call) {
    const AgentRecord agent = services.workspace.agent(call.account, call.segment(1));
    return {ChatKey::ofAgent(call.account, agent.id),
            scopeOf(call.account, agent),
            {},
            agent.status == u"stopped"_s};
}

using FindTarget = Target (*)(Services &, const Call &);

Reply history(Services &services, const Call &call, FindTarget find) {
    const Target target = find(services, call);
    QJsonArray rows;
    for (const ChatMessage &message :
         services.chats.history(target.key, call.number("limit", 50, 1, 200)))
        rows.append(message.rowObject(call.origin));
    return Reply::json({{u"messages"_s, rows}});
}

QJsonArray checkedAttachments(const QJsonObject &body) {
    const QJsonValue value = body.value(u"attachments"_s);
    const QJsonArray attachments = value.toArray();
    if (!value.isUndefined() && !value.isArray())
        throw Refusal(400, u"\"attachments\" must be a list."_s, u"bad_value"_s);
    if (attachments.size() > mostAttachments)
        throw Refusal(400, u"A message carries at most %1 files."_s.arg(mostAttachments),
                      u"too_many_files"_s);
    QJsonArray kept;
    for (const QJsonValue &entry : attachments) {
        const QJsonObject object = entry.toObject();
        kept.append(QJsonObject{{u"name"_s, stringMember(object, "name"_L1, u"file"_s)},
                                {u"url"_s, stringMember(object, "url"_L1)},
                                {u"key"_s, stringMember(object, "key"_L1)}});
    }
    return kept;
}

Reply sent(const ChatMessage &message, const Call &call) {
    return Reply::json({{u"message"_s, message.rowObject(call.origin)}});
}

Reply send(Services &services, const Call &call, FindTarget find) {
    const Target target = find(services, call);
    const QJsonObject body = call.json();
    const QString text = stringMember(body, "text"_L1);
    const QString requestId = stringMember(body, "client_request_id"_L1);
    const QJsonArray attachments = checkedAttachments(body);
    if (text.trimmed().isEmpty() && attachments.isEmpty())
        throw Refusal(400, u"The message is empty."_s, u"empty_message"_s);
    if (characterCount(text) > longestMessage)
        throw Refusal(400, u"The message is longer than %1 characters."_s.arg(longestMessage),
                      u"message_too_long"_s);
    if (target.stopped)
        throw Refusal(409, u"%1 is stopped."_s.arg(target.scope.name), u"work_halted"_s);
    QJsonObject metadata;
    if (!attachments.isEmpty())
        metadata.insert(u"attachments"_s, attachments);
    const std::lock_guard asking(services.asking);
    const auto [message, isNew] = services.chats.appendOnce(target.key, text, metadata, requestId);
    // One that comes again is answered when the server ended before it was.
    if (!isNew && (services.answerer.isAnswering(target.key) ||
                   services.chats.isAnswered(target.key, message)))
        return sent(message, call);
    if (isNew)
        services.hub.publish(target.key, rowEvent(message.rowObject(call.origin)));
    QStringList files;
    for (const QJsonValue &attachment : attachments)
        files.append(attachment[u"name"_s].toString());
    const Question question{text, target.scope, files};
    services.answerer.begin(target.key, call.origin, [&services, question, label = target.label] {
        Answer answer =
            services.database.run([&question](Sql &sql) { return composeAnswer(sql, question); });
        if (!label.isEmpty())
            answer.metadata.insert(u"member_label"_s, label);
        return answer;
    });
    return sent(message, call);
}

/// Whether the session of a call goes on. The database is asked only when some session has ended.
EventStream::IsAllowed sessionOf(Services &services, const Call &call) {
    return [&sessions = services.sessions, token = call.token,
            seen = services.sessions.closings()]() mutable {
        const quint64 now = sessions.closings();
        return std::exchange(seen, now) == now || !sessions.account(token).isEmpty();
    };
}

Reply stream(Services &services, const Call &call, FindTarget find) {
    const Target target = find(services, call);
    const auto listener = services.hub.listen(target.key);
    if (!listener)
        throw Refusal(503, u"Too many open streams."_s, u"too_many_streams"_s);
    const auto fault = services.faults.take(
        QString::fromStdString(call.request.method), QString::fromStdString(call.request.path),
        {Fault::StreamDrop, Fault::HalfEvent, Fault::HalfCharacter, Fault::StreamStall});
    auto events = std::make_shared<EventStream>(services.hub, target.key, listener,
                                                sessionOf(services, call), fault);
    return {.body = {},
            .type = "text/event-stream",
            .stream = [events](size_t, httplib::DataSink &sink) { return events->pump(sink); }};
}

Reply stop(Services &services, const Call &call) {
    const bool stopped = services.answerer.stop(agentTarget(services, call).key);
    return Reply::json(QJsonObject{{u"ok"_s, true}, {u"stopped"_s, stopped}});
}

} // namespace

void addChatRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    const auto add = [&](const std::string &path, FindTarget find) {
        router.get(path, Access::SignedIn,
                   [&services, find](const Call &call) { return history(services, call, find); });
        router.post(path, Access::SignedIn,
                    [&services, find](const Call &call) { return send(services, call, find); });
        router.get(path + "/stream", Access::SignedIn,
                   [&services, find](const Call &call) { return stream(services, call, find); });
    };
    add("/api/v2/projects/([^/]+)/chat", projectTarget);
    add("/api/v2/custom-agents/([^/]+)/chat", agentTarget);
    router.post("/api/v2/custom-agents/([^/]+)/chat/stop", Access::SignedIn,
                [&services](const Call &call) { return stop(services, call); });
}

} // namespace kiv::sandbox
