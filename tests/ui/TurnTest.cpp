#include "ui/GalleryTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// A turn on the screen by real keys and presses: replies, stop, the questions of the canvas.
class TurnTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void chipByMouse();
    void chipByKeys();
    void chipsInTwoLines();
    void starterOfTheCanvas();
    void hintAsksForATable();
    void stopForTheWholeAnswer();
    void projectKeepsSend();
    void editBringsAMessageBack();
    void composingIsNotSent();
    void offlineBanner();

private:
    void prepare() override;
    /// An answer that offers replies, settled.
    void answered(const QString &options);
};

void TurnTest::prepare() {
    open();
}

void TurnTest::answered(const QString &options) {
    QVERIFY(m_workspace->ask(u"Which?"_s, u"Pick one.\nOPTIONS: "_s + options, QString()));
    QVERIFY(m_gallery->item(u"replyChip:0"_s));
    m_gallery->window().grabWindow(); // every chip is in its place
}

void TurnTest::chipByMouse() {
    answered(u"Red | Green | Blue"_s);
    m_gallery->click(u"replyChip:1"_s);
    QTRY_COMPARE(sent(), (QStringList{u"Which?"_s, u"Green"_s}));
    QTRY_VERIFY(!m_gallery->find(u"replyChip:0"_s));
}

void TurnTest::chipByKeys() {
    answered(u"Red | Green | Blue"_s);
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    for (int presses = 0; presses < 8 && !m_gallery->hasFocus(u"replyChip:0"_s); ++presses)
        m_gallery->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_gallery->hasFocus(u"replyChip:0"_s));
    m_gallery->press(Qt::Key_Left);
    QVERIFY(m_gallery->hasFocus(u"replyChip:0"_s));
    for (int presses = 0; presses < 4; ++presses)
        m_gallery->press(Qt::Key_Right);
    QVERIFY(m_gallery->hasFocus(u"replyChip:2"_s));
    m_gallery->press(Qt::Key_Left);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(sent(), (QStringList{u"Which?"_s, u"Green"_s}));
}

/// What does not fit is neither seen nor reached.
void TurnTest::chipsInTwoLines() {
    const QString longest = u"a reply that is so long that it takes a line of its own, nearly %1"_s;
    answered(longest.arg(1) + u'|' + longest.arg(2) + u'|' + longest.arg(3));
    const QQuickItem *last = m_gallery->item(u"replyChip:2"_s);
    QCOMPARE(last->opacity(), 0.0);
    QVERIFY(!last->isEnabled());
    QCOMPARE(m_gallery->item(u"replyChip:1"_s)->opacity(), 1.0);
    m_gallery->save(u"chips-long"_s);
    m_gallery->item(u"replyChip:0"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Right);
    m_gallery->press(Qt::Key_Right);
    QVERIFY(m_gallery->hasFocus(u"replyChip:1"_s));
}

void TurnTest::starterOfTheCanvas() {
    // An open dock lies over the canvas and offers them itself.
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"starter:1"_s));
    QVERIFY(!m_gallery->find(u"canvasChip:1"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"starter:1"_s));
    m_gallery->click(u"canvasChip:1"_s);
    QTRY_COMPARE(sent(), QStringList{u"Where are we against the plan?"_s});
}

void TurnTest::hintAsksForATable() {
    QVERIFY(m_workspace->ask(u"How are we?"_s, u"Fine."_s, QString()));
    m_gallery->click(u"canvasChip:0"_s);
    QTRY_COMPARE(sent(), (QStringList{u"How are we?"_s, u"As a table"_s}));
}

void TurnTest::stopForTheWholeAnswer() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"Tell me a story"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->find(u"stopButton"_s));
    m_workspace->row(300, u"Once"_s);
    QTRY_COMPARE(m_workspace->texts().last(), u"Once"_s);
    QVERIFY(m_gallery->find(u"stopButton"_s));
    m_gallery->click(u"stopButton"_s);
    QTRY_COMPARE(m_workspace->backend.count(u"POST "_s + test::kivChat + u"/stop"_s), 1);
    QTRY_VERIFY(m_gallery->find(u"sendButton"_s));

    // By Escape too, from anywhere, once nothing lies on top. The key that has sent the question
    // stops nothing while it is held.
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"dockFeed"_s));
    m_gallery->type(u"Another one"_s);
    m_gallery->item(u"sendButton"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"stopButton"_s));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&m_gallery->window(), &held);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"dockFeed"_s));
    QCOMPARE(m_workspace->backend.count(u"POST "_s + test::kivChat + u"/stop"_s), 1);
    m_gallery->item(u"callButton"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Escape);
    QTRY_COMPARE(m_workspace->backend.count(u"POST "_s + test::kivChat + u"/stop"_s), 2);
    // An answer that has come to its end has nothing to stop.
    QVERIFY(m_workspace->ask(u"And one more"_s, u"The end."_s, QString()));
    QVERIFY(m_gallery->find(u"sendButton"_s));
}

void TurnTest::projectKeepsSend() {
    m_workspace->store->scope()->enterProject(u"ferry"_s);
    QTRY_VERIFY(m_workspace->backend.isStreaming(test::ferryChat + u"/stream"_s));
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"Tell me a story"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->backend.count(u"POST "_s + test::ferryChat), 1);
    QVERIFY(m_gallery->find(u"sendButton"_s));
    m_workspace->row(300, u"Once"_s);
    QTRY_COMPARE(m_workspace->texts().last(), u"Once"_s);
    QVERIFY(m_gallery->find(u"sendButton"_s));
}

void TurnTest::editBringsAMessageBack() {
    QVERIFY(m_workspace->ask(u"How was the weak?"_s, u"Fine."_s, QString()));
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_Up);
    QCOMPARE(m_gallery->item(u"askField"_s)->property("text"), u"How was the weak?"_s);
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->press(Qt::Key_Delete);

    QTest::mouseMove(&m_gallery->window(), m_gallery->middleOf(u"mine"_s));
    m_gallery->click(u"editButton"_s);
    QTRY_COMPARE(m_gallery->item(u"askField"_s)->property("text"), u"How was the weak?"_s);
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
}

void TurnTest::composingIsNotSent() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"nihon"_s);
    QQuickItem *field = m_gallery->item(u"askField"_s);
    QInputMethodEvent composing(u"にほん"_s, {});
    QGuiApplication::sendEvent(field, &composing);
    QVERIFY(field->property("inputMethodComposing").toBool());
    m_gallery->press(Qt::Key_Return);
    QVERIFY(sent().isEmpty());
    QInputMethodEvent chosen;
    chosen.setCommitString(u"日本"_s);
    QGuiApplication::sendEvent(field, &chosen);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(sent().size(), 1);
    QVERIFY(sent().first().endsWith(u"日本"_s));
}

void TurnTest::offlineBanner() {
    QVERIFY(!m_gallery->find(u"bannerAction"_s));
    m_workspace->connectivity.setOnline(false);
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"hello"_s);
    m_gallery->press(Qt::Key_Return);
    m_gallery->click(u"bannerAction"_s);
    QTRY_COMPARE(sent(), QStringList{u"hello"_s});
    QTRY_VERIFY(!m_gallery->find(u"bannerAction"_s));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::TurnTest)
#include "TurnTest.moc"
