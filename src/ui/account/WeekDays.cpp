#include "ui/account/WeekDays.h"

#include <QLocale>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

const QStringList &names() {
    static const QStringList names{u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s,
                                   u"Fri"_s, u"Sat"_s, u"Sun"_s};
    return names;
}

} // namespace

QStringList WeekDays::labels() const {
    const QLocale locale(m_language);
    if (locale.language() == QLocale::C)
        return names();
    QStringList labels;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        QString label = locale.standaloneDayName(day, QLocale::ShortFormat);
        label.front() = label.front().toUpper();
        labels.append(label);
    }
    return labels;
}

QList<bool> WeekDays::chosen() const {
    QList<bool> days;
    for (const QString &name : names())
        days.append(m_text.contains(name, Qt::CaseInsensitive));
    return days;
}

QString WeekDays::toggled(int day) const {
    QList<bool> days = chosen();
    if (day >= 0 && day < days.size())
        days[day] = !days.at(day);
    QStringList kept;
    for (qsizetype i = 0; i < days.size(); ++i) {
        if (days.at(i))
            kept.append(names().at(i));
    }
    return kept.join(u", "_s);
}

} // namespace kiv::ui
