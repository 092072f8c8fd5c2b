#include "store/NoticeRoom.h"

#include <QSettings>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString noticesKey = u"zandor.notices"_s;

} // namespace

void NoticeRoom::choose(bool wanted) {
    m_wanted = wanted;
    if (m_isKept)
        m_settings.setValue(noticesKey, wanted);
}

void NoticeRoom::startPersisting() {
    m_isKept = true;
    m_wanted = m_settings.value(noticesKey, true).toBool();
}

} // namespace kiv::store
