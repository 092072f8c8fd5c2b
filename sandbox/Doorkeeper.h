#pragma once

#include "Http.h"

#include <regex>
#include <vector>

namespace kiv::sandbox {

class Sessions;

/// The cookie that says who is signed in.
constexpr QByteArrayView sessionCookie = "kiv_session";

/// Looks at the head of a request before anything of its body is read: whether it is meant for this
/// server and comes from it, and whether it brings no more than its route takes.
class Doorkeeper {
public:
    explicit Doorkeeper(Sessions &sessions) : m_sessions(sessions) {}

    /// The port that requests have to name as their host; to be set before the first request.
    void setPort(int port) { m_port = port; }
    /// Who is signed in may send files to the paths of the pattern; all others take JSON.
    void letFilesInto(const std::string &pattern) { m_fileRoutes.emplace_back(pattern); }

    /// Throws Refusal.
    void check(const httplib::Request &request) const;
    /// The server's own address, as the peer wrote it.
    static QString originOf(const httplib::Request &request);

private:
    void checkHost(const httplib::Request &request) const;
    static void checkOrigin(const httplib::Request &request);
    void checkBody(const httplib::Request &request) const;

    Sessions &m_sessions;
    std::vector<std::regex> m_fileRoutes;
    int m_port = 0;
};

} // namespace kiv::sandbox
