#include "ui/chat/EndFollower.h"

#include <QAbstractItemModel>

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
    if (m_following || m_bottomUp)
        polish();
}

void EndFollower::updatePolish() {
    if (!m_view)
        return;
    if (m_bottomUp) {
        const double spare = m_view->height() - number("contentHeight") - number("bottomMargin");
        m_view->setProperty("topMargin", std::max(m_leastMargin, spare));
    }
    m_missed = m_following && m_held;
    if (m_following && !m_held) {
        QMetaObject::invokeMethod(m_view, "positionViewAtEnd");
        // The list view itself leaves the margin below the end out.
        m_view->setProperty("contentY", std::max(end(), number("originY") - number("topMargin")));
    }
}

void EndFollower::setHeld(bool held) {
    if (std::exchange(m_held, held) == held)
        return;
    Q_EMIT heldChanged();
    contentMoved();
    if (!held && m_missed)
        polish();
}

void EndFollower::contentMoved() {
    if (m_view && m_held)
        setFollowing(end() - number("contentY") <= m_distance);
}

double EndFollower::end() const {
    return number("originY") + number("contentHeight") + number("bottomMargin") - m_view->height();
}

bool EndFollower::reveal(const QString &messageId) {
    const auto *model = m_view ? m_view->property("model").value<QAbstractItemModel *>() : nullptr;
    const int role = model ? model->roleNames().key("messageId", -1) : -1;
    if (role < 0)
        return false;
    const QModelIndexList found =
        model->match(model->index(0, 0), role, messageId, 1, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    setFollowing(false);
    constexpr int contain = 4; // ListView.Contain
    QMetaObject::invokeMethod(m_view, "positionViewAtIndex", Q_ARG(int, found.first().row()),
                              Q_ARG(int, contain));
    return true;
}

void EndFollower::setFollowing(bool following) {
    if (std::exchange(m_following, following) != following)
        Q_EMIT followingChanged();
}

} // namespace kiv::ui
