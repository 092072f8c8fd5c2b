#include "ui/icons/IconAddress.h"

using namespace Qt::StringLiterals;

namespace kiv::ui {

QUrl IconAddress::of(const QString &name, int size, const QColor &color) const {
    if (name.isEmpty())
        return {};
    const auto format = color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb;
    return QUrl(u"image://icon/%1/%2/%3"_s.arg(name, QString::number(size), color.name(format)));
}

} // namespace kiv::ui
