#include "driver/FindItem.h"
#include "ui/GalleryTest.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// The edges that size rail, dock and the list in the rail, and what a narrow window does to them.
class SizesTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void edgesByKeys_data();
    void edgesByKeys();
    void edgesAreSliders();
    void railByMouse();
    void listByMouse();
    void dockByMouse();
    void narrowWindow();
    void longWordsGiveWay();

private:
    void drag(const QString &edge, const QPoint &by);
    store::LayoutRoom &layout() { return *m_workspace->store->layout(); }
};

void SizesTest::drag(const QString &edge, const QPoint &by) {
    const QPoint from = m_gallery->middleOf(edge);
    QTest::mousePress(&m_gallery->window(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&m_gallery->window(), from + by / 2);
    QTest::mouseMove(&m_gallery->window(), from + by);
    QTest::mouseRelease(&m_gallery->window(), Qt::LeftButton, {}, from + by);
}

void SizesTest::edgesByKeys_data() {
    QTest::addColumn<QString>("edge");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("size");
    const QString rail = u"railEdge"_s;
    const QString dock = u"dockEdge"_s;
    const QString list = u"navigatorEdge"_s;
    QTest::newRow("wider rail") << rail << Qt::Key_Right << 376.0;
    QTest::newRow("narrower rail") << rail << Qt::Key_Left << 344.0;
    QTest::newRow("narrowest rail") << rail << Qt::Key_Home << 280.0;
    QTest::newRow("widest rail") << rail << Qt::Key_End << 640.0;
    QTest::newRow("wider dock") << dock << Qt::Key_Left << 776.0;
    QTest::newRow("narrower dock") << dock << Qt::Key_Right << 744.0;
    QTest::newRow("narrowest dock") << dock << Qt::Key_Home << 480.0;
    QTest::newRow("widest dock") << dock << Qt::Key_End << 1100.0;
    QTest::newRow("lower list") << list << Qt::Key_Up << -16.0;
    QTest::newRow("lowest list") << list << Qt::Key_Home << 0.15;
}

void SizesTest::edgesByKeys() {
    QFETCH(QString, edge);
    QFETCH(Qt::Key, key);
    QFETCH(double, size);
    const bool isDock = edge == u"dockEdge"_s;
    const bool isList = edge == u"navigatorEdge"_s;
    open({1720, 900});
    if (isDock) {
        m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
        m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    }
    QQuickItem *handle = m_gallery->item(edge);
    QVERIFY(handle->activeFocusOnTab());
    handle->forceActiveFocus(Qt::TabFocusReason);
    const double before = handle->property("value").toDouble();
    m_gallery->press(key);
    if (!isList) {
        QCOMPARE(isDock ? layout().dockW() : layout().railW(), size);
    } else if (size < 0) {
        QTRY_COMPARE(handle->property("value").toDouble(), before + size);
    } else {
        QTRY_COMPARE(layout().navigatorShare(), size);
    }
    QVERIFY(handle->hasActiveFocus());
}

void SizesTest::edgesAreSliders() {
    open();
    for (const QString &edge : {u"railEdge"_s, u"navigatorEdge"_s}) {
        QQuickItem *handle = m_gallery->item(edge);
        QAccessibleInterface *read = QAccessible::queryAccessibleInterface(handle);
        QVERIFY(read);
        QCOMPARE(read->role(), QAccessible::Slider);
        QVERIFY(!read->text(QAccessible::Name).isEmpty());
        QVERIFY(read->valueInterface());
        QCOMPARE(read->valueInterface()->currentValue(), handle->property("value"));
    }
}

void SizesTest::railByMouse() {
    open();
    drag(u"railEdge"_s, {100, 0});
    QCOMPARE(layout().railW(), 460.0);
    drag(u"railEdge"_s, {-400, 0});
    QCOMPARE(layout().railW(), 280.0);
    QTest::mouseDClick(&m_gallery->window(), Qt::LeftButton, {},
                       m_gallery->middleOf(u"railEdge"_s));
    QCOMPARE(layout().railW(), 360.0);
}

void SizesTest::listByMouse() {
    open();
    const QQuickItem *list = m_gallery->item(u"navigator"_s);
    const double before = list->height();
    drag(u"navigatorEdge"_s, {0, -80});
    QTRY_VERIFY(std::abs(list->height() - (before - 80)) < 6);
    m_gallery->save(u"list-low"_s);
    QTest::mouseDClick(&m_gallery->window(), Qt::LeftButton, {},
                       m_gallery->middleOf(u"navigatorEdge"_s));
    QTRY_COMPARE(list->height(), before);
}

void SizesTest::dockByMouse() {
    open();
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    m_gallery->item(u"dockEdge"_s);
    QTest::qWait(400); // the dock slides in
    drag(u"dockEdge"_s, {-100, 0});
    QCOMPARE(layout().dockW(), 860.0);
    QTest::mouseDClick(&m_gallery->window(), Qt::LeftButton, {},
                       m_gallery->middleOf(u"dockEdge"_s));
    QCOMPARE(layout().dockW(), 760.0);
}

/// In the least window the dock takes the rail's place while it is open.
void SizesTest::narrowWindow() {
    open({1024, 680});
    QVERIFY(m_gallery->find(u"navigator"_s));
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"strip"_s));
    QVERIFY(!m_gallery->find(u"navigator"_s));
    QTRY_VERIFY(m_gallery->hasFocus(u"askField"_s));
    m_workspace->clock.advance(1s);
    QVERIFY(!m_workspace->settings->value(u"zandor.railCollapsed"_s).toBool());
    QVERIFY(!m_workspace->settings->contains(u"zandor.dockW"_s));
    m_gallery->window().resize(1440, 900);
    QTRY_VERIFY(m_gallery->find(u"navigator"_s));
    m_gallery->save(u"dock-beside-rail"_s);
    m_gallery->window().resize(1024, 680);
    QTRY_VERIFY(m_gallery->find(u"strip"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->find(u"navigator"_s));
}

