#include "ui/CallWorkspace.h"
#include "ui/Gallery.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// The screen of a call and the pill that it leaves in the window, used as a person does.
class CallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pictures_data() { addLooks(); }
    void pictures();
    void counterparts();
    void controls_data();
    void controls();
    void states();
    void keys();
    void tabOrder();
    void pill();
    void windowCommandsLeaveTheCall_data();
    void windowCommandsLeaveTheCall();
    void narrowWindow();
    void typing();
    void transcriptGrows();
    void copyAndShare();
    void refused();
    void failure();
    void standsStill_data();
    void standsStill();
    void microphones();
    void news();

private:
    void open(const QSize &size = {1440, 900});
    void talk(const QSize &size = {1440, 900});
    store::CallRoom &room() { return *m_workspace->store->call(); }
    QString words(const QString &name) {
        return m_gallery->item(name)->property("text").toString();
    }
    QString heard(const QString &name);

    std::unique_ptr<CallWorkspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void CallTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<CallWorkspace>();
    m_gallery = std::make_unique<Gallery>();
}

void CallTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void CallTest::open(const QSize &size) {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, size);
}

void CallTest::talk(const QSize &size) {
    open(size);
    QVERIFY(m_workspace->talk());
    QVERIFY(m_gallery->item(u"callState"_s));
}

/// What a screen reader says of an item.
QString CallTest::heard(const QString &name) {
    return QAccessible::queryAccessibleInterface(m_gallery->item(name))->text(QAccessible::Name);
}

