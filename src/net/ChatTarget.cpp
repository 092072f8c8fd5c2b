#include "net/ChatTarget.h"

#include "base/BaseUrl.h"

namespace kiv::net {

using namespace Qt::StringLiterals;

QString ChatTarget::chatPath() const {
    const QString family = isAgent() ? u"custom-agents"_s : u"projects"_s;
    return u"api/v2/"_s + family + u'/' + pathSegment(m_id) + u"/chat"_s;
}

QString ChatTarget::streamPath() const {
    return chatPath() + u"/stream"_s;
}

QString ChatTarget::filesPath() const {
    return chatPath() + u"/files"_s;
}

QString ChatTarget::stopPath() const {
    return chatPath() + u"/stop"_s;
}

} // namespace kiv::net
