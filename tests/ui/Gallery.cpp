#include "ui/Gallery.h"

#include "driver/FindItem.h"
#include "store/AppStore.h"

#include <QDir>
#include <QQmlComponent>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// Longer than the longest entrance.
constexpr int entrance = 500;
/// How long an item may take to show: others keep the processor busy.
constexpr int patience = 10'000;

} // namespace

Gallery::Gallery() = default;

Gallery::~Gallery() {
    close();
}

void Gallery::close() {
    m_shown.reset();
    m_own.reset();
    m_window = nullptr;
    m_engine.reset();
    m_main.reset();
    m_appearance = nullptr;
    m_delegate.reset();
}

QQuickItem *Gallery::show(const QString &page, const QSize &size, const QVariantMap &properties) {
    close();
    m_engine = std::make_unique<QQmlEngine>();
    m_appearance = &registerModules(*m_engine);
    m_appearance->setDark(m_dark);
    m_appearance->setReducedMotion(m_reducedMotion);
    QQmlComponent component(m_engine.get(), QStringLiteral(KIV_PAGES "/") + page);
    if (component.isError())
        qFatal("%s", qPrintable(component.errorString()));
    m_shown.reset(component.createWithInitialProperties(properties));
    auto *item = qobject_cast<QQuickItem *>(m_shown.get());
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    m_own = std::make_unique<QQuickWindow>();
    m_window = m_own.get();
    item->setParentItem(m_window->contentItem());
    item->setSize(size);
    present(size);
    return item;
}

void Gallery::open(store::AppStore &store, const QSize &size) {
    close();
    m_main = std::make_unique<MainWindow>();
    m_delegate = std::make_unique<app::AppDelegate>(store);
    store.appearance()->presetTheme(m_dark ? store::Theme::Dark : store::Theme::Light);
    m_main->open(store, *m_delegate, {});
    m_window = m_main->window();
    if (!m_window)
        qFatal("The window cannot be made");
    m_appearance = &m_main->appearance();
    m_appearance->setReducedMotion(m_reducedMotion);
    m_delegate->setWindow(m_window);
    present(size);
}

void Gallery::present(const QSize &size) {
    m_window->resize(size);
    m_window->show();
    m_window->requestActivate();
    if (!QTest::qWaitForWindowActive(m_window))
        qFatal("The window does not show");
}

void Gallery::setDark(bool dark) {
    m_dark = dark;
    if (m_appearance)
        m_appearance->setDark(dark);
}

/// For what is shown from now on.
void Gallery::setReducedMotion(bool reduced) {
    m_reducedMotion = reduced;
}

QImage Gallery::save(const QString &name) {
    QTest::qWait(entrance);
    return grab(name);
}

QImage Gallery::grab(const QString &name) {
    const QDir folder(QStringLiteral(KIV_PICTURES));
    folder.mkpath(u"."_s);
    const QImage picture = m_window->grabWindow();
    picture.save(folder.filePath(name + u".png"_s));
    return picture;
}

QQuickItem *Gallery::find(const QString &name) const {
    return driver::findItem(m_window->contentItem(), name);
}

QQuickItem *Gallery::item(const QString &name) const {
    QQuickItem *found = nullptr;
    if (!QTest::qWaitFor([&] { return (found = find(name)) != nullptr; }, patience)) {
        QTest::qFail(qPrintable(u"No item named %1 shows"_s.arg(name)), __FILE__, __LINE__);
        found = new QQuickItem(m_window->contentItem()); // so that the other tests have their turn
    }
    return found;
}

QPoint Gallery::middleOf(const QString &name) const {
    const QQuickItem *target = item(name);
    return target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint();
}

void Gallery::click(const QString &name) {
    QTest::mouseClick(m_window, Qt::LeftButton, {}, middleOf(name));
}

void Gallery::type(const QString &text) {
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, m_window, Qt::Key_unknown, QString(letter), {});
}

void Gallery::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(m_window, key, modifiers);
}

bool Gallery::hasFocus(const QString &name) const {
    const QQuickItem *target = find(name);
    return target && target->hasActiveFocus();
}

} // namespace kiv::ui
