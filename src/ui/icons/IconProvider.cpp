#include "ui/icons/IconProvider.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

constexpr int drawnSize = 20;

/// Small icons get a wider stroke, so that it still reads like the one of a full-size icon.
QByteArray strokeWidth(int size) {
    return size >= drawnSize - 2 ? "1.75"_ba : size >= 16 ? "2.2"_ba : "2.4"_ba;
}

} // namespace

IconProvider::IconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage IconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    const QStringList parts = id.split(u'/');
    if (parts.size() != 3)
        return {};
    QFile file(u":/qt/qml/Kiv/Icons/svg/%1.svg"_s.arg(parts.at(0)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const int shown = parts.at(1).toInt();
    QByteArray svg = file.readAll();
    svg.replace("#141722", parts.at(2).toUtf8());
    svg.replace("stroke-width=\"1.75\"", "stroke-width=\"" + strokeWidth(shown) + '"');

    const QSize pixels = requestedSize.isValid() ? requestedSize : QSize(shown, shown);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter, QRectF(QPointF(), pixels));
    if (size)
        *size = pixels;
    return image;
}

} // namespace kiv::ui
