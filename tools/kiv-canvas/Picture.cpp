#include "Picture.h"

#include "ui/Modules.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace kiv::tools {

using namespace Qt::StringLiterals;

QImage pictureOf(const canvas::SceneOut &scene, const QSize &size, bool isDark) {
    QQmlEngine engine;
    ui::registerModules(engine).setDark(isDark);
    QQmlComponent component(&engine, QUrl(u"qrc:/qt/qml/Kiv/Canvas/Sheet.qml"_s));
    const std::unique_ptr<QObject> made(
        component.createWithInitialProperties({{u"scene"_s, QVariant::fromValue(scene)},
                                               {u"time"_s, QString()},
                                               {u"linked"_s, false},
                                               {u"animated"_s, false},
                                               {u"width"_s, size.width()},
                                               {u"height"_s, size.height()}}));
    auto *sheet = qobject_cast<QQuickItem *>(made.get());
    if (!sheet) {
        qWarning("%s", qPrintable(component.errorString()));
        return {};
    }
    QQuickWindow window;
    window.resize(size);
    sheet->setParentItem(window.contentItem());
    QCoreApplication::processEvents(); // what the scene puts off until it has a size
    const QImage picture = window.grabWindow();
    sheet->setParentItem(nullptr);
    return picture;
}

} // namespace kiv::tools
