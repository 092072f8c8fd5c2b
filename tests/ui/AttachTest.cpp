#include "ui/GalleryTest.h"
#include "ui/chat/DialogChooser.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

const QString upload = u"POST "_s + test::kivChat + u"/files"_s;
const QString post = u"POST "_s + test::kivChat;
const QString limitNote = u"Too many files — the limit is 5"_s;

class CountingChooser : public store::FileChooser {
public:
    void choose(const QString &, const QStringList &, Chosen) override { ++opened; }
    int opened = 0;
};

QByteArray uploaded(const QByteArrayList &names) {
    QByteArrayList files;
    for (const QByteArray &name : names)
        files.append(R"({"ok":true,"size":42000,"name":")" + name +
                     R"(","url":"https://files.example/)" + name + "\"}");
    return R"({"files":[)" + files.join(',') + "]}";
}

} // namespace

/// Files in the ask bar by real drops, keys and presses.
class AttachTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void droppedFileIsSent();
    void dragOverTheBar_data();
    void dragOverTheBar();
    void pastedPicture();
    void pastedTextStaysText();
    void sixthIsRefused();
    void removedByKeyboard();
    void failedIsTriedAgain();
    void dialogOpens();

private:
    void prepare() override;
    QUrl file(const QString &name) const;
    void drag(const QMimeData &data, const QString &item);
    void drop(const QList<QUrl> &files);
    void attach(const QByteArrayList &names);
    store::AttachmentModel &files() { return *m_workspace->store->attachments()->chatFiles(); }
    QString note() { return m_gallery->item(u"chatNote"_s)->property("text").toString(); }

    CountingChooser m_chooser;
};

void AttachTest::prepare() {
    m_chooser.opened = 0;
    m_workspace->store->attachments()->setChooser(&m_chooser);
    open();
}

QUrl AttachTest::file(const QString &name) const {
    QFile made(m_workspace->folder.filePath(name));
    if (!made.open(QIODevice::WriteOnly) || made.write("content") != 7)
        qFatal("A file cannot be made");
    return QUrl::fromLocalFile(made.fileName());
}

/// Moves what is dragged over the middle of an item.
void AttachTest::drag(const QMimeData &data, const QString &item) {
    const QQuickItem *target = m_gallery->item(item);
    const QPoint place =
        target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QGuiApplication::sendEvent(&m_gallery->window(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QGuiApplication::sendEvent(&m_gallery->window(), &move);
}

void AttachTest::drop(const QList<QUrl> &urls) {
    QMimeData data;
    data.setUrls(urls);
    drag(data, u"sendButton"_s);
    const QQuickItem *target = m_gallery->item(u"dropTarget"_s);
    const QPointF place = target->mapToScene(QPointF(target->width() - 30, target->height() / 2));
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QGuiApplication::sendEvent(&m_gallery->window(), &event);
    QVERIFY(event.isAccepted());
}

void AttachTest::attach(const QByteArrayList &names) {
    m_workspace->backend.answer(upload, uploaded(names));
    const qsizetype before = files().attached();
    QList<QUrl> urls;
    for (const QByteArray &name : names)
        urls.append(file(QString::fromUtf8(name)));
    m_workspace->store->attachments()->uploadChatFiles(urls);
    QTRY_COMPARE(files().attached(), before + names.size());
}

void AttachTest::droppedFileIsSent() {
    m_workspace->backend.answer(upload, uploaded({"plan.pdf"}));
    m_workspace->backend.hold(upload);
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"Read this"_s);
    drop({file(u"plan.pdf"_s)});
    QVERIFY(!m_gallery->find(u"dropTarget"_s));
    QVERIFY(m_gallery->find(u"attachment:plan.pdf"_s));
    QTRY_VERIFY(m_gallery->find(u"uploadBar"_s));
    QCOMPARE(note(), u"Uploading…"_s);
    // A question that waits for its file is not sent without it.
    QVERIFY(!m_gallery->item(u"sendButton"_s)->isEnabled());
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(m_workspace->msgs().count(), 1);
    m_workspace->backend.release(upload);
    QTRY_VERIFY(m_gallery->item(u"sendButton"_s)->isEnabled());
    QVERIFY(!m_gallery->find(u"uploadBar"_s));

    m_workspace->backend.answer(post, "{}");
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->backend.count(post), 1);
    const QJsonObject body = m_workspace->backend.requests(post).first().body;
    QCOMPARE(body[u"attachments"_s][0][u"name"_s].toString(), u"plan.pdf"_s);
    QVERIFY(!m_gallery->find(u"attachment:plan.pdf"_s));
    QTRY_VERIFY(m_gallery->find(u"file:plan.pdf"_s));
}

void AttachTest::dragOverTheBar_data() {
    QTest::addColumn<bool>("hasFiles");
    QTest::newRow("files") << true;
    QTest::newRow("words") << false;
}