void CallTest::pictures() {
    QFETCH(bool, dark);
    QFETCH(QSize, size);
    const auto named = [](const char *state) {
        return u"call-"_s + QLatin1StringView(QTest::currentDataTag()) + u'-' +
               QLatin1StringView(state);
    };
    m_gallery->setDark(dark);
    open(size);
    QVERIFY(m_workspace->call());
    m_gallery->save(named("connecting"));
    m_workspace->connectCall();
    QTRY_COMPARE(room().callPhase(), store::CallPhase::Active);
    m_workspace->microphones.hear(QByteArray(640, 0));
    m_gallery->save(named("listening"));
    m_workspace->converse();
    m_workspace->speaking(true);
    m_gallery->save(named("speaking"));
    m_gallery->press(Qt::Key_Escape);
    m_gallery->save(named("pill"));
    m_gallery->click(u"callPill"_s);
    m_workspace->speaking(false);
    m_gallery->click(u"muteButton"_s);
    m_gallery->click(u"transcriptButton"_s);
    m_gallery->save(named("muted"));
    m_gallery->click(u"typeButton"_s);
    m_gallery->type(u"And the week after?"_s);
    m_gallery->save(named("typing"));
    m_gallery->press(Qt::Key_Escape);
    m_gallery->click(u"holdButton"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->save(named("held"));
    m_workspace->drop();
    m_gallery->save(named("reconnecting"));
    m_workspace->connectCall();
    QTRY_VERIFY(!room().callReconnecting());
    m_workspace->drop();
    m_gallery->save(named("failed"));
    m_workspace->pass(5s);
    m_gallery->save(named("after"));
}

/// An agent's disc in place of the mark; KIV speaks for a project.
void CallTest::counterparts() {
    open();
    m_workspace->store->scope()->pickEntry(store::RailRow::Agent, u"ferry"_s, u"scout"_s);
    QVERIFY(m_workspace->talk());
    m_workspace->speaking(true);
    QCOMPARE(words(u"callState"_s), u"Scout is speaking"_s);
    m_gallery->save(u"call-agent"_s);
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
    QVERIFY(m_workspace->call());
    m_gallery->click(button);
    QVERIFY(!is());
    m_workspace->connectCall();
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
    QVERIFY(m_workspace->call());
    QCOMPARE(words(u"callState"_s), u"Connecting"_s);
    QVERIFY(!m_gallery->find(u"callTimer"_s));
    m_workspace->connectCall();
    QTRY_COMPARE(words(u"callState"_s), u"Listening"_s);
    m_workspace->pass(72s);
    QCOMPARE(words(u"callTimer"_s), u"1:12"_s);
    room().toggleMute();
    QCOMPARE(words(u"callState"_s), u"Muted"_s);
    m_workspace->speaking(true);
    QCOMPARE(words(u"callState"_s), u"KIV is speaking"_s);
    room().toggleHold();
    QCOMPARE(words(u"callState"_s), u"On hold"_s);
    room().toggleHold();
    m_workspace->pass(498s);
    QCOMPARE(words(u"callState"_s), u"Ending soon"_s);
    m_workspace->pass(30s);
    QCOMPARE(words(u"callState"_s), u"Call ended"_s);
    m_workspace->pass(5s);
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
    m_workspace->connectCall();
    QTRY_COMPARE(room().callPhase(), store::CallPhase::Active);
    QVERIFY(m_gallery->hasFocus(u"muteButton"_s));
    m_gallery->press(Qt::Key_Space);
    QVERIFY(room().callMuted());
    m_gallery->press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(room().callPhase(), store::CallPhase::Ending);
    m_workspace->pass(5s);
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

void CallTest::pill() {
    open();
    QVERIFY(!m_gallery->find(u"callPill"_s));
    m_gallery->click(u"askField"_s);
    QVERIFY(m_workspace->talk());
    QVERIFY(!m_gallery->find(u"askField"_s));
    m_workspace->pass(65s);
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
    m_workspace->pass(5s);
    QTRY_VERIFY(!m_gallery->find(u"callPill"_s));
    QVERIFY(m_gallery->find(u"callButton"_s));
}

void CallTest::windowCommandsLeaveTheCall_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shows");
    QTest::newRow("ask bar") << int(Qt::Key_K) << u"askField"_s;
    QTest::newRow("history") << int(Qt::Key_Y) << u"historyList"_s;
    QTest::newRow("account") << int(Qt::Key_Comma) << u"profileTab"_s;
    QTest::newRow("find") << int(Qt::Key_F) << QString();
}

/// What they show would lie below the call.
void CallTest::windowCommandsLeaveTheCall() {
    QFETCH(int, key);
    QFETCH(QString, shows);
    talk();
    m_gallery->press(Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(room().callShown(), shows.isEmpty());
    QVERIFY(room().call());
    if (!shows.isEmpty())
        QVERIFY(m_gallery->item(shows));
}

void CallTest::narrowWindow() {
    talk({1024, 680});
    m_workspace->converse();
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
    m_gallery->save(u"call-narrow-transcript"_s);
    // What the person chose stays when the window grows.
    m_gallery->click(u"transcriptButton"_s);
    m_gallery->window().resize(1440, 900);
    QTRY_COMPARE(m_gallery->window().width(), 1440);
    QVERIFY(!m_gallery->find(u"transcriptList"_s));
}

void CallTest::typing() {
    talk({1024, 680});
    m_gallery->click(u"typeButton"_s);
    QVERIFY(m_gallery->hasFocus(u"callField"_s));
    m_gallery->press(Qt::Key_Return); // nothing to say yet
    QCOMPARE(room().callTranscript()->count(), 0);
    m_gallery->type(u"Only this week"_s);
    // The other field takes over, with what is typed.
    m_gallery->click(u"transcriptButton"_s);
    QVERIFY(m_gallery->hasFocus(u"callField"_s));
    QCOMPARE(words(u"callField"_s), u"Only this week"_s);
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(room().callTranscript()->lines().last().text, u"Only this week"_s);
    QCOMPARE(words(u"callField"_s), QString());
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!room().callTyping());
    QVERIFY(room().callShown());
    QVERIFY(m_gallery->item(u"typeButton"_s)->hasActiveFocus() ||
            m_gallery->item(u"transcriptButton"_s)->hasActiveFocus());
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!room().callShown());
}

