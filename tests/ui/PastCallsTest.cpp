#include "ui/CallWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// Calls of before: their page in the place of the canvas, and their lines in the conversation.
class PastCallsTest : public CallWindow {
    Q_OBJECT

private Q_SLOTS:
    void states();
    void keys();
    void withoutTranscript();
    void callInTheConversation();

private:
    void prepare() override;
    void openPage();
    int count() { return m_gallery->item(u"callList"_s)->property("count").toInt(); }
};

void PastCallsTest::prepare() {
    CallWindow::prepare();
    m_workspace->backend.answer(u"GET api/v2/voice/calls"_s, Workspace::pastCalls());
    m_workspace->backend.answer(u"GET api/v2/voice/calls/c3"_s, Workspace::pastTranscript());
}

/// From the list of everybody, as a person finds it.
void PastCallsTest::openPage() {
    m_gallery->click(u"scopeButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"scopeSearch"_s));
    m_gallery->click(u"showCalls"_s);
    QTRY_VERIFY(!m_gallery->find(u"scopeSearch"_s));
    QTRY_COMPARE(m_workspace->store->canvas()->panel(), u"calls"_s);
    QVERIFY(m_gallery->item(u"panelClose"_s));
}

void PastCallsTest::states() {
    const QString route = u"GET api/v2/voice/calls"_s;
    const auto note = [this] {
        return m_gallery->item(u"callsEmpty"_s)->property("text").toString();
    };
    open();
    m_workspace->store->scope()->pickEntry(store::RailRow::Agent, u"ferry"_s, u"scout"_s);
    QTRY_VERIFY(room().callHistoryLoaded());
    m_workspace->backend.hold(route);
    m_workspace->store->scope()->pickEntry(store::RailRow::Agent, u"ferry"_s, u"loom"_s);
    openPage();
    QCOMPARE(note(), u"Loading…"_s);
    m_workspace->backend.answer(route, R"({"calls":[]})");
    m_workspace->backend.release(route);
    m_gallery->press(Qt::Key_Escape);
    openPage();
    QTRY_COMPARE(note(), u"No calls yet"_s);

    m_gallery->press(Qt::Key_Escape);
    m_workspace->backend.answer(route, R"({"error":"down"})", 500);
    openPage();
    m_gallery->save(u"calls-failed"_s);
    QVERIFY(m_gallery->item(u"callsRetry"_s));
    m_workspace->backend.answer(route, Workspace::pastCalls());
    m_gallery->click(u"callsRetry"_s);
    QTRY_VERIFY(m_gallery->find(u"callList"_s) && count() == 3);
    QVERIFY(!m_gallery->find(u"callsRetry"_s));
}

void PastCallsTest::keys() {
    open();
    openPage();
    QTRY_COMPARE(count(), 3);
    QVERIFY(m_gallery->hasFocus(u"callList"_s));
    m_workspace->backend.answer(u"GET api/v2/voice/calls/c1"_s, R"({"call":{"transcript":[]}})");
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->find(u"pastLine:2"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Space);
    QTRY_COMPARE(m_gallery->item(u"pastTranscriptNote"_s)->property("text").toString(),
                 u"Nothing was written down"_s);
    // One is open at a time.
    QVERIFY(!m_gallery->find(u"pastLine:2"_s));
    m_gallery->press(Qt::Key_Space);
    QTRY_VERIFY(!m_gallery->find(u"pastTranscriptNote"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"callList"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
}

void PastCallsTest::withoutTranscript() {
    open();
    openPage();
    QTRY_COMPARE(count(), 3);
    m_gallery->click(u"pastCall:c2"_s);
    QVERIFY(m_gallery->hasFocus(u"callList"_s));
    QCOMPARE(room().callTranscriptOpen(), QString());
    QCOMPARE(m_workspace->backend.count(u"GET api/v2/voice/calls/c2"_s), 0);
}

/// A past call is a line at its time. It opens to what was said, by mouse and by keys.
void PastCallsTest::callInTheConversation() {
    m_workspace->history(test::kivChat, '[' + test::rowJson(1, u"user"_s, u"Hello"_s) + ']');
    open();
    const QString line = u"callLine:c3"_s;
    QTRY_VERIFY(m_gallery->find(line));
    const int before = m_workspace->msgs().count();
    m_gallery->click(line);
    QTRY_COMPARE(m_workspace->msgs().count(), before + 3);
    QVERIFY(m_workspace->texts().contains(u"How do the projects look this week?"_s));
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    m_gallery->click(line);
    QTRY_COMPARE(m_workspace->msgs().count(), before);

    // A call that ends leaves the same.
    QVERIFY(m_workspace->connect());
    converse();
    room().hangupCall();
    m_workspace->clock.advance(5s);
    QTRY_VERIFY(m_workspace->texts().contains(u"Which one should worry me?"_s));
    m_gallery->save(u"call-in-rail"_s);
    // The keys stand on the last message; the line is further up, and not made yet.
    m_gallery->item(u"compactFeed"_s)->forceActiveFocus(Qt::TabFocusReason);
    const int shown = m_workspace->msgs().count();
    for (int step = 0; step < 40 && m_workspace->msgs().count() == shown; ++step) {
        const QQuickItem *ring = m_gallery->item(u"messageRing"_s);
        const double middle = ring->mapToScene({0, ring->height() / 2}).y();
        if (m_gallery->find(u"callLine:now"_s) &&
            std::abs(m_gallery->middleOf(u"callLine:now"_s).y() - middle) < 30) {
            m_gallery->press(Qt::Key_Return);
            QTRY_COMPARE_LT(m_workspace->msgs().count(), shown);
        }
        m_gallery->press(Qt::Key_Up);
    }
    QCOMPARE_LT(m_workspace->msgs().count(), shown);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::PastCallsTest)
#include "PastCallsTest.moc"
