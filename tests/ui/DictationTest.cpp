#include "ScriptedVoice.h"
#include "ui/GalleryTest.h"

#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

using Keys = QList<std::pair<Qt::Key, Qt::KeyboardModifiers>>;

/// Speaking into the ask bar, by real keys and presses.
class DictationTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void spokenAndTyped();
    void keysPassOverTheInterimWords_data();
    void keysPassOverTheInterimWords();
    void clickBesideTheInterimWords();
    void undoTakesBackWhatWasSpoken();
    void escapeStops();
    void sentInMidSentence();
    void anotherScope();
    void errorIsShownOnce();
    void microphoneByKeyboard();
    void microphoneByMouse();
    void composingGoesFirst();

private:
    void prepare() override;
    void dictate();
    store::DictationRoom &room() { return *m_workspace->store->dictation(); }
    QString text() { return m_gallery->item(u"askField"_s)->property("text").toString(); }
    /// What is shown at the cursor without being part of the text.
    QString shownInterim();

    test::ScriptedSpeech m_speech;
    test::ScriptedMicrophones m_microphones;
};

void DictationTest::prepare() {
    m_workspace->store->dictation()->setService(&m_speech);
    m_workspace->store->microphone()->setSource(&m_microphones);
    open();
}

void DictationTest::dictate() {
    m_gallery->click(u"micButton"_s);
    QVERIFY(room().dictating());
    m_speech.authorise();
}

QString DictationTest::shownInterim() {
    QCoreApplication::processEvents();
    const auto *document =
        m_gallery->item(u"askField"_s)->property("textDocument").value<QQuickTextDocument *>();
    QString shown;
    for (QTextBlock block = document->textDocument()->begin(); block.isValid();
         block = block.next())
        shown += block.layout()->preeditAreaText();
    return shown;
}

void DictationTest::spokenAndTyped() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"Well:"_s);
    dictate();
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    m_speech.interim(u"how many"_s);
    QCOMPARE(shownInterim(), u" how many"_s);
    QCOMPARE(text(), u"Well:"_s);
    m_gallery->type(u" so"_s);
    QCOMPARE(shownInterim(), u" how many"_s);
    m_speech.interim(u"how many tasks"_s);
    QCOMPARE(shownInterim(), u" how many tasks"_s);
    m_speech.finish(u"how many tasks?"_s);
    QCOMPARE(shownInterim(), QString());
    QCOMPARE(text(), u"Well: so how many tasks?"_s);
    QCOMPARE(m_workspace->store->chat()->draft(), text());

    // A line break while the next words are being spoken: they go along.
    m_speech.interim(u"and"_s);
    QCOMPARE(shownInterim(), u" and"_s);
    m_gallery->press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(shownInterim(), u"and"_s);
    m_gallery->click(u"micButton"_s);
    QCOMPARE(text(), u"Well: so how many tasks?\nand"_s);
    QCOMPARE(shownInterim(), QString());
    QVERIFY(!room().dictating());
}

void DictationTest::keysPassOverTheInterimWords_data() {
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("result"); // with an x typed and then the words spoken
    const auto control = Qt::ControlModifier;
    QTest::newRow("end") << Keys{{Qt::Key_End, {}}} << u"one two threex I say"_s;
    QTest::newRow("home") << Keys{{Qt::Key_Home, {}}} << u"x I say one two three"_s;
    QTest::newRow("right") << Keys{{Qt::Key_Right, {}}} << u"one twox I say three"_s;
    QTest::newRow("left") << Keys{{Qt::Key_Left, {}}} << u"one tx I say wo three"_s;
    QTest::newRow("word right") << Keys{{Qt::Key_Right, control}} << u"one two x I say three"_s;
    QTest::newRow("delete") << Keys{{Qt::Key_Delete, {}}} << u"one twx I say three"_s;
    QTest::newRow("all, replaced") << Keys{{Qt::Key_A, control}} << u"x I say"_s;
    QTest::newRow("selection") << Keys{{Qt::Key_End, Qt::ShiftModifier}} << u"one twx I say"_s;
    QTest::newRow("undo and redo")
        << Keys{{Qt::Key_Z, control}, {Qt::Key_Z, control | Qt::ShiftModifier}}
        << u"one two threex I say"_s;
}

/// With the cursor after "one tw" and words shown there.
void DictationTest::keysPassOverTheInterimWords() {
    QFETCH(Keys, keys);
    QFETCH(QString, result);
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"one two three"_s);
    for (int step = 0; step < 7; ++step)
        m_gallery->press(Qt::Key_Left);
    dictate();
    m_speech.interim(u"I say"_s);
    QCOMPARE(shownInterim(), u" I say "_s);
    for (const auto &[key, modifiers] : keys) {
        m_gallery->press(key, modifiers);
        QVERIFY(!shownInterim().isEmpty());
    }
    m_gallery->type(u"x"_s);
    QVERIFY(!shownInterim().isEmpty());
    m_speech.finish(u"I say"_s);
    QCOMPARE(text(), result);
    QCOMPARE(shownInterim(), QString());
}

void DictationTest::clickBesideTheInterimWords() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"first"_s);
    dictate();
    m_speech.interim(u"words"_s);
    QCOMPARE(shownInterim(), u" words"_s);
    QQuickItem *field = m_gallery->item(u"askField"_s);
    const QPoint beginning = field->mapToScene(QPointF(15, 8)).toPoint();
    QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {}, beginning);
    QCOMPARE(field->property("cursorPosition").toInt(), 0);
    QCOMPARE(shownInterim(), u"words "_s);
    m_speech.finish(u"Words"_s);
    QCOMPARE(text(), u"Words first"_s);
}

