#include "Router.h"

#include "Connection.h"
#include "Database.h"
#include "Faults.h"
#include "LoopbackServer.h"
#include "Sessions.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr QLatin1StringView controlPrefix = "/_control/"_L1;

void write(httplib::Response &response, const Reply &reply) {
    response.status = reply.status;
    // Of what people send nothing is taken for what it is not, or read by another site's page.
    response.set_header("X-Content-Type-Options", "nosniff");
    response.set_header("Cross-Origin-Resource-Policy", "same-origin");
    for (const auto &[name, value] : reply.headers)
        response.set_header(name.toStdString(), value.toStdString());
    if (reply.stream) {
        response.set_header("Cache-Control", "no-store");
        response.set_chunked_content_provider(reply.type.toStdString(), reply.stream);
    } else {
        response.set_content(reply.body.toStdString(), reply.type.toStdString());
    }
}

Reply refused(const Refusal &refusal) {
    return Reply::json(refusal.body(), refusal.status());
}

Reply faultReply(const Fault &fault) {
    if (fault.kind == Fault::Html)
        return Reply::html(u"<html><body><h1>Error %1</h1></body></html>"_s.arg(fault.value),
                           fault.value);
    if (fault.value < 400)
        return {.status = fault.value, .body = {}};
    return refused(Refusal(fault.value, u"Fault %1, as ordered."_s.arg(fault.value), fault.code));
}

} // namespace

Router::Router(LoopbackServer &server, Sessions &sessions, Faults &faults)
    : m_server(server), m_sessions(sessions), m_faults(faults), m_door(sessions) {
    installDoor();
    installErrorReplies();
}

void Router::get(const std::string &pattern, Access access, Handler handler) {
    m_server.Get(pattern, wrap(access, std::move(handler)));
}

void Router::post(const std::string &pattern, Access access, Handler handler) {
    m_server.Post(pattern, wrap(access, std::move(handler)));
}

void Router::patch(const std::string &pattern, Access access, Handler handler) {
    m_server.Patch(pattern, wrap(access, std::move(handler)));
}

void Router::upload(const std::string &pattern, Handler handler) {
    m_door.letFilesInto(pattern);
    post(pattern, Access::SignedIn, std::move(handler));
}

httplib::Server::Handler Router::wrap(Access access, Handler handler) {
    return [this, access, handler = std::move(handler)](const httplib::Request &request,
                                                        httplib::Response &response) {
        const QString method = QString::fromStdString(request.method);
        const QString path = QString::fromStdString(request.path);
        if (path.startsWith(controlPrefix)) { // what clears a fault is not struck by one
            write(response, answer(request, access, handler));
            return;
        }
        if (const auto slow = m_faults.take(method, path, {Fault::Slow}))
            Connection::current()->slowDown(Connection::Milliseconds(slow->value));
        if (const auto late = m_faults.take(method, path, {Fault::Latency}))
            m_faults.sleep(late->value);
        if (m_faults.take(method, path, {Fault::Close})) {
            Connection::current()->abort();
            return;
        }
        if (const auto fault = m_faults.take(method, path, {Fault::Status, Fault::Html})) {
            write(response, faultReply(*fault));
            return;
        }
        Reply reply = answer(request, access, handler);
        if (!reply.stream && m_faults.take(method, path, {Fault::BadJson}))
            reply.body.chop(reply.body.size() / 2 + 1);
        write(response, reply);
    };
}

Reply Router::answer(const httplib::Request &request, Access access, const Handler &handler) {
    try {
        Call call{request, {}, cookie(request, sessionCookie), Doorkeeper::originOf(request)};
        call.account = m_sessions.account(call.token);
        if (access == Access::SignedIn && call.account.isEmpty())
            throw Refusal(401, u"Sign in first."_s, u"unauthorized"_s);
        return handler(call);
    } catch (const Refusal &refusal) {
        return refused(refusal);
    } catch (const std::exception &error) {
        qCritical("%s %s: %s", request.method.c_str(), request.path.c_str(), error.what());
        const auto *stored = dynamic_cast<const DatabaseError *>(&error);
        if (stored && stored->kind() == DatabaseError::Kind::Full)
            return refused(Refusal(507, u"The disk of the workspace is full."_s, u"disk_full"_s));
        return refused(Refusal(500, u"Something went wrong on the server."_s, u"internal"_s));
    }
}

/// Who is turned away has not been read to the end: nothing else can come on that connection.
void Router::installDoor() {
    using Outcome = httplib::Server::HandlerResponse;
    m_server.set_pre_routing_handler(
        [this](const httplib::Request &request, httplib::Response &response) {
            Connection *connection = Connection::current();
            connection->beginBody();
            try {
                m_door.check(request);
                return Outcome::Unhandled;
            } catch (const Refusal &refusal) {
                write(response, refused(refusal));
                response.set_header("Connection", "close");
                connection->endAfterReply();
                return Outcome::Handled;
            }
        });
}

/// What the library refuses by itself (unknown paths, oversized bodies) gets the usual form too.
void Router::installErrorReplies() {
    using Outcome = httplib::Server::HandlerResponse;
    const httplib::Server::HandlerWithResponse handler = [](const httplib::Request &,
                                                            httplib::Response &response) {
        if (!response.body.empty())
            return Outcome::Unhandled;
        const QString text = response.status == 404   ? u"There is nothing here."_s
                             : response.status == 413 ? u"The request is too large."_s
                                                      : u"The request cannot be read."_s;
        write(response, refused(Refusal(response.status, text)));
        return Outcome::Handled;
    };
    m_server.set_error_handler(handler);
}

} // namespace kiv::sandbox
