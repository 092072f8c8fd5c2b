#pragma once

#include <QPointer>
#include <QQuickItem>

namespace kiv::ui {

/// Keeps a list view at its end while content grows there, as long as the person has not scrolled
/// further than `distance` away from it. The list moves in the frame in which it grows.
class EndFollower : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged REQUIRED)
    Q_PROPERTY(double distance READ distance WRITE setDistance NOTIFY distanceChanged REQUIRED)
    /// Content that is lower than the view sits at its lower edge.
    Q_PROPERTY(bool bottomUp READ isBottomUp WRITE setBottomUp NOTIFY bottomUpChanged)
    /// The person moves the view now: it is not moved under their hand.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(bool following READ isFollowing NOTIFY followingChanged)
public:
    explicit EndFollower(QQuickItem *parent = nullptr) : QQuickItem(parent) {}

    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);
    double distance() const { return m_distance; }
    void setDistance(double distance);
    bool isBottomUp() const { return m_bottomUp; }
    void setBottomUp(bool bottomUp);
    bool isHeld() const { return m_held; }
    void setHeld(bool held);
    bool isFollowing() const { return m_following; }

    /// Goes to the end and follows it again.
    Q_INVOKABLE void jump();
    /// Brings the row of a message into view; false when the list does not have it.
    Q_INVOKABLE bool reveal(const QString &messageId);

Q_SIGNALS:
    void viewChanged();
    void distanceChanged();
    void bottomUpChanged();
    void heldChanged();
    void followingChanged();

protected:
    void updatePolish() override;

private Q_SLOTS:
    void contentGrew();
    void contentMoved();

private:
    /// Where the content stands when its end shows.
    double end() const;
    double number(const char *property) const { return m_view->property(property).toDouble(); }
    void setFollowing(bool following);

    QPointer<QQuickItem> m_view;
    double m_distance = 0;
    bool m_bottomUp = false;
    double m_leastMargin = 0;
    bool m_following = true;
    bool m_held = false;
    bool m_missed = false; ///< the content grew while the view was held
};

} // namespace kiv::ui
