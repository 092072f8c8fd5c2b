#pragma once

#include <QDateTime>
#include <QLocale>

/// How dates, times and sizes are written for the person: by the default locale, which follows the
/// language of the screens.
namespace kiv {

/// The default locale; British English where the process has none.
QLocale textLocale();

/// Hours and minutes, such as "09:42", or "9:42 AM" where people write that.
QString timeText(const QDateTime &at);
/// A day of the year `today` is in: "Monday, 2 March"; of another year: "2 March 2025".
QString dayText(const QDate &day, const QDate &today);
/// Day, year and time: "2 March 2026, 09:42".
QString dayTimeText(const QDateTime &at);
/// A recent time as short as it goes: "2 Mar, 09:42".
QString shortDayTimeText(const QDateTime &at);
/// A size, such as "180 KB".
QString sizeText(qint64 bytes);

} // namespace kiv
