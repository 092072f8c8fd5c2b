#include "base/LocalText.h"

namespace kiv {

using namespace Qt::StringLiterals;

namespace {

bool isDayFirst(const QLocale &locale) {
    const QString order = locale.dateFormat(QLocale::ShortFormat);
    return order.indexOf(u'd') < order.indexOf(u'M');
}

QString dayOfYear(const QLocale &locale, const QDate &day) {
    return locale.toString(day, isDayFirst(locale) ? u"d MMMM yyyy"_s : u"MMMM d, yyyy"_s);
}

} // namespace

QLocale textLocale() {
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedKingdom)
                                           : locale;
}

QString timeText(const QDateTime &at) {
    const QLocale locale = textLocale();
    const QString usual = locale.timeFormat(QLocale::ShortFormat);
    const bool hasHalves = usual.contains(u'a', Qt::CaseInsensitive);
    return locale.toString(at.toLocalTime().time(), hasHalves ? usual : u"HH:mm"_s);
}

QString dayText(const QDate &day, const QDate &today) {
    const QLocale locale = textLocale();
    if (day.year() != today.year())
        return dayOfYear(locale, day);
    QString text = locale.toString(day, isDayFirst(locale) ? u"dddd, d MMMM"_s : u"dddd, MMMM d"_s);
    text.front() = text.front().toUpper();
    return text;
}

QString dayTimeText(const QDateTime &at) {
    return dayOfYear(textLocale(), at.toLocalTime().date()) + u", "_s + timeText(at);
}

QString shortDayTimeText(const QDateTime &at) {
    const QLocale locale = textLocale();
    const QString day =
        locale.toString(at.toLocalTime().date(), isDayFirst(locale) ? u"d MMM"_s : u"MMM d"_s);
    return day + u", "_s + timeText(at);
}

QString sizeText(qint64 bytes) {
    return textLocale()
        .formattedDataSize(bytes, bytes < 1'000'000 ? 0 : 1, QLocale::DataSizeSIFormat)
        .replace(u"kB"_s, u"KB"_s)
        .replace(u' ', QChar(QChar::Nbsp));
}

} // namespace kiv