void DictationTest::undoTakesBackWhatWasSpoken() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"typed"_s);
    dictate();
    m_speech.interim(u"sp"_s);
    QCOMPARE(shownInterim(), u" sp"_s);
    m_speech.finish(u"spoken"_s);
    m_speech.interim(u"ne"_s);
    m_speech.finish(u"next"_s);
    m_gallery->click(u"micButton"_s);
    QCOMPARE(text(), u"typed spoken next"_s);
    m_gallery->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(), u"typed spoken"_s);
    m_gallery->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(), u"typed"_s);
    m_gallery->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(text(), u"typed spoken"_s);
    QCOMPARE(m_workspace->store->chat()->draft(), text());
}

void DictationTest::escapeStops() {
    m_gallery->click(u"askField"_s);
    const QQuickItem *before = m_gallery->window().activeFocusItem();
    m_workspace->store->layout()->toggleDock();
    QTRY_VERIFY(m_gallery->window().activeFocusItem() != before);
    const auto focused = [this] { return m_gallery->window().activeFocusItem()->objectName(); };
    QCOMPARE(focused(), u"askField"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"micButton"_s);
    m_gallery->press(Qt::Key_Space);
    m_speech.authorise();
    QCOMPARE(focused(), u"askField"_s);
    m_speech.interim(u"Who is"_s);
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!room().dictating());
    QCOMPARE(text(), u"Who is"_s);
    // Only then does it close the dock.
    QVERIFY(m_workspace->store->layout()->dockOpen());
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!m_workspace->store->layout()->dockOpen());
}

void DictationTest::sentInMidSentence() {
    dictate();
    m_speech.interim(u"How was the week"_s);
    m_gallery->click(u"sendButton"_s);
    QVERIFY(!room().dictating());
    QTRY_COMPARE(m_workspace->backend.count(test::kivPost), 1);
    QVERIFY(m_workspace->texts().contains(u"How was the week"_s));
    QCOMPARE(text(), QString());

    // The keyboard sends as well, and what is only being spoken is enough.
    dictate();
    m_speech.interim(u"And this one"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_workspace->texts().contains(u"And this one"_s));
}

void DictationTest::anotherScope() {
    dictate();
    m_speech.finish(u"Ask the ferry"_s);
    m_speech.interim(u"later"_s);
    m_gallery->click(u"railRow:ferry"_s);
    QTRY_COMPARE(text(), QString());
    QVERIFY(!room().dictating());
    m_gallery->click(u"railRow:"_s);
    QTRY_COMPARE(text(), u"Ask the ferry later"_s);
}

void DictationTest::errorIsShownOnce() {
    QTest::ignoreMessage(QtWarningMsg, "The microphone cannot be opened: busy");
    m_microphones.opens = false;
    dictate();
    const auto note = [this] {
        return m_gallery->item(u"chatNote"_s)->property("text").toString();
    };
    QCOMPARE(note(), u"Microphone is not available."_s);
    QVERIFY(!room().dictating());
    m_microphones.opens = true;
    dictate();
    QVERIFY(note() != u"Microphone is not available."_s);
}

void DictationTest::microphoneByKeyboard() {
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"micButton"_s));
    m_gallery->press(Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(m_gallery->hasFocus(u"microphone:"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"microphone:headset"_s));
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(m_workspace->store->microphone()->chosen(), u"headset"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"micButton"_s));

    m_gallery->press(Qt::Key_Space);
    QVERIFY(room().dictating());
    m_speech.authorise();
    QCOMPARE(m_microphones.openId, u"headset"_s);
    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!room().dictating());
}

void DictationTest::microphoneByMouse() {
    QTest::mouseClick(&m_gallery->window(), Qt::RightButton, {},
                      m_gallery->middleOf(u"micButton"_s));
    QVERIFY(!room().dictating());
    QTRY_VERIFY(m_gallery->find(u"microphone:desk"_s));
    m_gallery->save(u"dictation-menu"_s);
    m_gallery->click(u"microphone:desk"_s);
    QCOMPARE(m_workspace->store->microphone()->chosen(), u"desk"_s);
    QTRY_VERIFY(!m_gallery->find(u"microphone:desk"_s));

    // Unplugged meanwhile: the menu says what is there now.
    m_microphones.there.clear();
    QTest::mouseClick(&m_gallery->window(), Qt::RightButton, {},
                      m_gallery->middleOf(u"micButton"_s));
    QTRY_VERIFY(m_gallery->find(u"microphone:"_s));
    QVERIFY(!m_gallery->find(u"microphone:desk"_s));
}

/// Words of an input method and spoken words do not stand in each other's way.
void DictationTest::composingGoesFirst() {
    dictate();
    m_speech.interim(u"spoken"_s);
    QCOMPARE(shownInterim(), u"spoken"_s);
    QQuickItem *field = m_gallery->item(u"askField"_s);
    QInputMethodEvent composing(u"にほん"_s, {});
    QGuiApplication::sendEvent(field, &composing);
    QCOMPARE(shownInterim(), u"にほん"_s);
    m_speech.interim(u"spoken words"_s);
    QCOMPARE(shownInterim(), u"にほん"_s);
    QInputMethodEvent chosen;
    chosen.setCommitString(u"日本"_s);
    QGuiApplication::sendEvent(field, &chosen);
    QCOMPARE(shownInterim(), u" spoken words"_s);
    m_gallery->press(Qt::Key_Escape);
    QCOMPARE(text(), u"日本 spoken words"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::DictationTest)
#include "DictationTest.moc"
