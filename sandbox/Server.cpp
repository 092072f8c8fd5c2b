#include "Server.h"

#include "LoopbackServer.h"
#include "Router.h"
#include "Services.h"
#include "routes/Routes.h"
#include "voice/VoiceServer.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

Server::Server(const Options &options)
    : m_services(std::make_unique<Services>(options)),
      m_http(std::make_unique<LoopbackServer>()),
      m_router(std::make_unique<Router>(*m_http, m_services->sessions, m_services->faults)) {
    m_port = m_http->bindLoopback(options.port);
    if (m_port <= 0)
        throw std::runtime_error("the port cannot be had");
    m_router->setPort(m_port);
    m_voice = std::make_unique<VoiceServer>(*m_services, m_port);
    addAuthRoutes(*m_router, *m_services);
    addWorkspaceRoutes(*m_router, *m_services);
    addChatRoutes(*m_router, *m_services);
    addFileRoutes(*m_router, *m_services);
    addAccountRoutes(*m_router, *m_services);
    addVoiceRoutes(*m_router, *m_services, *m_voice);
    addPageRoutes(*m_router, *m_services);
    addSurfaceRoutes(*m_router, *m_services);
    if (options.control)
        addControlRoutes(*m_router, *m_services);
    m_setAside = m_services->database.open();
    m_thread = std::thread([this] { m_http->listen_after_bind(); });
}

Server::~Server() {
    m_services->faults.release();
    m_services->answerer.close();
    m_services->hub.close();
    m_http->stopNow();
    m_thread.join();
}

QString Server::url() const {
    return u"http://127.0.0.1:%1"_s.arg(m_port);
}

QString Server::sampleEmail() const {
    return m_services->sample.email();
}

QString Server::samplePassword() const {
    return m_services->sample.password();
}

} // namespace kiv::sandbox
