#include "soak/Program.h"

#include "soak/ShownWindow.h"

namespace kiv::soak {

using namespace Qt::StringLiterals;

Program::Program(Clock &clock, net::Connectivity &connectivity, const QString &profile,
                 const QUrl &server)
    : m_settings(profile + u"/settings.ini"_s),
      m_net(clock, connectivity, profile + u"/cookies.json"_s),
      m_store(clock, m_net, m_settings, profile + u"/drafts.json"_s) {
    m_net.setBaseUrl(server);
    m_window = ShownWindow::open(m_store);
    m_store.boot();
}

Program::~Program() = default;

} // namespace kiv::soak
