#include "base/IsoTime.h"

#include <QRegularExpression>

namespace kiv {

using namespace Qt::StringLiterals;

std::optional<QDateTime> parseDate(const std::optional<QString> &text) {
    static const QRegularExpression zone(u"(?:[zZ]|[+-]\\d{2}:?\\d{2})$"_s);
    if (!text)
        return std::nullopt;
    QString zoned = text->trimmed();
    if (!zoned.contains(zone))
        zoned += u"+00:00"_s;
    const QDateTime time = QDateTime::fromString(zoned, Qt::ISODateWithMs);
    return time.isValid() ? std::optional(time.toUTC()) : std::nullopt;
}

} // namespace kiv