void CallTest::transcriptGrows() {
    talk();
    const auto place = [this](const char *name) {
        return m_gallery->item(u"transcriptList"_s)->property(name).toDouble();
    };
    const auto atEnd = [&] { return place("contentY") == place("end"); };
    for (int line = 0; line < 60; ++line) {
        m_workspace->hear(line % 2 ? u"user"_s : u"ai"_s, u"Line %1 "_s.arg(line).repeated(12));
    }
    QTRY_COMPARE_GT(place("contentHeight"), 3000);
    QTRY_VERIFY(atEnd());
    m_workspace->hear(u"ai"_s, u"It grows"_s, true);
    m_workspace->hear(u"ai"_s, u"It grows while it is spoken "_s.repeated(20), true);
    QTRY_VERIFY(atEnd());
    m_gallery->save(u"call-long"_s);

    // Who reads further up is left in peace.
    m_gallery->item(u"transcriptList"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_PageUp);
    m_gallery->save(u"call-scrolled"_s);
    QCOMPARE_GT(place("end") - place("contentY"), 400);
    m_workspace->hear(u"ai"_s, u"It grows on "_s.repeated(60), true);
    QTest::qWait(100);
    QVERIFY(!atEnd());
    m_gallery->press(Qt::Key_PageDown);
    m_gallery->press(Qt::Key_PageDown);
    m_workspace->hear(u"user"_s, u"Go on"_s);
    QTRY_VERIFY(atEnd());
    QCOMPARE(room().callTranscript()->count(), store::CallTranscript::mostLines);
}

void CallTest::copyAndShare() {
    talk();
    QVERIFY(!m_gallery->item(u"copyTranscript"_s)->isEnabled());
    m_workspace->pass(9s);
    m_workspace->hear(u"user"_s, u"How is the week?"_s);
    m_workspace->pass(63s);
    m_workspace->hear(u"ai"_s, u"Good."_s);
    QTRY_VERIFY(m_gallery->item(u"copyTranscript"_s)->isEnabled());
    m_gallery->click(u"copyTranscript"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"0:09 You: How is the week?\n1:12 KIV: Good."_s);
    m_gallery->click(u"shareButton"_s);
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(),
             u"Canvas link copied · anyone on the project can open it"_s);
    QVERIFY(room().callShown());
}

void CallTest::refused() {
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
void CallTest::failure() {
    talk();
    const auto cutOff = [this] {
        m_workspace->drop();
        m_workspace->connectCall();
        QTRY_VERIFY(!room().callReconnecting());
        m_workspace->drop();
    };
    m_workspace->drop();
    QTRY_COMPARE(words(u"callState"_s), u"Reconnecting"_s);
    m_workspace->connectCall();
    QTRY_COMPARE(words(u"callState"_s), u"Listening"_s);
    m_workspace->drop();
    QTRY_VERIFY(words(u"callState"_s).startsWith(u"Voice connection error: "_s));
    QVERIFY(words(u"callState"_s).contains(u"1006"_s));
    m_workspace->pass(5s);
    QTRY_VERIFY(!m_gallery->find(u"callState"_s));

    QVERIFY(m_workspace->talk());
    m_gallery->press(Qt::Key_Escape);
    cutOff();
    m_workspace->pass(5s);
    QTRY_VERIFY(m_gallery->find(u"toast:0"_s));
    QVERIFY(m_gallery->item(u"toast:0"_s)->property("words").toString().contains(u"1006"_s));
    QVERIFY(!m_gallery->find(u"toast:1"_s));
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
    if (reduced)
        QCOMPARE_LE(frames(), 1);
    else
        QCOMPARE_GT(frames(), 5);
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
    QCOMPARE(words(u"microphone:0"_s), u"System default"_s);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    m_gallery->save(u"call-microphones"_s);
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(m_workspace->store->microphone()->chosen(), u"headset"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"microphoneButton"_s));
}

/// Said once each, not at every word.
void CallTest::news() {
    open();
    QCOMPARE(heard(u"callNews"_s), QString());
    QVERIFY(m_workspace->call());
    QCOMPARE(heard(u"callNews"_s), u"Connecting"_s);
    m_workspace->connectCall();
    QTRY_COMPARE(heard(u"callNews"_s), u"Connected"_s);
    m_workspace->speaking(true);
    m_workspace->hear(u"ai"_s, u"Good morning."_s);
    QCOMPARE(heard(u"callNews"_s), u"Connected"_s);
    QCOMPARE(heard(u"spokenLine"_s), u"KIV, Good morning."_s);
    m_gallery->press(Qt::Key_Escape);
    room().hangupCall();
    QCOMPARE(heard(u"callNews"_s), u"Call ended"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CallTest)
#include "CallTest.moc"
