#pragma once

#include "ui/chat/FeedRows.h"
#include "ui/chat/RowHeights.h"
#include "ui/chat/RowItems.h"

#include <QQmlListProperty>
#include <QQuickItem>

#include <optional>

namespace kiv::ui {

/// Lays the rows of a feed out in a flickable: only those in sight have items, which go from row to
/// row of their kind. Rows that are out of sight have an estimated height until they come into it.
///
/// The view follows the end of what grows, as long as the person has not scrolled further than
/// `distance` away from it. Otherwise what is at its upper edge stays there, whatever changes above
/// or below. Lengths are device-independent pixels.
class FeedView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "delegates")
    Q_PROPERTY(QQmlListProperty<kiv::ui::FeedDelegate> delegates READ delegates)
    Q_PROPERTY(kiv::ui::FeedRows *rows READ rows WRITE setRows NOTIFY rowsChanged REQUIRED)
    Q_PROPERTY(
        QQuickItem *flickable READ flickable WRITE setFlickable NOTIFY flickableChanged REQUIRED)
    Q_PROPERTY(double distance MEMBER m_distance NOTIFY distanceChanged REQUIRED)
    /// Above the first row.
    Q_PROPERTY(double upperMargin MEMBER m_upperMargin NOTIFY upperMarginChanged REQUIRED)
    /// Rows that do not fill the view sit at its lower edge.
    Q_PROPERTY(bool bottomUp MEMBER m_bottomUp NOTIFY bottomUpChanged)
    /// The person moves the view now: it is not moved under their hand.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(bool following READ isFollowing NOTIFY followingChanged)
    /// How many messages came while the view did not follow them.
    Q_PROPERTY(int unseen READ unseen NOTIFY unseenChanged)
    /// The message that keys act on, and where it is in the view; empty for none.
    Q_PROPERTY(QString cursor READ cursor NOTIFY cursorChanged)
    Q_PROPERTY(QRectF cursorPlace READ cursorPlace NOTIFY cursorPlaceChanged)
public:
    explicit FeedView(QQuickItem *parent = nullptr);

    QQmlListProperty<FeedDelegate> delegates() { return {this, &m_delegates}; }
    FeedRows *rows() const { return m_rows; }
    void setRows(FeedRows *rows);
    QQuickItem *flickable() const { return m_flickable; }
    void setFlickable(QQuickItem *flickable);
    bool isHeld() const { return m_held; }
    void setHeld(bool held);
    bool isFollowing() const { return m_following; }
    int unseen() const { return m_unseen; }
    QString cursor() const { return m_cursor; }
    QRectF cursorPlace() const { return m_cursorPlace; }

    /// Goes to the end and follows it again.
    Q_INVOKABLE void jump();
    /// Brings a message into view; false when the feed does not have it.
    Q_INVOKABLE bool reveal(const QString &messageId);
    /// Brings the words that a search is at into view, sideways too; false when no part shows them.
    Q_INVOKABLE bool revealFound(const QString &messageId, int part);
    /// The message at the upper edge of what is in sight; empty for none.
    Q_INVOKABLE QString topMessage() const { return messageAt(m_following ? end() : top()); }
    /// Puts the keys onto a message in sight, unless they are on one.
    Q_INVOKABLE void enterCursor();
    /// Goes to the next message, or with -1 to the one before; through one that is longer than the
    /// view in several steps.
    Q_INVOKABLE void stepCursor(int by);
    Q_INVOKABLE void setCursor(const QString &messageId);
    /// Brings what the tab key has come to inside a message into sight.
    Q_INVOKABLE void showStop(QQuickItem *stop);
    /// The message at `y` of the view's own; empty for none.
    Q_INVOKABLE QString messageAt(double y) const;

Q_SIGNALS:
    void rowsChanged();
    void flickableChanged();
    void distanceChanged();
    void upperMarginChanged();
    void bottomUpChanged();
    void heldChanged();
    void followingChanged();
    void unseenChanged();
    void cursorChanged();
    void cursorPlaceChanged();
    /// The person has scrolled up to the first row.
    void topReached();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private Q_SLOTS:
    void viewMoved();

private:
    /// Rows that were at the upper edge and went, as long as others may come in their place.
    struct Gap {
        int row = 0;
        double height = 0;
    };

    /// The rows in sight, or close to it, once they are laid out.
    struct Sight {
        int first = 0;
        int end = 0;            ///< behind the last of them
        bool isSettled = false; ///< none was higher or lower than thought
        bool isWhole = true;    ///< none was left for another frame
    };

    void layOut();
    void reset();
    void insertRows(int first, int last);
    void removeRows(int first, int last);
    void changeRows(int first, int last);
    void showMarks();
    void placeCursor();
    double estimate(int row) const;
    void estimateAll();

    double number(const char *property) const;
    void setNumber(const char *property, double value);
    /// The upper edge of what is in sight, and where it is when the last row is.
    double top() const { return number("contentY"); }
    double end() const;
    int anchorRow() const { return m_heights.rowAt(top() - m_origin); }
    void setRowHeight(int row, double height);
    void closeGap();
    void setExtents();
    void moveTo(double place);
    void moveOrigin();

    QQuickItem *itemOf(int row);
    Sight layOutSight(double until);
    void rowGrew();
    void setFollowing(bool following);
    void countUnseen();

    QList<FeedDelegate *> m_delegates;
    QPointer<FeedRows> m_rows;
    QPointer<QQuickItem> m_flickable;
    double m_distance = 0;
    double m_upperMargin = 0;
    bool m_bottomUp = false;
    bool m_held = false;
    bool m_following = true;
    int m_unseen = 0;
    QString m_seen; ///< the last message when the view ceased to follow

    QString m_cursor;
    QRectF m_cursorPlace;

    RowHeights m_heights;
    /// Where the first row begins. It goes up when rows above those in sight turn out to be higher
    /// than estimated, so that nothing in sight moves.
    double m_origin = 0;
    std::optional<Gap> m_gap;
    RowItems m_items;
    bool m_layingOut = false;
};

} // namespace kiv::ui