void AttachTest::dragOverTheBar() {
    QFETCH(bool, hasFiles);
    QMimeData data;
    if (hasFiles)
        data.setUrls({file(u"plan.pdf"_s)});
    else
        data.setText(u"some words"_s);
    drag(data, u"askField"_s);
    QCOMPARE(m_gallery->find(u"dropTarget"_s) != nullptr, hasFiles);
    QDragLeaveEvent leave;
    QGuiApplication::sendEvent(&m_gallery->window(), &leave);
    QVERIFY(!m_gallery->find(u"dropTarget"_s));
    QCOMPARE(files().count(), 0);
}

void AttachTest::pastedPicture() {
    m_workspace->backend.answer(upload, uploaded({"pasted.png"}));
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(picture);
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(files().attached(), 1);
    const QByteArray sent = m_workspace->backend.requests(upload).first().raw;
    QVERIFY(sent.contains("Content-Type: image/png"));
    const QByteArray png = sent.sliced(sent.indexOf("\r\n\r\n") + 4);
    QCOMPARE(QImage::fromData(png, "PNG").convertToFormat(picture.format()), picture);
    // Nothing typed: the picture alone is a message.
    m_gallery->click(u"sendButton"_s);
    QTRY_COMPARE(m_workspace->backend.count(post), 1);
}

void AttachTest::pastedTextStaysText() {
    auto *cells = new QMimeData; // as a spreadsheet copies them
    cells->setText(u"a\tb"_s);
    cells->setHtml(u"<b>a</b> <img src='file:///etc/passwd'>"_s);
    cells->setImageData(QImage(4, 4, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(cells);
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_workspace->store->chat()->draft(), u"a\tb"_s);
    QCOMPARE(files().count(), 0);

    auto *copied = new QMimeData; // as a file manager does
    copied->setUrls({file(u"plan.pdf"_s)});
    copied->setText(u"/somewhere/plan.pdf"_s);
    QGuiApplication::clipboard()->setMimeData(copied);
    m_gallery->press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_workspace->store->chat()->draft(), u"a\tb"_s);
    QCOMPARE(files().count(), 1);
}

void AttachTest::sixthIsRefused() {
    m_gallery->click(u"attachButton"_s);
    QCOMPARE(m_chooser.opened, 1);
    m_workspace->store->attachments()->setChooser(&m_chooser);
    attach({"a.txt", "b.txt", "c.txt", "d.txt"});
    m_workspace->backend.answer(upload, uploaded({"e.txt"}));
    drop({file(u"e.txt"_s), file(u"f.txt"_s)});
    QTRY_COMPARE(files().attached(), 5);
    QCOMPARE(note(), limitNote);
    QVERIFY(!m_gallery->find(u"attachment:f.txt"_s));
    m_gallery->click(u"attachButton"_s);
    QCOMPARE(m_chooser.opened, 1);
    QCOMPARE(note(), limitNote);
}

void AttachTest::removedByKeyboard() {
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"x"_s);
    attach({"a.txt", "b.txt"});
    m_gallery->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_gallery->hasFocus(u"removeFile:b.txt"_s));
    m_gallery->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_gallery->hasFocus(u"removeFile:a.txt"_s));
    m_gallery->press(Qt::Key_Space);
    QVERIFY(!m_gallery->find(u"attachment:a.txt"_s));
    QVERIFY(m_gallery->find(u"attachment:b.txt"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    // Forward leads to the buttons, and a tab is no text.
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"attachButton"_s));
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"micButton"_s));
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"sendButton"_s));
    QCOMPARE(m_workspace->store->chat()->draft(), u"x"_s);
}

void AttachTest::failedIsTriedAgain() {
    m_workspace->backend.answer(upload, R"({"error":"Storage is down"})", 503);
    drop({file(u"plan.pdf"_s)});
    QTRY_COMPARE(note(), u"Storage is down. The upload failed."_s);
    m_workspace->backend.answer(upload, uploaded({"plan.pdf"}));
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_Backtab, Qt::ShiftModifier);
    m_gallery->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_gallery->hasFocus(u"attachment:plan.pdf"_s));
    m_gallery->press(Qt::Key_Space);
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    QTRY_COMPARE(files().attached(), 1);
    QCOMPARE(m_workspace->store->chat()->chatNote(), QString());
    m_gallery->click(u"removeFile:plan.pdf"_s);
    QCOMPARE(files().count(), 0);
}

void AttachTest::dialogOpens() {
    DialogChooser chooser;
    int answers = 0;
    chooser.choose(u"Too early"_s, {}, [&](const QList<QUrl> &) { ++answers; });
    QCOMPARE(answers, 1);
    chooser.setWindow(&m_gallery->window());
    for (const char *const outcome : {"reject", "accept"}) {
        chooser.choose(u"Attach files for the agent"_s, {u"txt"_s},
                       [&](const QList<QUrl> &) { ++answers; });
        auto *dialog = m_gallery->window().findChild<QObject *>(u"attachDialog"_s);
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->property("visible").toBool());
        QCOMPARE(dialog->property("title").toString(), u"Attach files for the agent"_s);
        QCOMPARE(dialog->property("nameFilters").toStringList(),
                 QStringList{u"Files (*.txt *.TXT)"_s});
        QMetaObject::invokeMethod(dialog, outcome);
        QTRY_VERIFY(!dialog->property("visible").toBool());
    }
    QCOMPARE(answers, 3);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::AttachTest)
#include "AttachTest.moc"
