#pragma once

#include "store/AccountRoom.h"

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QUrl>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A square cut out of a picture: the picture lies under a square window, is moved below it and
/// made larger. It always fills the window. Lengths are device-independent pixels of the window.
class PictureCrop : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl source READ source NOTIFY sourceChanged)
    /// The side of the window.
    Q_PROPERTY(double side MEMBER m_side NOTIFY placeChanged REQUIRED)
    /// From 1, when the picture just fills the window, to `largestZoom`.
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY placeChanged)
    Q_PROPERTY(double largestZoom READ largestZoom CONSTANT)
    /// Where the whole picture lies, from the window's upper left corner.
    Q_PROPERTY(QRectF place READ place NOTIFY placeChanged)
public:
    static constexpr int uploadedSide = 512; ///< in pixels

    using QObject::QObject;

    QUrl source() const { return m_source; }
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    double largestZoom() const { return 4; }
    QRectF place() const;

    /// Takes the picture of a file; false, with a word to the account, when it is none.
    Q_INVOKABLE bool open(const QUrl &file, kiv::store::AccountRoom *account);
    Q_INVOKABLE void move(double byX, double byY);
    /// Sends what shows in the window as the person's picture.
    Q_INVOKABLE void upload(kiv::store::AccountRoom *account) const;

Q_SIGNALS:
    void sourceChanged();
    void placeChanged();

private:
    void keepFilled();
    /// The length of a pixel of the picture.
    double scale() const;

    QUrl m_source;
    QSize m_picture; ///< in pixels, upright
    double m_side = 320;
    double m_zoom = 1;
    QPointF m_middle; ///< of the window, in pixels of the picture
};

} // namespace kiv::ui
