#include "ui/Modules.h"

#include "language/Translations.h"
#include "store/AppStore.h"
#include "ui/controls/ShadowProvider.h"
#include "ui/icons/IconProvider.h"
#include "ui/shell/Commands.h"
#include "ui/tokens/Typefaces.h"

#include <QQmlAbstractUrlInterceptor>
#include <QQmlApplicationEngine>
#include <QWindow>

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

namespace {

/// Keeps the look and the words of an engine's views as the room of the appearance says.
class Bindings : public QObject {
public:
    Bindings(QQmlEngine &engine, store::AppStore &store)
        : QObject(&engine), m_engine(engine), m_store(store), m_views(registerModules(engine)) {
        using Room = store::AppearanceRoom;
        const Room *room = store.appearance();
        look();
        for (const auto change : {&Room::darkChanged, &Room::highContrastChanged,
                                  &Room::reducedMotionChanged, &Room::textScaleChanged})
            connect(room, change, this, &Bindings::look);
        speak();
        store.retranslate(); // of a store that was there before its window
        connect(room, &Room::localeChanged, this, [this] {
            speak();
            m_engine.retranslate();
            m_store.retranslate();
        });
    }

private:
    void look() {
        const store::AppearanceRoom *room = m_store.appearance();
        m_views.setDark(room->dark());
        m_views.setHighContrast(room->highContrast());
        m_views.setReducedMotion(room->reducedMotion());
        m_views.setTextScale(room->textScale());
    }
    void speak() {
        const QLocale locale = m_store.appearance()->locale();
        m_translations.use(locale);
        m_engine.setUiLanguage(locale.name());
    }

    QQmlEngine &m_engine;
    store::AppStore &m_store;
    Appearance &m_views;
    Translations m_translations;
};

/// Loads a file of the program's own. None has a variant for a system or a language, and to look
/// for variants of every file takes a fifth of the time that reading them takes.
void loadPlainly(QQmlApplicationEngine &engine, const QUrl &file) {
    const QList<QQmlAbstractUrlInterceptor *> selectors = engine.urlInterceptors();
    for (QQmlAbstractUrlInterceptor *selector : selectors)
        engine.removeUrlInterceptor(selector);
    engine.load(file);
    for (QQmlAbstractUrlInterceptor *selector : selectors)
        engine.addUrlInterceptor(selector);
}

} // namespace

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

void showMainWindow(QQmlApplicationEngine &engine, store::AppStore &store, Commands &commands,
                    const WindowLook &look) {
    new Bindings(engine, store);
    QVariantMap properties = {{u"store"_s, QVariant::fromValue(&store)},
                              {u"commands"_s, QVariant::fromValue(&commands)}};
    if (look.frame) {
        properties.insert({{u"x"_s, look.frame->x()},
                           {u"y"_s, look.frame->y()},
                           {u"width"_s, look.frame->width()},
                           {u"height"_s, look.frame->height()}});
    }
    if (look.maximized)
        properties.insert(u"visibility"_s, QWindow::Maximized);
    engine.setInitialProperties(properties);
    loadPlainly(engine, QUrl(u"qrc:/qt/qml/Kiv/Shell/MainWindow.qml"_s));
}

} // namespace kiv::ui
