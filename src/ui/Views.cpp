#include "ui/Views.h"

#include "ui/controls/ShadowProvider.h"
#include "ui/icons/IconProvider.h"
#include "ui/tokens/Appearance.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

// The registrations of the static modules. Naming them keeps the linker from dropping them.
void qml_register_types_Kiv_Tokens();
void qml_register_types_Kiv_Icons();
void qml_register_types_Kiv_Controls();

namespace kiv::ui {

Appearance &registerViews(QQmlEngine &engine) {
    static void (*volatile const registrations[])() = {
        qml_register_types_Kiv_Tokens,
        qml_register_types_Kiv_Icons,
        qml_register_types_Kiv_Controls,
    };
    Q_UNUSED(registrations)

    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(u"icon"_s, new IconProvider);
    engine.addImageProvider(u"shadow"_s, new ShadowProvider);

    QFont font;
    font.setFamilies(
        {u"Inter"_s, u"Segoe UI"_s, u"SF Pro Text"_s, u"Noto Sans"_s, u"sans-serif"_s});
    font.setPixelSize(14);
    QGuiApplication::setFont(font);

    return *new Appearance(engine);
}

} // namespace kiv::ui
