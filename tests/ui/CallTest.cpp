#include "ui/CallWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// The screen of a call, used as a person does.
class CallTest : public CallWindow {
    Q_OBJECT

private Q_SLOTS:
    void counterparts();
    void controls_data();
    void controls();
    void states();
    void keys();
    void tabOrder();
    void narrowWindow();
    void standsStill_data();
    void standsStill();
    void microphones();
};

/// An agent's disc in place of the mark; KIV speaks for a project.
void CallTest::counterparts() {
    open();
    m_workspace->store->scope()->pickEntry(store::RailRow::Agent, u"ferry"_s, u"scout"_s);
    QVERIFY(m_workspace->connect());
    m_workspace->speaking(true);
    QCOMPARE(words(u"callState"_s), u"Scout is speaking"_s);
    // Who is called stays, wherever the person goes meanwhile.
    m_gallery->press(Qt::Key_Escape);
    m_gallery->press(Qt::Key_0, Qt::ControlModifier);
    QVERIFY(heard(u"callPill"_s).contains(u"Scout"_s));
}

void CallTest::controls_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nameThen");
    QTest::newRow("mute") << u"muteButton"_s << u"callMuted"_s << u"Mute"_s << u"Unmute"_s;
    QTest::newRow("hold") << u"holdButton"_s << u"callHeld"_s << u"Hold"_s << u"Resume"_s;
    QTest::newRow("type") << u"typeButton"_s << u"callTyping"_s << u"Type instead"_s
                          << u"Type instead"_s;
}

/// By the mouse and back by the keyboard; nothing before the call is connected.
void CallTest::controls() {
    QFETCH(QString, button);
    QFETCH(QString, field);
    QFETCH(QString, name);
    QFETCH(QString, nameThen);
    const auto is = [&] { return room().property(field.toLatin1()).toBool(); };
    open();
    QVERIFY(m_workspace->dial());
    m_gallery->click(button);
    QVERIFY(!is());
    m_workspace->connected();
    QTRY_COMPARE(room().callPhase(), store::CallPhase::Active);
    QCOMPARE(heard(button), name);
    m_gallery->click(button);
    QVERIFY(is());
    QCOMPARE(heard(button), nameThen);
    m_gallery->item(button)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Return);
    QVERIFY(!is());
}

