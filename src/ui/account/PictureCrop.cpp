#include "ui/account/PictureCrop.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <algorithm>

namespace kiv::ui {

namespace {

/// The part of a picture in PNG; nothing when the file cannot be read any more.
std::optional<QByteArray> cutOut(const QString &path, const QRect &part, int side) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        return std::nullopt;
    const QImage cut =
        picture.copy(part).scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QBuffer png;
    const bool isWritten = png.open(QIODevice::WriteOnly) && cut.save(&png, "PNG");
    return isWritten ? std::optional(png.data()) : std::nullopt;
}

} // namespace

bool PictureCrop::open(const QUrl &file, store::AccountRoom *account) {
    const QString path = file.toLocalFile();
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        size.transpose();
    if (!reader.canRead() || size.isEmpty()) {
        account->refusePicture(
            tr("“%1” is no picture that can be read.").arg(QFileInfo(path).fileName()));
        return false;
    }
    m_source = file;
    m_picture = size;
    m_zoom = 1;
    m_middle = QPointF(size.width() / 2.0, size.height() / 2.0);
    Q_EMIT sourceChanged();
    Q_EMIT placeChanged();
    return true;
}

double PictureCrop::scale() const {
    const int shorter = std::min(m_picture.width(), m_picture.height());
    return shorter > 0 ? m_side / shorter * m_zoom : 1;
}

QRectF PictureCrop::place() const {
    const QPointF corner = QPointF(m_side / 2, m_side / 2) - m_middle * scale();
    return {corner, QSizeF(m_picture) * scale()};
}

void PictureCrop::setZoom(double zoom) {
    m_zoom = std::clamp(zoom, 1.0, largestZoom());
    keepFilled();
}

void PictureCrop::move(double byX, double byY) {
    m_middle -= QPointF(byX, byY) / scale();
    keepFilled();
}

void PictureCrop::keepFilled() {
    const double half = m_side / 2 / scale();
    m_middle.setX(std::clamp(m_middle.x(), half, std::max(half, m_picture.width() - half)));
    m_middle.setY(std::clamp(m_middle.y(), half, std::max(half, m_picture.height() - half)));
    Q_EMIT placeChanged();
}

void PictureCrop::upload(store::AccountRoom *account) const {
    const double half = m_side / 2 / scale();
    const QRect part(QPointF(m_middle.x() - half, m_middle.y() - half).toPoint(),
                     QSizeF(2 * half, 2 * half).toSize());
    account->uploadPicture(
        [path = m_source.toLocalFile(), part, side = std::min(uploadedSide, part.width())] {
            return cutOut(path, part, side);
        });
}

} // namespace kiv::ui
