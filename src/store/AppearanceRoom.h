#pragma once

#include "store/Enums.h"

#include <QLocale>
#include <QObject>
#include <QProperty>

class QSettings;

namespace kiv::store {

/// How the window looks and which language it speaks: what the person has chosen, and what the
/// desktop asks for.
class AppearanceRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::Theme theme READ theme NOTIFY themeChanged)
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    Q_PROPERTY(kiv::store::Language language READ language NOTIFY languageChanged)
    Q_PROPERTY(kiv::store::Language otherLanguage READ otherLanguage NOTIFY localeChanged)
    Q_PROPERTY(int textSize READ textSize NOTIFY textSizeChanged)
public:
    static constexpr int normalText = 100;
    static constexpr int leastText = 80;
    static constexpr int mostText = 150;
    static constexpr int textStep = 10;

    /// The settings outlive the room.
    explicit AppearanceRoom(QSettings &settings);

    Theme theme() const { return m_theme; }
    bool dark() const { return m_dark; }
    Language language() const { return m_language; }
    /// What the screens are written in, and how they write dates and figures.
    QLocale locale() const { return m_locale; }
    /// The language of the screens that they are not in now.
    Language otherLanguage() const;
    /// Per cent of the normal size, as the person has chosen.
    int textSize() const { return m_textSize; }
    /// What text is multiplied by: the person's choice on top of the desktop's.
    double textScale() const { return m_textScale; }
    bool highContrast() const { return m_highContrast; }
    bool reducedMotion() const { return m_reducedMotion; }

    /// The person's choices, which are kept.
    Q_INVOKABLE void chooseTheme(kiv::store::Theme theme);
    Q_INVOKABLE void chooseLanguage(kiv::store::Language language);
    Q_INVOKABLE void chooseTextSize(int percent);
    Q_INVOKABLE void enlargeText() { chooseTextSize(m_textSize + textStep); }
    Q_INVOKABLE void reduceText() { chooseTextSize(m_textSize - textStep); }

    /// Choices for this run only.
    void presetTheme(Theme theme) { m_theme = theme; }
    void presetLanguage(Language language) { m_language = language; }
    void presetTextSize(int percent) { m_textSize = percent; }

    /// What the desktop asks for.
    void setSystemDark(bool dark) { m_systemDark = dark; }
    void setSystemTextScale(double scale) { m_systemTextScale = scale; }
    void setHighContrast(bool high) { m_highContrast = high; }
    void setReducedMotion(bool reduced) { m_reducedMotion = reduced; }

    /// Takes the choices of before up; choices are kept from now on.
    void startPersisting();

Q_SIGNALS:
    void themeChanged();
    void darkChanged();
    void languageChanged();
    void localeChanged();
    void textSizeChanged();
    void textScaleChanged();
    void highContrastChanged();
    void reducedMotionChanged();

private:
    void keep(const QString &key, const QVariant &value);

    QSettings &m_settings;
    bool m_isKept = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, Theme, m_theme, Theme::System,
                                         &AppearanceRoom::themeChanged)
    QProperty<bool> m_systemDark{false};
    Q_OBJECT_BINDABLE_PROPERTY(AppearanceRoom, bool, m_dark, &AppearanceRoom::darkChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, Language, m_language, Language::System,
                                         &AppearanceRoom::languageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppearanceRoom, QLocale, m_locale, &AppearanceRoom::localeChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, int, m_textSize, normalText,
                                         &AppearanceRoom::textSizeChanged)
    QProperty<double> m_systemTextScale{1.0};
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, double, m_textScale, 1.0,
                                         &AppearanceRoom::textScaleChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, bool, m_highContrast, false,
                                         &AppearanceRoom::highContrastChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, bool, m_reducedMotion, false,
                                         &AppearanceRoom::reducedMotionChanged)
};

} // namespace kiv::store