/// What the line under the figure says, the more pressing first.
void CallTest::states() {
    open();
    m_gallery->click(u"askField"_s);
    QVERIFY(m_workspace->dial());
    QCOMPARE(words(u"callState"_s), u"Connecting"_s);
    QVERIFY(!m_gallery->find(u"callTimer"_s));
    m_workspace->connected();
    QTRY_COMPARE(words(u"callState"_s), u"Listening"_s);
    m_workspace->clock.advance(72s);
    QCOMPARE(words(u"callTimer"_s), u"1:12"_s);
    room().toggleMute();
    QCOMPARE(words(u"callState"_s), u"Muted"_s);
    m_workspace->speaking(true);
    QCOMPARE(words(u"callState"_s), u"KIV is speaking"_s);
    room().toggleHold();
    QCOMPARE(words(u"callState"_s), u"On hold"_s);
    room().toggleHold();
    m_workspace->clock.advance(498s);
    QCOMPARE(words(u"callState"_s), u"Ending soon"_s);
    m_workspace->clock.advance(30s);
    QCOMPARE(words(u"callState"_s), u"Call ended"_s);
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(!m_gallery->find(u"callState"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
}

void CallTest::keys() {
    open();
    m_gallery->press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(m_workspace->dialled());
    QVERIFY(room().callShown());
    // Not connected yet, and still there are keys.
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!room().callShown());
    QVERIFY(room().call());
    m_gallery->click(u"callPill"_s);
    m_workspace->connected();
    QTRY_COMPARE(room().callPhase(), store::CallPhase::Active);
    QVERIFY(m_gallery->hasFocus(u"muteButton"_s));
    m_gallery->press(Qt::Key_Space);
    QVERIFY(room().callMuted());
    m_gallery->press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(room().callPhase(), store::CallPhase::Ending);
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(!room().call());
}

void CallTest::tabOrder() {
    talk();
    QStringList order;
    QVERIFY(m_gallery->hasFocus(u"muteButton"_s));
    do {
        order.append(m_gallery->window().activeFocusItem()->objectName());
        m_gallery->press(Qt::Key_Tab);
    } while (order.size() < 20 && !m_gallery->hasFocus(u"muteButton"_s));
    QCOMPARE(order,
             QStringList({u"muteButton"_s, u"holdButton"_s, u"microphoneButton"_s, u"typeButton"_s,
                          u"shareButton"_s, u"transcriptButton"_s, u"hangUpButton"_s,
                          u"transcriptList"_s, u"callField"_s, u"leaveCallScreen"_s}));
}

void CallTest::narrowWindow() {
    talk({1024, 680});
    converse();
    const auto fits = [this](const QString &name) {
        const QQuickItem *item = m_gallery->item(name);
        const QRectF place = item->mapRectToScene({0, 0, item->width(), item->height()});
        return QRectF({0, 0}, m_gallery->window().size()).contains(place);
    };
    QVERIFY(!m_gallery->find(u"transcriptList"_s));
    QVERIFY(fits(u"callRing"_s));
    // The figure, the words and the controls do not touch.
    const auto top = [this](const QString &name) {
        return m_gallery->item(name)->mapToScene({}).y();
    };
    QCOMPARE_GT(top(u"callState"_s), top(u"callRing"_s) + m_gallery->item(u"callRing"_s)->height());
    QCOMPARE_GT(top(u"muteButton"_s),
                top(u"callCaption"_s) + m_gallery->item(u"callCaption"_s)->height());
    m_gallery->click(u"transcriptButton"_s);
    QVERIFY(fits(u"transcriptList"_s));
    QVERIFY(fits(u"hangUpButton"_s));
    QVERIFY(fits(u"muteButton"_s));
    // What the person chose stays when the window grows.
    m_gallery->click(u"transcriptButton"_s);
    m_gallery->window().resize(1440, 900);
    QTRY_COMPARE(m_gallery->window().width(), 1440);
    QVERIFY(!m_gallery->find(u"transcriptList"_s));
}

void CallTest::standsStill_data() {
    QTest::addColumn<bool>("reduced");
    QTest::newRow("motion") << false;
    QTest::newRow("less motion") << true;
}

/// A call in which nothing happens costs nothing, and less motion means none.
void CallTest::standsStill() {
    const auto frames = [this] {
        QTest::qWait(700);
        QSignalSpy drawn(&m_gallery->window(), &QQuickWindow::afterRendering);
        QTest::qWait(500);
        return drawn.count();
    };
    QFETCH(bool, reduced);
    m_gallery->setReducedMotion(reduced);
    talk();
    QCOMPARE_LE(frames(), 1);
    m_workspace->speaking(true);
    if (reduced) {
        QCOMPARE_LE(frames(), 1);
    } else {
        QSignalSpy drawn(&m_gallery->window(), &QQuickWindow::afterRendering);
        QTRY_COMPARE_GT(drawn.count(), 5);
    }
    // Nobody sees it.
    m_gallery->press(Qt::Key_Escape);
    QCOMPARE_LE(frames(), 1);
}

/// The choice is made by keys, and the bars show how loud it is.
void CallTest::microphones() {
    talk();
    const QQuickItem *ring = m_gallery->item(u"callRing"_s);
    QCOMPARE(ring->width(), 440);
    m_workspace->microphones.hear(QByteArray(640, 0));
    QTRY_COMPARE(ring->width(), 440 * 1.03);
    m_gallery->click(u"muteButton"_s);
    QTRY_COMPARE(ring->width(), 440);
    m_gallery->click(u"microphoneButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"microphones"_s));
    QCOMPARE(words(u"microphone:"_s), u"System default"_s);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(m_workspace->store->microphone()->chosen(), u"headset"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"microphoneButton"_s));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CallTest)
#include "CallTest.moc"
