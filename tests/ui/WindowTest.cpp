#include "ui/GalleryTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

double number(QQuickItem *item, const char *property) {
    return item->property(property).toDouble();
}

QList<QQuickItem *> visibleTexts(QQuickItem *item) {
    QList<QQuickItem *> texts;
    if (!item->isVisible())
        return texts;
    if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty())
        texts.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        texts += visibleTexts(child);
    return texts;
}

} // namespace

/// The window by real keys and presses, on a store whose backend answers from a script.
class WindowTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void typing();
    void draftIsOne();
    void fieldGrows();
    void emptyIsNotSent();
    void railByMouse();
    void railByKeys();
    void scopeBySearch();
    void panelsByKeys();
    void areasByKey();
    void historyReopens();
    void longNames_data();
    void longNames();
};

void WindowTest::typing() {
    open();
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"How was"_s);
    m_gallery->press(Qt::Key_Return, Qt::ShiftModifier);
    m_gallery->type(u"the week?"_s);
    const QString field = m_gallery->item(u"askField"_s)->property("text").toString();
    QCOMPARE(field, u"How was\nthe week?"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(sent(), QStringList{u"How was\nthe week?"_s});
    QCOMPARE(m_gallery->item(u"askField"_s)->property("text").toString(), QString());
    // The last question comes back into the empty field.
    m_gallery->press(Qt::Key_Up);
    QCOMPARE(m_workspace->store->chat()->draft(), u"How was\nthe week?"_s);
}

void WindowTest::draftIsOne() {
    open();
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    m_gallery->type(u"half a tho"_s);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_workspace->store->layout()->dockOpen());
    QTRY_VERIFY(m_gallery->find(u"dockFeed"_s));
    m_gallery->type(u"ught"_s);
    QCOMPARE(m_workspace->store->chat()->draft(), u"half a thought"_s);
    QCOMPARE(m_gallery->item(u"askField"_s)->property("text").toString(), u"half a thought"_s);
}

/// Up to eight lines; beyond that the line with the cursor stays in view.
void WindowTest::fieldGrows() {
    open();
    m_gallery->click(u"askField"_s);
    QQuickItem *field = m_gallery->item(u"askField"_s);
    const QQuickItem *view = field->parentItem()->parentItem();
    const double line = 21;
    QCOMPARE(view->height(), line);
    for (int lines = 2; lines <= 12; ++lines) {
        m_gallery->type(u"line"_s);
        m_gallery->press(Qt::Key_Return, Qt::ShiftModifier);
        QTRY_COMPARE(view->height(), std::min(lines, 8) * line);
    }
    const QRectF cursor = field->property("cursorRectangle").toRectF();
    const double offset = view->property("contentY").toDouble();
    QCOMPARE_GE(cursor.top(), offset);
    QCOMPARE_LE(cursor.bottom(), offset + view->height());
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->press(Qt::Key_Delete);
    QTRY_COMPARE(view->height(), line);
    m_gallery->type(u"x"_s);
    QTRY_COMPARE(view->height(), line);
    QCOMPARE(view->property("contentX").toDouble(), 0.0);
}

void WindowTest::emptyIsNotSent() {
    open();
    m_gallery->click(u"askField"_s);
    const int before = m_workspace->msgs().count();
    for (const QString &typed : {QString(), u"   "_s}) {
        m_gallery->type(typed);
        QVERIFY(!m_gallery->item(u"sendButton"_s)->isEnabled());
        m_gallery->press(Qt::Key_Return);
        m_gallery->click(u"sendButton"_s);
        m_workspace->settled();
        QCOMPARE(m_workspace->msgs().count(), before);
        QVERIFY(sent().isEmpty());
    }
}

void WindowTest::railByMouse() {
    open();
    m_gallery->click(u"railRow:ferry"_s);
    QTRY_COMPARE(m_workspace->store->scope()->project(), u"ferry"_s);
    m_gallery->click(u"railRow:loom"_s);
    QTRY_COMPARE(m_workspace->store->scope()->agent(), u"loom"_s);
    QCOMPARE(m_workspace->store->scope()->project(), u"ferry"_s);
    m_gallery->click(u"railRow:"_s);
    QTRY_COMPARE(m_workspace->store->scope()->project(), QString());
}

