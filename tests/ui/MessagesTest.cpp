#include "ui/GalleryTest.h"
#include "ui/chat/ConversationExport.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// What a person sees of messages and does with them.
class MessagesTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void messagesByKeys();
    void linksByKeys();
    void sentByKeys();
    void copiedAsBoth();
    void conversationIsSaved_data();
    void conversationIsSaved();

private:
    void prepare() override;
    /// The window with a question and two answers in the dock, whose feed has the keys.
    void openDock();
    QString focused() const { return m_gallery->window().activeFocusItem()->objectName(); }
    QString stateOf(const QString &name) const {
        return m_gallery->item(name)->property("text").toString();
    }
};

void MessagesTest::prepare() {
    QVERIFY(m_workspace->signIn());
}

void MessagesTest::openDock() {
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_workspace->row(1, u"What is *open*?"_s, u"user"_s);
    m_workspace->row(2, u"Two **things**: <a> & b."_s);
    m_workspace->row(3, Workspace::compareAnswer());
    QTRY_COMPARE(m_workspace->msgs().count(), 4);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    // It has slid in.
    const double left = 1440 - m_workspace->store->layout()->shownDockW();
    QTRY_COMPARE(m_gallery->item(u"dockFeed"_s)->mapToScene({}).x(), left);
    m_gallery->item(u"dockFeed"_s)->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(m_gallery->find(u"messageRing"_s));
}

/// The newest message first; the keys go up, and Enter shows what can be done there.
void MessagesTest::messagesByKeys() {
    openDock();
    const auto ringTop = [&] { return m_gallery->item(u"messageRing"_s)->y(); };
    const double newest = ringTop();
    QTRY_VERIFY(m_gallery->find(u"showOnCanvas"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"copyMessageRow"_s));
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"showMessageRow"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->canvas()->art(), u"compare"_s);
    QTRY_COMPARE(focused(), u"dockFeed"_s);

    m_gallery->press(Qt::Key_Up);
    QTRY_COMPARE_LT(ringTop(), newest);
    m_gallery->press(Qt::Key_Up);
    m_gallery->press(Qt::Key_Menu);
    QTRY_VERIFY(m_gallery->hasFocus(u"copyMessageRow"_s));
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"editMessageRow"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(focused(), u"askField"_s);
    QCOMPARE(stateOf(u"askField"_s), u"What is *open*?"_s);
}

/// A link names where it leads, and the keys follow it.
void MessagesTest::linksByKeys() {
    openDock();
    m_workspace->row(4,
                     u"The [bank.example](https://evil.example/x) and [the team](/team/ferry)."_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 5);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"copyMessageRow"_s));
    QCOMPARE(m_gallery->item(u"messageLink:0"_s)->property("hint").toString(), u"evil.example"_s);
    QCOMPARE(stateOf(u"messageLink:1"_s), u"the team"_s);
    m_gallery->press(Qt::Key_Up);
    QVERIFY(m_gallery->hasFocus(u"messageLink:1"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->find(u"pageBack"_s));
}

/// A message of ours says how it stands, and a failed one goes out again from its menu.
void MessagesTest::sentByKeys() {
    m_gallery->open(*m_workspace->store, {1440, 900});
    const QString post = u"POST "_s + test::kivChat;
    m_workspace->backend.answer(post, "{}", 500);
    m_workspace->backend.hold(post);
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"hello"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(stateOf(u"sentState"_s), u"Sending…"_s);
    m_workspace->backend.release(post);
    QTRY_COMPARE(m_workspace->deliveryOf(1), store::Delivery::Failed);
    QVERIFY(!m_gallery->find(u"sentState"_s));

    m_workspace->backend.answer(post,
                                R"({"message":)" + test::rowJson(7, u"user"_s, u"hello"_s) + "}");
    m_gallery->item(u"compactFeed"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Up);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"copyMessageRow"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"retryMessageRow"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->deliveryOf(1), store::Delivery::Stored);
    QTRY_VERIFY(stateOf(u"sentState"_s)
                    .contains(m_workspace->clock.now().toLocalTime().toString(u"HH:mm"_s)));
}

void MessagesTest::copiedAsBoth() {
    openDock();
    m_gallery->press(Qt::Key_Up);
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(held->text(), u"Two **things**: <a> & b."_s);
    QVERIFY(held->html().contains(u"<p>Two <strong>things</strong>: &lt;a&gt; &amp; b.</p>"_s));
    // What the person typed is no markdown.
    m_gallery->press(Qt::Key_Up);
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"What is *open*?"_s);
    QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasHtml());
}

void MessagesTest::conversationIsSaved_data() {
    QTest::addColumn<bool>("writable");
    QTest::newRow("written") << true;
    QTest::newRow("no such folder") << false;
}

void MessagesTest::conversationIsSaved() {
    QFETCH(bool, writable);
    openDock();
    const QTemporaryDir folder;
    const QString place = folder.filePath(writable ? u"."_s : u"gone"_s);
    FileSaver *saver =
        m_gallery->window().findChild<ConversationExport *>(u"conversationExport"_s)->saver();
    saver->setProperty("dialog", QUrl::fromLocalFile(QStringLiteral(KIV_PAGES "/ChosenFile.qml")));
    saver->setProperty("folder", QUrl::fromLocalFile(QDir::cleanPath(place)));
    m_gallery->click(u"moreButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"findRow"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    if (!writable) {
        QTRY_VERIFY(stateOf(u"chatNote"_s).startsWith(u"KIV.md could not be saved: "_s));
        return;
    }
    const QString file = folder.filePath(u"KIV.md"_s);
    QTRY_VERIFY(QFile::exists(file));
    QFile saved(file);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(saved.readAll());
    QVERIFY(text.startsWith(u"# KIV\n\n**You** · "_s));
    QVERIFY(text.contains(u"Two **things**: <a> & b."_s));
    QTRY_VERIFY(m_gallery->find(u"toast:0"_s));
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(), u"Saved KIV.md"_s);
    m_gallery->click(u"moreButton"_s);
    m_gallery->click(u"copyConversationRow"_s);
    QTRY_COMPARE(m_gallery->item(u"toast:1"_s)->property("words").toString(),
                 u"Conversation copied"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::MessagesTest)
#include "MessagesTest.moc"
