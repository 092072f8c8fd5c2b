#include "ui/chat/EndFollower.h"

namespace kiv::ui {

void EndFollower::setView(QQuickItem *view) {
    if (m_view == view)
        return;
    if (m_view)
        m_view->disconnect(this);
    m_view = view;
    if (view) {
        m_leastMargin = number("topMargin");
        // The signals are those of a list view, whose class is not public.
        connect(view, SIGNAL(contentHeightChanged()), this, SLOT(contentGrew()));
        connect(view, SIGNAL(heightChanged()), this, SLOT(contentGrew()));
        connect(view, SIGNAL(countChanged()), this, SLOT(contentGrew()));
        connect(view, SIGNAL(contentYChanged()), this, SLOT(contentMoved()));
    }
    Q_EMIT viewChanged();
    contentGrew();
}

void EndFollower::setDistance(double distance) {
    if (std::exchange(m_distance, distance) != distance)
        Q_EMIT distanceChanged();
}

void EndFollower::setBottomUp(bool bottomUp) {
    if (std::exchange(m_bottomUp, bottomUp) == bottomUp)
        return;
    Q_EMIT bottomUpChanged();
    contentGrew();
}

void EndFollower::jump() {
    setFollowing(true);
    contentGrew();
}

void EndFollower::contentGrew() {
    if (!m_following && !m_bottomUp)
        return;
    m_settling = m_following;
    polish();
}

void EndFollower::updatePolish() {
    if (m_bottomUp && m_view) {
        const double spare = m_view->height() - number("contentHeight") - number("bottomMargin");
        m_view->setProperty("topMargin", std::max(m_leastMargin, spare));
    }
    if (m_following && m_view)
        QMetaObject::invokeMethod(m_view, "positionViewAtEnd");
    m_settling = false;
}

void EndFollower::contentMoved() {
    if (m_settling || !m_view)
        return;
    const double end =
        number("originY") + number("contentHeight") + number("bottomMargin") - m_view->height();
    setFollowing(end - number("contentY") <= m_distance);
}

void EndFollower::setFollowing(bool following) {
    if (std::exchange(m_following, following) != following)
        Q_EMIT followingChanged();
}

} // namespace kiv::ui