void WindowTest::railByKeys() {
    open();
    m_gallery->item(u"navigator"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->scope()->project(), u"lantern"_s);
    QVERIFY(m_gallery->hasFocus(u"navigator"_s));
    // Right opens, Left closes, and neither undoes itself.
    QTRY_VERIFY(m_gallery->item(u"railRow:lantern"_s)->property("selected").toBool());
    QTRY_VERIFY(m_gallery->middleOf(u"railRow:lantern"_s).y() <
                m_gallery->middleOf(u"railRow:ferry"_s).y());
    QCOMPARE(m_gallery->item(u"navigator"_s)->property("contentY").toDouble(), -12.0);
    QVERIFY(m_gallery->item(u"railRow:lantern"_s)->property("ringed").toBool());
    QVERIFY(m_gallery->hasFocus(u"navigator"_s));
    const auto isOpenAfter = [this](Qt::Key key) {
        m_gallery->press(key);
        return m_gallery->item(u"railRow:lantern"_s)->property("expanded").toBool();
    };
    for (int press = 0; press < 2; ++press)
        QVERIFY(isOpenAfter(Qt::Key_Right));
    for (int press = 0; press < 2; ++press)
        QVERIFY(!isOpenAfter(Qt::Key_Left));
}

void WindowTest::scopeBySearch() {
    open();
    m_gallery->click(u"scopeButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"scopeSearch"_s));
    m_gallery->type(u"ember"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->scope()->agent(), u"ember"_s);
    QTRY_VERIFY(!m_workspace->store->layout()->topScopeOpen());

    m_gallery->click(u"scopeButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"scopeSearch"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_workspace->store->layout()->topScopeOpen());
    QCOMPARE(m_workspace->store->scope()->agent(), u"ember"_s);
}

void WindowTest::panelsByKeys() {
    open();
    store::LayoutRoom *layout = m_workspace->store->layout();
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    QVERIFY(layout->railCollapsed());
    QVERIFY(m_gallery->find(u"strip"_s));
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    QVERIFY(m_gallery->item(u"askField"_s)->width() > 400); // in a bar of 720
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QVERIFY(layout->dockOpen());
    QTRY_VERIFY(m_gallery->find(u"dockFeed"_s));
    QTRY_VERIFY(m_gallery->hasFocus(u"askField"_s));
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!layout->dockOpen());
    QTRY_VERIFY(!m_gallery->find(u"dockFeed"_s));

    // The conversation goes from the dock into the rail, and the keys with it.
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"toRailButton"_s));
    QTRY_VERIFY(m_gallery->middleOf(u"toRailButton"_s).x() < 1440);
    m_gallery->click(u"toRailButton"_s);
    QVERIFY(!layout->dockOpen() && !layout->railCollapsed());
    QTRY_VERIFY(!m_gallery->find(u"dockFeed"_s));
    QTRY_VERIFY(m_gallery->hasFocus(u"askField"_s));
}

void WindowTest::areasByKey() {
    open();
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(), u"compare"_s));
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"compareRows"_s));
    m_gallery->press(Qt::Key_F6);
    QVERIFY(m_gallery->hasFocus(u"fullButton"_s));
    m_gallery->press(Qt::Key_F6);
    QVERIFY(m_gallery->hasFocus(u"railButton"_s));
    m_gallery->press(Qt::Key_F6);
    QVERIFY(m_gallery->hasFocus(u"navigator"_s));
}

void WindowTest::historyReopens() {
    open();
    QVERIFY(m_workspace->ask(u"How was the week?"_s, Workspace::reportAnswer(), u"report"_s));
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(), u"compare"_s));
    m_gallery->click(u"historyButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"historyList"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->canvas()->art(), u"report"_s);
    QTRY_VERIFY(!m_workspace->store->layout()->histOpen());
}

void WindowTest::longNames_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(1440, 900);
    QTest::newRow("least") << QSize(1024, 680);
}

/// No cell lies over another one, whatever the names are, and no figure is cut.
void WindowTest::longNames() {
    QFETCH(QSize, size);
    open(size);
    const QString longName = u"Кластер с очень длинным именем "_s.repeated(4).left(120);
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(longName), u"compare"_s));
    QQuickItem *rows = m_gallery->item(u"compareRows"_s);
    QTest::qWait(50);
    QList<QRectF> boxes;
    const QList<QQuickItem *> texts = visibleTexts(rows);
    QCOMPARE(texts.size(), 30);
    for (QQuickItem *text : texts) {
        const QString words = text->property("text").toString();
        const double drawn = number(text, "paintedWidth");
        QVERIFY2(drawn <= text->width() + 0.5, qPrintable(words));
        if (words.contains(QRegularExpression(u"^[€\\d]"_s)))
            QVERIFY2(!text->property("truncated").toBool(), qPrintable(words));
        const QRectF box = text->mapRectToItem(rows, text->boundingRect().adjusted(1, 1, -1, -1));
        for (const QRectF &other : std::as_const(boxes))
            QVERIFY2(!box.intersects(other), qPrintable(words));
        boxes.append(box);
    }
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::WindowTest)
#include "WindowTest.moc"
