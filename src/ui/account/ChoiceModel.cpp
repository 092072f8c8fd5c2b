#include "ui/account/ChoiceModel.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <utility>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

using Choices = QList<ChoiceModel::Choice>;

constexpr qsizetype shortList = 12;

Choices plain(const QStringList &labels) {
    Choices choices;
    for (const QString &label : labels)
        choices.append({label, label});
    return choices;
}

/// Names that locales have for what they speak, or for where they are, each once.
template <typename Name>
Choices namesOfLocales(const Name &name) {
    QStringList names;
    for (const QLocale &locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                                          QLocale::AnyTerritory)) {
        if (locale.language() != QLocale::C && locale.territory() < QLocale::World)
            names.append(name(locale));
    }
    names.removeAll(QString());
    names.sort(Qt::CaseInsensitive);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return plain(names);
}

QString offsetText(int seconds) {
    const int minutes = std::abs(seconds) / 60;
    const QTime time(minutes / 60, minutes % 60);
    return u"UTC "_s + (seconds < 0 ? u'−' : u'+') + time.toString(u"HH:mm"_s);
}

/// By their offset now, from west to east.
Choices timeZones() {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QList<std::pair<int, QString>> zones;
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds()) {
        const QString name = QString::fromLatin1(id);
        if ((name.contains(u'/') && !name.startsWith("Etc/"_L1)) || name == "UTC"_L1)
            zones.append({QTimeZone(id).offsetFromUtc(now), name});
    }
    std::sort(zones.begin(), zones.end());
    Choices choices;
    for (const auto &[offset, name] : std::as_const(zones)) {
        QString place = name;
        place.replace(u'_', u' ');
        choices.append({name, u"%1  %2"_s.arg(offsetText(offset), place)});
    }
    return choices;
}

Choices hours() {
    Choices choices;
    for (int half = 0; half < 48; ++half) {
        const QString time = QTime(half / 2, half % 2 * 30).toString(u"HH:mm"_s);
        choices.append({time, time});
    }
    return choices;
}

Choices made(ChoiceModel::Kind kind) {
    switch (kind) {
    case ChoiceModel::CompanySizes:
        return plain({u"Only me"_s, u"2–10"_s, u"11–50"_s, u"51–200"_s, u"201–1,000"_s,
                      u"1,001–5,000"_s, u"More than 5,000"_s});
    case ChoiceModel::Industries:
        return plain({u"Agriculture"_s, u"Construction"_s, u"Consulting"_s, u"Education"_s,
                      u"Energy"_s, u"Finance"_s, u"Health"_s, u"Hospitality"_s, u"Law"_s,
                      u"Manufacturing"_s, u"Media"_s, u"Public services"_s, u"Real estate"_s,
                      u"Retail"_s, u"Software"_s, u"Telecommunications"_s, u"Transport"_s,
                      u"Other"_s});
    case ChoiceModel::TimeZones:
        return timeZones();
    case ChoiceModel::Languages:
        return namesOfLocales(
            [](const QLocale &locale) { return QLocale::languageToString(locale.language()); });
    case ChoiceModel::Countries:
        return namesOfLocales(
            [](const QLocale &locale) { return QLocale::territoryToString(locale.territory()); });
    case ChoiceModel::Styles:
        return {{u"concise"_s, u"Concise: the answer first, few words"_s},
                {u"balanced"_s, u"Balanced: the answer with its reasons"_s},
                {u"detailed"_s, u"Detailed: everything that may matter"_s},
                {u"friendly"_s, u"Friendly: relaxed and personal"_s},
                {u"formal"_s, u"Formal: as in a letter to a customer"_s}};
    case ChoiceModel::Hours:
        return hours();
    }
    return {};
}

/// Every list once, on its first use.
const Choices &choicesOf(ChoiceModel::Kind kind) {
    static QHash<int, Choices> all;
    auto found = all.find(kind);
    if (found == all.end())
        found = all.insert(kind, made(kind));
    return *found;
}

} // namespace

void ChoiceModel::setKind(Kind kind) {
    m_kind = kind;
    beginResetModel();
    m_shown = choicesOf(kind);
    endResetModel();
    Q_EMIT kindChanged();
    Q_EMIT countChanged();
}

void ChoiceModel::setFilter(const QString &filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    beginResetModel();
    m_shown = choicesOf(m_kind);
    const QStringList words = filter.split(u' ', Qt::SkipEmptyParts);
    m_shown.removeIf([&](const Choice &choice) {
        return !std::all_of(words.begin(), words.end(), [&](const QString &word) {
            return choice.label.contains(word, Qt::CaseInsensitive);
        });
    });
    endResetModel();
    Q_EMIT filterChanged();
    Q_EMIT countChanged();
}

bool ChoiceModel::isSearchable() const {
    return choicesOf(m_kind).size() > shortList;
}

QString ChoiceModel::labelOf(const QString &value) const {
    for (const Choice &choice : choicesOf(m_kind)) {
        if (choice.value == value)
            return choice.label;
    }
    return value;
}

QString ChoiceModel::valueAt(int row) const {
    return m_shown.value(row).value;
}

int ChoiceModel::rowOf(const QString &value) const {
    const auto found = std::find_if(m_shown.begin(), m_shown.end(),
                                    [&](const Choice &choice) { return choice.value == value; });
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

int ChoiceModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ChoiceModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Choice &choice = m_shown.at(index.row());
    switch (role) {
    case ValueRole:
        return choice.value;
    case LabelRole:
    case Qt::DisplayRole:
        return choice.label;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChoiceModel::roleNames() const {
    return {{ValueRole, "value"}, {LabelRole, "label"}};
}

} // namespace kiv::ui
