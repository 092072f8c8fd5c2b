#include "store/AppearanceRoom.h"

#include <QMetaEnum>
#include <QSettings>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString themeKey = u"zandor.theme"_s;
const QString languageKey = u"zandor.language"_s;
const QString textSizeKey = u"zandor.textSize"_s;

template <typename Enum>
QString nameOf(Enum value) {
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

/// `fallback` for a name that stands for nothing.
template <typename Enum>
Enum named(const QVariant &name, Enum fallback) {
    bool isKnown = false;
    const int value =
        QMetaEnum::fromType<Enum>().keyToValue(name.toString().toLatin1().constData(), &isKnown);
    return isKnown ? static_cast<Enum>(value) : fallback;
}

/// The first language of the desktop that the screens are written in.
QLocale::Language systemLanguage() {
    const QStringList languages = QLocale::system().uiLanguages();
    for (const QString &name : languages) {
        const QLocale::Language language = QLocale(name).language();
        if (language == QLocale::Russian || language == QLocale::English)
            return language;
    }
    return QLocale::English;
}

QLocale localeFor(Language choice) {
    const QLocale::Language language = choice == Language::Russian   ? QLocale::Russian
                                       : choice == Language::English ? QLocale::English
                                                                     : systemLanguage();
    const QLocale system = QLocale::system();
    if (system.language() == language)
        return {language, system.territory()};
    return {language, language == QLocale::Russian ? QLocale::Russia : QLocale::UnitedKingdom};
}

/// The step of the scale that a percentage is nearest to.
int textStepNear(int percent) {
    constexpr int step = AppearanceRoom::textStep;
    const int near = std::clamp(percent, AppearanceRoom::leastText, AppearanceRoom::mostText);
    return (near + step / 2) / step * step;
}

} // namespace

AppearanceRoom::AppearanceRoom(QSettings &settings) : m_settings(settings) {
    m_dark.setBinding([this] {
        return m_theme.value() == Theme::Dark || (m_theme.value() == Theme::System && m_systemDark);
    });
    m_locale.setBinding([this] { return localeFor(m_language); });
    m_textScale.setBinding([this] {
        constexpr double whole = 100;
        return std::clamp(m_textSize * m_systemTextScale / whole, leastText / whole,
                          mostText / whole);
    });
}

Language AppearanceRoom::otherLanguage() const {
    return locale().language() == QLocale::Russian ? Language::English : Language::Russian;
}

void AppearanceRoom::chooseTheme(Theme theme) {
    m_theme = theme;
    keep(themeKey, nameOf(theme));
}

void AppearanceRoom::chooseLanguage(Language language) {
    m_language = language;
    keep(languageKey, nameOf(language));
}

void AppearanceRoom::chooseTextSize(int percent) {
    m_textSize = textStepNear(percent);
    keep(textSizeKey, m_textSize.value());
}

void AppearanceRoom::keep(const QString &key, const QVariant &value) {
    if (m_isKept)
        m_settings.setValue(key, value);
}

void AppearanceRoom::startPersisting() {
    m_isKept = true;
    m_theme = named(m_settings.value(themeKey), Theme::System);
    m_language = named(m_settings.value(languageKey), Language::System);
    bool isNumber = false;
    const int percent = m_settings.value(textSizeKey).toInt(&isNumber);
    m_textSize = isNumber ? textStepNear(percent) : normalText;
}

} // namespace kiv::store
