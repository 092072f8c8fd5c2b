#pragma once

#include "Options.h"

#include <QString>

#include <memory>
#include <thread>

namespace kiv::sandbox {

class LoopbackServer;
class Router;
class VoiceServer;
struct Services;

/// The running server: listens from construction to destruction, on a thread of its own. Calls are
/// held on the thread that makes it, which has to run an event loop.
class Server {
public:
    /// Throws std::runtime_error when the port cannot be had or the database cannot be opened.
    explicit Server(const Options &options);
    /// Lets every stream and answer go, then waits for the threads.
    ~Server();

    QString url() const;
    QString sampleEmail() const;
    QString samplePassword() const;
    /// Where a damaged database has gone, which a fresh one stands in for; empty when there is
    /// none.
    const QString &setAside() const { return m_setAside; }

private:
    std::unique_ptr<Services> m_services;
    std::unique_ptr<LoopbackServer> m_http;
    std::unique_ptr<Router> m_router;
    std::unique_ptr<VoiceServer> m_voice;
    QString m_setAside;
    int m_port = 0;
    std::thread m_thread;
};

} // namespace kiv::sandbox
