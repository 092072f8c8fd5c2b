#include "ui/MainWindow.h"

#include "language/Translations.h"
#include "store/AppStore.h"
#include "ui/Modules.h"
#include "ui/shell/Commands.h"
#include "ui/tokens/Typefaces.h"

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// Keeps the look and the words of an engine's views as the room of the appearance says.
class Bindings : public QObject {
public:
    Bindings(QQmlEngine &engine, Appearance &views, store::AppStore &store)
        : QObject(&engine), m_engine(engine), m_store(store), m_views(views) {
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

const QUrl file(u"qrc:/qt/qml/Kiv/Shell/MainWindow.qml"_s);

} // namespace

MainWindow::MainWindow()
    : m_appearance(registerModules(m_engine)),
      m_ahead(&m_engine, file, QQmlComponent::Asynchronous) {}

void MainWindow::open(store::AppStore &store, Commands &commands, const WindowLook &look) {
    new Bindings(m_engine, m_appearance, store);
    const QSize size = look.frame ? look.frame->size() : look.size;
    QVariantMap properties = {{u"store"_s, QVariant::fromValue(&store)},
                              {u"commands"_s, QVariant::fromValue(&commands)},
                              {u"width"_s, size.width()},
                              {u"height"_s, size.height()},
                              {u"minimumWidth"_s, look.least.width()},
                              {u"minimumHeight"_s, look.least.height()}};
    if (look.frame)
        properties.insert({{u"x"_s, look.frame->x()}, {u"y"_s, look.frame->y()}});
    if (look.maximized)
        properties.insert(u"visibility"_s, QWindow::Maximized);
    findFirstFonts(store.appearance()->textScale());
    // Waits for what is being read.
    QQmlComponent views(&m_engine, file);
    m_window.reset(qobject_cast<QQuickWindow *>(views.createWithInitialProperties(properties)));
    if (!m_window)
        qCritical("%s", qPrintable(views.errorString()));
}

} // namespace kiv::ui
