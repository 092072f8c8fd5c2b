#include "ui/GalleryTest.h"
#include "ui/canvas/Samples.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// The canvas in the window: alone in it, stepping through its history, and with samples for
/// somebody who is not signed in.
class CanvasTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void fillsTheWindow_data();
    void fillsTheWindow();
    void windowComesBack_data();
    void windowComesBack();
    void stepsByKeysAndButtons();
    void backFromAPage();
    void refineOffersQuestions();
    void samples();

private:
    void open();
    store::LayoutRoom *layout() const { return m_workspace->store->layout(); }
    store::CanvasRoom *canvas() const { return m_workspace->store->canvas(); }
    /// Where the sheet stands in the window.
    QRectF sheet() const;
};

void CanvasTest::open() {
    GalleryTest::open();
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(), u"compare"_s));
    QTRY_VERIFY(m_gallery->find(u"compareRows"_s));
}

QRectF CanvasTest::sheet() const {
    const QQuickItem *sheet = m_gallery->item(u"sheet"_s);
    return sheet->mapRectToScene(sheet->boundingRect());
}

void CanvasTest::fillsTheWindow_data() {
    QTest::addColumn<QString>("focused"); // before
    QTest::addColumn<bool>("dockOpen");
    QTest::newRow("from the ask bar") << u"askField"_s << false;
    QTest::newRow("from its button") << u"fullButton"_s << false;
    QTest::newRow("from the dock") << u"askField"_s << true;
}

void CanvasTest::fillsTheWindow() {
    QFETCH(QString, focused);
    QFETCH(bool, dockOpen);
    open();
    if (dockOpen)
        m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_COMPARE(m_gallery->find(u"dockFeed"_s) != nullptr, dockOpen);
    const QRectF before = sheet();
    m_gallery->item(focused)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(sheet(), QRectF(24, 64, 1440 - 48, 900 - 88));
    for (const char *beside : {"railButton", "askField", "dockFeed"})
        QVERIFY2(!m_gallery->find(QLatin1StringView(beside)), beside);
    m_gallery->save(u"canvas-full-%1"_s.arg(QLatin1StringView(QTest::currentDataTag())));
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!layout()->canvasFull());
    QCOMPARE(sheet(), before);
    QCOMPARE(layout()->dockOpen(), dockOpen);
    QVERIFY(m_gallery->hasFocus(focused));
}

void CanvasTest::windowComesBack_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("shown");
    QTest::newRow("for the ask bar") << Qt::Key_K << u"askField"_s;
    QTest::newRow("for the dock") << Qt::Key_J << u"dockFeed"_s;
    QTest::newRow("for the history") << Qt::Key_Y << u"historyButton"_s;
    QTest::newRow("for the rail") << Qt::Key_Backslash << u"railButton"_s;
}

/// A key for what is hidden shows it.
void CanvasTest::windowComesBack() {
    QFETCH(Qt::Key, key);
    QFETCH(QString, shown);
    open();
    m_gallery->click(u"fullButton"_s);
    QTRY_VERIFY(!m_gallery->find(u"railButton"_s));
    m_gallery->press(key, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(shown));
    QVERIFY(!layout()->canvasFull());
    QVERIFY(!layout()->railCollapsed());
}

void CanvasTest::stepsByKeysAndButtons() {
    open();
    QVERIFY(!m_gallery->find(u"stepBack"_s));
    QVERIFY(m_workspace->ask(u"How was the week?"_s, Workspace::reportAnswer(), u"report"_s));
    m_gallery->save(u"canvas-steps"_s);
    m_gallery->click(u"stepBack"_s);
    QCOMPARE(canvas()->art(), u"compare"_s);
    m_gallery->press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(canvas()->art(), u"report"_s);
    m_gallery->press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(canvas()->art(), u"compare"_s);
    QTest::mouseClick(&m_gallery->window(), Qt::ForwardButton, {}, sheet().center().toPoint());
    QCOMPARE(canvas()->art(), u"report"_s);
    QVERIFY(!m_gallery->item(u"stepForward"_s)->isEnabled());
    QCOMPARE(canvas()->history()->count(), 2);
    // An answer without anything to draw is a step on, too.
    QVERIFY(m_workspace->ask(u"Tell me a story"_s, u"Once there was a ferry."_s, QString()));
    m_gallery->save(u"canvas-hint-step"_s);
    m_gallery->click(u"stepBack"_s);
    QCOMPARE(canvas()->art(), u"report"_s);
}

/// The first page leads back to the scene before it, which is there at once.
void CanvasTest::backFromAPage() {
    open();
    canvas()->openLink(u"/team/ferry"_s);
    QTRY_VERIFY(m_gallery->find(u"pageBack"_s));
    m_gallery->click(u"pageBack"_s);
    QTRY_VERIFY(m_gallery->find(u"compareRows"_s));
    for (const QQuickItem *item = m_gallery->item(u"compareRows"_s); item;
         item = item->parentItem())
        QCOMPARE(item->opacity(), 1.0);
}

/// An answer without replies of its own is asked about what stands out in its scene.
void CanvasTest::refineOffersQuestions() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
    QVERIFY(m_workspace->ask(u"Show the trial funnel"_s,
                             u"```chart\n{\"kind\":\"funnel\",\"points\":["
                             "{\"label\":\"Visits\",\"value\":900},"
                             "{\"label\":\"Trials\",\"value\":90}]}\n```"_s,
                             u"funnel"_s));
    m_gallery->click(u"refineButton"_s);
    QTRY_VERIFY(m_gallery->find(u"replyChip:0"_s));
    const QString question = u"Why do so few reach Trials?"_s;
    QCOMPARE(m_gallery->item(u"replyChip:0"_s)->property("text").toString(), question);
    m_gallery->save(u"canvas-refine"_s);
    m_gallery->click(u"replyChip:0"_s);
    QCOMPARE(m_workspace->store->chat()->lastPrompt(), question);
    QTRY_VERIFY(!m_gallery->find(u"refineField"_s));
}

/// Every sample draws its art, says that it is one, and asks nothing.
void CanvasTest::samples() {
    QVERIFY(m_workspace->bootSignedOut());
    m_gallery->open(*m_workspace->store, {1440, 900});
    QTRY_COMPARE(canvas()->state(), store::CanvasState::SignedOut);
    m_gallery->item(u"sampleTabs"_s)->forceActiveFocus(Qt::TabFocusReason);
    for (const QString &art : Samples::arts()) {
        const auto scene =
            m_gallery->item(u"sampleSheet"_s)->property("scene").value<canvas::SceneOut>();
        QCOMPARE(scene.art, art);
        QVERIFY(scene.countLine.endsWith(u"sample"_s));
        m_gallery->save(u"sample-"_s + art);
        QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {}, {900, 300});
        m_gallery->item(u"sampleTabs"_s)->forceActiveFocus(Qt::TabFocusReason);
        m_gallery->press(Qt::Key_Right);
    }
    QCOMPARE(m_workspace->store->chat()->msgs()->count(), 1);
    QVERIFY(!m_gallery->find(u"exportButton"_s));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CanvasTest)
#include "CanvasTest.moc"
