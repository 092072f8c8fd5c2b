#include "ui/CallWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// A call and the window behind it: what it leaves there, and what is told of it.
class CallPillTest : public CallWindow {
    Q_OBJECT

private Q_SLOTS:
    void pill();
    void windowCommandsLeaveTheCall_data();
    void windowCommandsLeaveTheCall();
    void refused();
    void failure();
    void news();
};

void CallPillTest::pill() {
    open();
    QVERIFY(!m_gallery->find(u"callPill"_s));
    m_gallery->click(u"askField"_s);
    QVERIFY(m_workspace->connect());
    QVERIFY(!m_gallery->find(u"askField"_s));
    m_workspace->clock.advance(65s);
    m_gallery->click(u"leaveCallScreen"_s);
    QCOMPARE(words(u"callPillState"_s), u"1:05"_s);
    QVERIFY(!m_gallery->find(u"callState"_s));
    QVERIFY(!m_gallery->find(u"callButton"_s));
    // The window is used as ever while the call goes on.
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    m_gallery->type(u"Hello"_s);
    QCOMPARE(m_workspace->store->chat()->draft(), u"Hello"_s);
    QCOMPARE(heard(u"callPill"_s), u"Back to the call with KIV"_s);
    room().toggleMute();
    QCOMPARE(heard(u"callPill"_s), u"Back to the call with KIV, muted"_s);
    room().toggleHold();
    QCOMPARE(heard(u"callPill"_s), u"Back to the call with KIV, on hold"_s);

    m_gallery->item(u"callPill"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Return);
    QVERIFY(room().callShown());
    // The screen is as it was left.
    QVERIFY(m_gallery->hasFocus(u"leaveCallScreen"_s));
    m_gallery->press(Qt::Key_Escape);
    m_gallery->click(u"endCallButton"_s);
    QCOMPARE(words(u"callPillState"_s), u"Call ended"_s);
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(!m_gallery->find(u"callPill"_s));
    QVERIFY(m_gallery->find(u"callButton"_s));
}

void CallPillTest::windowCommandsLeaveTheCall_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shows");
    QTest::newRow("ask bar") << int(Qt::Key_K) << u"askField"_s;
    QTest::newRow("history") << int(Qt::Key_Y) << u"historyList"_s;
    QTest::newRow("account") << int(Qt::Key_Comma) << u"profileTab"_s;
    QTest::newRow("find") << int(Qt::Key_F) << QString();
}

/// What they show would lie below the call.
void CallPillTest::windowCommandsLeaveTheCall() {
    QFETCH(int, key);
    QFETCH(QString, shows);
    talk();
    m_gallery->press(Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(room().callShown(), shows.isEmpty());
    QVERIFY(room().call());
    if (!shows.isEmpty())
        QVERIFY(m_gallery->item(shows));
}

void CallPillTest::refused() {
    m_workspace->backend.answer(u"GET api/v2/voice/capability"_s,
                                R"({"available":false,"reason":"insufficient_balance"})");
    open();
    m_gallery->click(u"callButton"_s);
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(),
             u"Not enough tokens — top up in Billing to call."_s);
    QVERIFY(!m_gallery->find(u"callState"_s));
    QCOMPARE(room().callHint(), QString());
}

/// One line on the screen, or in the window when nobody sees the screen.
void CallPillTest::failure() {
    talk();
    const auto cutOff = [this] {
        m_workspace->drop();
        m_workspace->connected();
        QTRY_VERIFY(!room().callReconnecting());
        m_workspace->drop();
    };
    m_workspace->drop();
    QTRY_COMPARE(words(u"callState"_s), u"Reconnecting"_s);
    m_workspace->connected();
    QTRY_COMPARE(words(u"callState"_s), u"Listening"_s);
    m_workspace->drop();
    QTRY_VERIFY(words(u"callState"_s).startsWith(u"Voice connection error: "_s));
    QVERIFY(words(u"callState"_s).contains(u"1006"_s));
    QCOMPARE(heard(u"callNews"_s), words(u"callState"_s));
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(!m_gallery->find(u"callState"_s));

    QVERIFY(m_workspace->connect());
    m_gallery->press(Qt::Key_Escape);
    cutOff();
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(m_gallery->find(u"toast:0"_s));
    QVERIFY(m_gallery->item(u"toast:0"_s)->property("words").toString().contains(u"1006"_s));
    QVERIFY(!m_gallery->find(u"toast:1"_s));
}

/// Said once each, not at every word.
void CallPillTest::news() {
    open();
    QVERIFY(!m_gallery->find(u"callNews"_s));
    QVERIFY(m_workspace->dial());
    QCOMPARE(heard(u"callNews"_s), u"Connecting"_s);
    m_workspace->connected();
    QTRY_COMPARE(heard(u"callNews"_s), u"Connected"_s);
    m_workspace->speaking(true);
    m_workspace->say(u"ai"_s, u"Good morning."_s);
    QCOMPARE(heard(u"callNews"_s), u"Connected"_s);
    QCOMPARE(heard(u"spokenLine"_s), u"KIV, Good morning."_s);
    m_gallery->press(Qt::Key_Escape);
    room().hangupCall();
    QCOMPARE(heard(u"callNews"_s), u"Call ended"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CallPillTest)
#include "CallPillTest.moc"
