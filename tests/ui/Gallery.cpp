#include "ui/Gallery.h"

#include "ui/Views.h"

#include <QDir>
#include <QQmlComponent>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

Gallery::Gallery() : m_appearance(registerViews(m_engine)) {}

QQuickItem *Gallery::show(const QString &page, const QSize &size, const QVariantMap &properties) {
    m_shown.reset();
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(size);
    QQmlComponent component(&m_engine, QStringLiteral(KIV_PAGES "/") + page);
    if (component.isError())
        qFatal("%s", qPrintable(component.errorString()));
    m_shown.reset(component.createWithInitialProperties(properties));
    auto *item = qobject_cast<QQuickItem *>(m_shown.get());
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(m_window->contentItem());
    item->setSize(size);
    m_window->show();
    m_window->requestActivate();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qFatal("The window does not show");
    return item;
}

QImage Gallery::save(const QString &name) {
    const QDir folder(QStringLiteral(KIV_PICTURES));
    folder.mkpath(u"."_s);
    const QImage picture = m_window->grabWindow();
    picture.save(folder.filePath(name + u".png"_s));
    return picture;
}

QQuickItem *Gallery::item(const char *name) {
    auto *found = m_window->contentItem()->findChild<QQuickItem *>(QLatin1StringView(name));
    if (!found)
        qFatal("No item named %s", name);
    return found;
}

void Gallery::click(QQuickItem *item) {
    const QPointF middle = item->mapToScene(item->boundingRect().center());
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
}

void Gallery::type(const QString &text) {
    for (const QChar &letter : text)
        QTest::sendKeyEvent(QTest::Click, m_window.get(), Qt::Key_unknown, letter, Qt::NoModifier);
}

} // namespace kiv::ui
