#pragma once

#include "Doorkeeper.h"
#include "Http.h"

namespace kiv::sandbox {

class Faults;
class LoopbackServer;
class Sessions;

/// Puts routes on the server and does for each what all have in common: the look at the door, the
/// check of the session, the faults in force, and the form of replies and refusals.
class Router {
public:
    enum class Access { Everybody, SignedIn };
    using Handler = std::function<Reply(const Call &)>;

    Router(LoopbackServer &server, Sessions &sessions, Faults &faults);

    /// `pattern` is an anchored regular expression over the decoded path.
    void get(const std::string &pattern, Access access, Handler handler);
    void post(const std::string &pattern, Access access, Handler handler);
    void patch(const std::string &pattern, Access access, Handler handler);
    /// A route to which who is signed in sends files.
    void upload(const std::string &pattern, Handler handler);

    /// The port that requests have to name as their host; to be set before the first request.
    void setPort(int port) { m_door.setPort(port); }

private:
    httplib::Server::Handler wrap(Access access, Handler handler);
    Reply answer(const httplib::Request &request, Access access, const Handler &handler);
    void installDoor();
    void installErrorReplies();

    LoopbackServer &m_server;
    Sessions &m_sessions;
    Faults &m_faults;
    Doorkeeper m_door;
};

} // namespace kiv::sandbox
