#include "ui/Modules.h"

#include "ui/controls/ShadowProvider.h"
#include "ui/icons/IconProvider.h"
#include "ui/tokens/Typefaces.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

// The registrations of the static modules. Naming them keeps the linker from dropping them.
void qml_register_types_Kiv_Scene();
void qml_register_types_Kiv_Store();
void qml_register_types_Kiv_Tokens();
void qml_register_types_Kiv_Icons();
void qml_register_types_Kiv_Controls();
void qml_register_types_Kiv_Files();
void qml_register_types_Kiv_Markdown();
void qml_register_types_Kiv_Chat();
void qml_register_types_Kiv_Call();
void qml_register_types_Kiv_Account();
void qml_register_types_Kiv_Canvas();
void qml_register_types_Kiv_Create();
void qml_register_types_Kiv_Shell();

namespace kiv::ui {

Appearance &registerModules(QQmlEngine &engine) {
    static void (*volatile const registrations[])() = {
        qml_register_types_Kiv_Scene,    qml_register_types_Kiv_Store,
        qml_register_types_Kiv_Tokens,   qml_register_types_Kiv_Icons,
        qml_register_types_Kiv_Controls, qml_register_types_Kiv_Markdown,
        qml_register_types_Kiv_Files,    qml_register_types_Kiv_Chat,
        qml_register_types_Kiv_Canvas,   qml_register_types_Kiv_Account,
        qml_register_types_Kiv_Create,   qml_register_types_Kiv_Call,
        qml_register_types_Kiv_Shell,
    };
    Q_UNUSED(registrations)

    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(u"icon"_s, new IconProvider);
    engine.addImageProvider(u"shadow"_s, new ShadowProvider);

    useTypefaces();
    return *new Appearance(engine);
}

} // namespace kiv::ui
