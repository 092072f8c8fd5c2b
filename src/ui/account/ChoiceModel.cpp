#include "ui/account/ChoiceModel.h"

#include <QCollator>
#include <QDateTime>
#include <QLocale>
#include <QMap>
#include <QTimeZone>

#include <unicode/locid.h>

#include <algorithm>
#include <utility>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

using Choices = QList<ChoiceModel::Choice>;

constexpr qsizetype shortList = 12;

/// What is stored is English; `texts` are marked for the context ChoiceModel.
Choices worded(std::initializer_list<const char *> texts) {
    Choices choices;
    for (const char *text : texts)
        choices.append({QString::fromUtf8(text), ChoiceModel::tr(text)});
    return choices;
}

/// What locales speak, or where they are, each once: stored by the name it has in English, shown by
/// the one it has in `language`.
template <typename Name, typename Label>
Choices namesOfLocales(const QLocale &language, const Name &name, const Label &label) {
    QMap<QString, QString> labels;
    for (const QLocale &locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                                          QLocale::AnyTerritory)) {
        if (locale.language() != QLocale::C && locale.territory() < QLocale::World)
            labels.insert(name(locale), QString());
        if (QString &shown = labels[name(locale)]; shown.isEmpty())
            shown = language.language() == QLocale::Russian ? label(locale) : name(locale);
    }
    labels.remove(QString());
    Choices choices;
    for (const auto &[value, shown] : labels.asKeyValueRange())
        choices.append({value, shown});
    QCollator order(language);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(choices, order, &ChoiceModel::Choice::label);
    return choices;
}

QString capitalised(const icu::UnicodeString &text) {
    QString name = QString::fromUtf16(text.getBuffer(), text.length());
    if (!name.isEmpty())
        name.front() = name.front().toUpper();
    return name;
}

QString russianLanguage(const QLocale &locale) {
    icu::UnicodeString name;
    icu::Locale(qPrintable(QLocale::languageToCode(locale.language())))
        .getDisplayLanguage(icu::Locale("ru"), name);
    return capitalised(name);
}

QString russianTerritory(const QLocale &locale) {
    icu::UnicodeString name;
    icu::Locale("", qPrintable(QLocale::territoryToCode(locale.territory())))
        .getDisplayCountry(icu::Locale("ru"), name);
    return capitalised(name);
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

Choices made(ChoiceModel::Kind kind, const QLocale &language) {
    switch (kind) {
    case ChoiceModel::CompanySizes:
        return worded({QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Only me"), "2–10", "11–50",
                       "51–200", QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "201–1,000"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "1,001–5,000"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "More than 5,000")});
    case ChoiceModel::Industries:
        return worded({QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Agriculture"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Construction"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Consulting"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Education"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Energy"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Finance"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Health"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Hospitality"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Law"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Manufacturing"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Media"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Public services"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Real estate"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Retail"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Software"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Telecommunications"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Transport"),
                       QT_TRANSLATE_NOOP("kiv::ui::ChoiceModel", "Other")});
    case ChoiceModel::TimeZones:
        return timeZones();
    case ChoiceModel::Languages:
        return namesOfLocales(
            language,
            [](const QLocale &locale) { return QLocale::languageToString(locale.language()); },
            russianLanguage);
    case ChoiceModel::Countries:
        return namesOfLocales(
            language,
            [](const QLocale &locale) { return QLocale::territoryToString(locale.territory()); },
            russianTerritory);
    case ChoiceModel::Styles:
        return {{u"concise"_s, ChoiceModel::tr("Concise: the answer first, few words")},
                {u"balanced"_s, ChoiceModel::tr("Balanced: the answer with its reasons")},
                {u"detailed"_s, ChoiceModel::tr("Detailed: everything that may matter")},
                {u"friendly"_s, ChoiceModel::tr("Friendly: relaxed and personal")},
                {u"formal"_s, ChoiceModel::tr("Formal: as in a letter to a customer")}};
    case ChoiceModel::Hours:
        return hours();
    }
    return {};
}

/// Every list once for a language, on its first use.
const Choices &choicesOf(ChoiceModel::Kind kind, const QString &language) {
    static QHash<std::pair<int, QString>, Choices> all;
    auto found = all.find({kind, language});
    if (found == all.end())
        found = all.insert({kind, language}, made(kind, QLocale(language)));
    return *found;
}

} // namespace

void ChoiceModel::setKind(Kind kind) {
    m_kind = kind;
    offer();
    Q_EMIT kindChanged();
    Q_EMIT valueChanged();
}

void ChoiceModel::setLanguage(const QString &language) {
    if (language == m_language)
        return;
    m_language = language;
    offer();
    Q_EMIT languageChanged();
    Q_EMIT valueChanged();
}

void ChoiceModel::setFilter(const QString &filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    offer();
    Q_EMIT filterChanged();
}

void ChoiceModel::offer() {
    beginResetModel();
    m_shown = choicesOf(m_kind, m_language);
    const QStringList words = m_filter.split(u' ', Qt::SkipEmptyParts);
    m_shown.removeIf([&](const Choice &choice) {
        return !std::all_of(words.begin(), words.end(), [&](const QString &word) {
            return choice.label.contains(word, Qt::CaseInsensitive);
        });
    });
    endResetModel();
    Q_EMIT countChanged();
}

bool ChoiceModel::isSearchable() const {
    return choicesOf(m_kind, m_language).size() > shortList;
}

void ChoiceModel::setValue(const QString &value) {
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT valueChanged();
}

QString ChoiceModel::label() const {
    for (const Choice &choice : choicesOf(m_kind, m_language)) {
        if (choice.value == m_value)
            return choice.label;
    }
    return m_value;
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
