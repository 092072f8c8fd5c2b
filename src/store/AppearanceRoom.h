#pragma once

#include "store/Enums.h"

#include <QObject>
#include <QProperty>

class QSettings;

namespace kiv::store {

/// How the window looks: what the person has chosen, and what the desktop asks for.
class AppearanceRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::Theme theme READ theme NOTIFY themeChanged)
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
public:
    /// The settings outlive the room.
    explicit AppearanceRoom(QSettings &settings);

    Theme theme() const { return m_theme; }
    bool dark() const { return m_dark; }

    /// The person's choice, which is kept.
    Q_INVOKABLE void chooseTheme(kiv::store::Theme theme);
    /// A look for this run only.
    void presetTheme(Theme theme) { m_theme = theme; }
    /// Whether the desktop prefers dark windows.
    void setSystemDark(bool dark) { m_systemDark = dark; }

    /// Takes the choice of before up; choices are kept from now on.
    void startPersisting();

Q_SIGNALS:
    void themeChanged();
    void darkChanged();

private:
    QSettings &m_settings;
    bool m_isKept = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppearanceRoom, Theme, m_theme, Theme::System,
                                         &AppearanceRoom::themeChanged)
    QProperty<bool> m_systemDark{false};
    Q_OBJECT_BINDABLE_PROPERTY(AppearanceRoom, bool, m_dark, &AppearanceRoom::darkChanged)
};

} // namespace kiv::store
