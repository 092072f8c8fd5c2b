#include "ui/controls/ShadowProvider.h"

#include <QPainter>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

struct Layer {
    int offset; ///< downwards, in pixels
    int blur;   ///< twice the standard deviation, in pixels
    double opacity;
};

struct Style {
    QLatin1StringView level;
    QLatin1StringView theme;
    QRgb color;
    std::array<Layer, 2> layers;
};

constexpr std::array styles = {
    Style{"floating"_L1, "light"_L1, 0x141722, {{{8, 24, 0.10}, {1, 2, 0.06}}}},
    Style{"floating"_L1, "dark"_L1, 0x000000, {{{8, 24, 0.45}, {0, 0, 0}}}},
    Style{"high"_L1, "light"_L1, 0x141722, {{{24, 64, 0.16}, {2, 6, 0.06}}}},
    Style{"high"_L1, "dark"_L1, 0x000000, {{{24, 64, 0.55}, {0, 0, 0}}}},
};

/// Averages every sample of a row or column with its neighbours up to `radius` away.
void boxBlur(std::vector<float> &pixels, int side, int radius, int step, int stride) {
    const auto at = [&](int line, int i) -> float & {
        return pixels[static_cast<std::size_t>(line * stride + i * step)];
    };
    std::vector<float> out(static_cast<std::size_t>(side));
    for (int line = 0; line < side; ++line) {
        float sum = 0;
        for (int i = -radius; i < side; ++i) {
            if (i + radius < side)
                sum += at(line, i + radius);
            if (i - radius - 1 >= 0)
                sum -= at(line, i - radius - 1);
            if (i >= 0)
                out[static_cast<std::size_t>(i)] = sum / static_cast<float>(2 * radius + 1);
        }
        for (int i = 0; i < side; ++i)
            at(line, i) = out[static_cast<std::size_t>(i)];
    }
}

/// The opacities of one layer. Three box blurs come close to a Gaussian one.
std::vector<float> cast(const Layer &layer, int side, int reach, int radius) {
    QImage shape(side, side, QImage::Format_Alpha8);
    shape.fill(0);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRect(reach, reach + layer.offset, side - 2 * reach, side - 2 * reach),
                            radius, radius);
    painter.end();

    std::vector<float> pixels(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            pixels[static_cast<std::size_t>(y * side + x)] =
                static_cast<float>(shape.constScanLine(y)[x]) / 255.0F;
    }
    const int box = qRound(layer.blur / 2.0 * 0.94);
    for (int pass = 0; box > 0 && pass < 3; ++pass) {
        boxBlur(pixels, side, box, 1, side);
        boxBlur(pixels, side, box, side, 1);
    }
    return pixels;
}

} // namespace

ShadowProvider::ShadowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage ShadowProvider::requestImage(const QString &id, QSize *size, const QSize &) {
    const QStringList parts = id.split(u'/');
    if (parts.size() != 5)
        return {};
    const int reach = parts.at(2).toInt();
    const int slice = parts.at(3).toInt();
    const int radius = parts.at(4).toInt();
    const auto style = std::find_if(styles.begin(), styles.end(), [&](const Style &candidate) {
        return parts.at(0) == candidate.level && parts.at(1) == candidate.theme;
    });
    if (style == styles.end() || reach <= 0 || slice <= reach)
        return {};

    const int side = 2 * slice + 1;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (const Layer &layer : style->layers) {
        const std::vector<float> opacity = cast(layer, side, reach, radius);
        QPainter painter(&image);
        QImage mask(side, side, QImage::Format_ARGB32);
        for (int y = 0; y < side; ++y) {
            auto *line = reinterpret_cast<QRgb *>(mask.scanLine(y));
            for (int x = 0; x < side; ++x) {
                const double alpha =
                    opacity[static_cast<std::size_t>(y * side + x)] * layer.opacity;
                line[x] =
                    (style->color & 0xffffff) | (static_cast<QRgb>(qRound(alpha * 255)) << 24);
            }
        }
        painter.drawImage(0, 0, mask);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace kiv::ui
