#include "store/AppearanceRoom.h"

#include <QMetaEnum>
#include <QSettings>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString themeKey = u"zandor.theme"_s;

} // namespace

AppearanceRoom::AppearanceRoom(QSettings &settings) : m_settings(settings) {
    m_dark.setBinding([this] {
        return m_theme.value() == Theme::Dark || (m_theme.value() == Theme::System && m_systemDark);
    });
}

void AppearanceRoom::chooseTheme(Theme theme) {
    m_theme = theme;
    if (!m_isKept)
        return;
    const char *name = QMetaEnum::fromType<Theme>().valueToKey(static_cast<int>(theme));
    m_settings.setValue(themeKey, QString::fromLatin1(name));
}

void AppearanceRoom::startPersisting() {
    m_isKept = true;
    const QByteArray name = m_settings.value(themeKey).toString().toLatin1();
    bool isKnown = false;
    const int theme = QMetaEnum::fromType<Theme>().keyToValue(name.constData(), &isKnown);
    if (isKnown)
        m_theme = static_cast<Theme>(theme);
}

} // namespace kiv::store
