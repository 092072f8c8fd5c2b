#include "ui/CallWindow.h"
#include "ui/SceneAnswers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// What is said and typed in a call.
class CallWordsTest : public CallWindow {
    Q_OBJECT

private Q_SLOTS:
    void typing();
    void transcriptGrows();
    void drawings();
    void copyAndShare();
};

void CallWordsTest::typing() {
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

void CallWordsTest::transcriptGrows() {
    talk();
    const auto place = [this](const char *name) {
        return m_gallery->item(u"transcriptList"_s)->property(name).toDouble();
    };
    const auto atEnd = [&] { return place("contentY") == place("end"); };
    for (int line = 0; line < 60; ++line) {
        m_workspace->say(line % 2 ? u"user"_s : u"ai"_s, u"Line %1 "_s.arg(line).repeated(12));
    }
    QTRY_COMPARE_GT(place("contentHeight"), 3000);
    QTRY_VERIFY(atEnd());
    m_workspace->say(u"ai"_s, u"It grows"_s, u"partial"_s);
    m_workspace->say(u"ai"_s, u"It grows while it is spoken "_s.repeated(20), u"partial"_s);
    QTRY_VERIFY(atEnd());
    m_gallery->save(u"call-long"_s);

    // Who reads further up is left in peace.
    m_gallery->item(u"transcriptList"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_PageUp);
    m_gallery->save(u"call-scrolled"_s);
    QCOMPARE_GT(place("end") - place("contentY"), 400);
    m_workspace->say(u"ai"_s, u"It grows on "_s.repeated(60), u"partial"_s);
    QTest::qWait(100);
    QVERIFY(!atEnd());
    m_gallery->press(Qt::Key_PageDown);
    m_gallery->press(Qt::Key_PageDown);
    m_workspace->say(u"user"_s, u"Go on"_s);
    QTRY_VERIFY(atEnd());
    QCOMPARE(room().callTranscript()->count(), store::CallTranscript::mostLines);
}

/// What is drawn meanwhile stands among the words, and leads to the window.
void CallWordsTest::drawings() {
    talk();
    m_workspace->say(u"ai"_s, u"Here is the load for the coming week."_s);
    m_workspace->row(90, answerNamed(u"workload-plain"_s).text);
    QTRY_VERIFY(m_gallery->find(u"drawnInCall"_s));
    m_workspace->clock.advance(2s);
    QTRY_COMPARE(heard(u"drawnInCall"_s), u"Load for the coming week, on the canvas"_s);
    m_workspace->say(u"ai"_s, u"Glasshouse is over its capacity."_s);
    m_gallery->save(u"call-drawing"_s);
    for (int line = 0; line < 20; ++line)
        m_workspace->say(u"user"_s, u"Line %1 "_s.arg(line).repeated(12));
    // Out of sight, until the keys come to it.
    const auto inSight = [this] {
        const QQuickItem *list = m_gallery->item(u"transcriptList"_s);
        const QQuickItem *card = m_gallery->item(u"drawnInCall"_s);
        return QRectF(0, 0, list->width(), list->height())
            .contains(card->mapRectToItem(list, {0, 0, card->width(), card->height()}));
    };
    QTRY_VERIFY(!inSight());
    m_gallery->item(u"transcriptList"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"drawnInCall"_s));
    QVERIFY(inSight());
    m_workspace->say(u"ai"_s, u"Who reads is left in peace."_s);
    QTest::qWait(100);
    QVERIFY(inSight());
    m_workspace->store->canvas()->clearCanvas();
    QTRY_COMPARE(heard(u"drawnInCall"_s), u"Show Load for the coming week on the canvas"_s);
    m_gallery->press(Qt::Key_Return);
    QVERIFY(!room().callShown());
    QVERIFY(room().call());
    QCOMPARE(m_workspace->store->canvas()->art(), u"workload"_s);
}

void CallWordsTest::copyAndShare() {
    talk();
    QVERIFY(!m_gallery->item(u"copyTranscript"_s)->isEnabled());
    m_workspace->clock.advance(9s);
    m_workspace->say(u"user"_s, u"How is the week?"_s);
    m_workspace->clock.advance(63s);
    m_workspace->say(u"ai"_s, u"Good."_s);
    QTRY_VERIFY(m_gallery->item(u"copyTranscript"_s)->isEnabled());
    m_gallery->click(u"copyTranscript"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"0:09 You: How is the week?\n1:12 KIV: Good."_s);
    m_gallery->click(u"shareButton"_s);
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(),
             u"Canvas link copied · anyone on the project can open it"_s);
    QVERIFY(room().callShown());
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CallWordsTest)
#include "CallWordsTest.moc"