/// Words that are longer than their place do not run under what stands beside them.
void SizesTest::longWordsGiveWay() {
    const QString name =
        u"Night watch of the northern warehouses, their gates and all the keys that "
        "were ever made for any of them"_s;
    const QString chat = u"api/v2/custom-agents/heron/chat"_s;
    m_workspace->backend.answer(u"GET api/v2/custom-agents"_s,
                                R"({"agents":[{"id":"heron","role":"Guard","name":")" +
                                    name.toUtf8() + R"("}]})");
    m_workspace->history(chat, '[' + test::rowJson(3, u"assistant"_s, u"All quiet."_s) + ']');
    m_workspace->backend.answer(u"POST "_s + chat, "{}");
    open({1024, 680});
    layout().dragRail(640);
    m_workspace->store->connection()->setFailure(u"Something is in the way of it. "_s.repeated(6));
    m_workspace->store->scope()->pickStandaloneAgent(u"heron"_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 1);
    m_workspace->store->chat()->send(u"Well?"_s);
    QTRY_VERIFY(m_gallery->find(u"captionWord"_s));
    m_gallery->save(u"long-words"_s);

    const auto placeOf = [this](const QString &item) {
        const QQuickItem *found = m_gallery->item(item);
        return found->mapRectToScene(found->boundingRect());
    };
    QVERIFY(placeOf(u"failureBanner"_s).height() > 40);
    QVERIFY(placeOf(u"captionWord"_s).right() <= placeOf(u"fullButton"_s).left());
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    const QQuickItem *head = driver::findItem(
        feed, [&](const QQuickItem &item) { return item.property("text") == name; });
    QVERIFY(head);
    QVERIFY(head->mapToItem(feed, QPointF(head->width(), 0)).x() <= feed->width() - 16);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SizesTest)
#include "SizesTest.moc"
