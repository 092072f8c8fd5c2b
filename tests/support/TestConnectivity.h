#pragma once

#include "net/Connectivity.h"

namespace kiv::test {

/// A network cable that the test pulls.
class TestConnectivity : public net::Connectivity {
public:
    void setOnline(bool online) {
        m_online = online;
        takeNews();
    }

protected:
    bool isKnownToReach(const QUrl &) const override { return m_online; }

private:
    bool m_online = true;
};

} // namespace kiv::test
