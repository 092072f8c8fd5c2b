#include "store/CallRoom.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

void CallRoom::callAction() {
    m_callHint = u"Voice call is unavailable right now."_s;
}

} // namespace kiv::store
