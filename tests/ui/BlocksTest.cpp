#include "driver/FindItem.h"
#include "ui/GalleryTest.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// The selectable text that holds `words`.
QQuickItem *textWith(QQuickItem *below, const QString &words) {
    return driver::findItem(below, [&](const QQuickItem &item) {
        return item.inherits("QQuickTextEdit") && item.property("text").toString().contains(words);
    });
}

const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s, u"file"_s, u"ftp"_s};

} // namespace

/// What a person does with the blocks of an answer, by real events.
class BlocksTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void selectsAndCopies();
    void copiesCode();
    void copyingByKeys();
    void copiesTable();
    void opensLinks_data();
    void opensLinks();
    void nothingPassesForAnything();

public Q_SLOTS:
    void open(const QUrl &link) { m_opened.append(link.toString()); }

private:
    void prepare() override;
    void answer(const QString &text);
    /// The middle of words in the dock, in the window.
    QPoint placeOf(const QString &words);
    QString copied() const { return QGuiApplication::clipboard()->text(); }

    QStringList m_opened;
};

void BlocksTest::initTestCase() {
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

void BlocksTest::cleanupTestCase() {
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void BlocksTest::prepare() {
    m_gallery->setReducedMotion(true);
    GalleryTest::open();
    m_workspace->store->layout()->toggleDock();
    QGuiApplication::clipboard()->clear();
    m_opened.clear();
}

void BlocksTest::answer(const QString &text) {
    m_workspace->row(7, text);
    QTRY_COMPARE(m_workspace->msgs().count(), 2);
    m_gallery->save(u"blocks"_s);
}

QPoint BlocksTest::placeOf(const QString &words) {
    QQuickItem *text = nullptr;
    if (!QTest::qWaitFor([&] { return (text = textWith(m_gallery->item(u"dockFeed"_s), words)); }))
        qFatal("Nothing reads %s", qPrintable(words));
    const auto start = static_cast<int>(text->property("text").toString().indexOf(words));
    QRectF first;
    QRectF behind;
    QMetaObject::invokeMethod(text, "positionToRectangle", Q_RETURN_ARG(QRectF, first),
                              Q_ARG(int, start));
    QMetaObject::invokeMethod(text, "positionToRectangle", Q_RETURN_ARG(QRectF, behind),
                              Q_ARG(int, start + static_cast<int>(words.size())));
    return text->mapToScene((first.center() + behind.center()) / 2).toPoint();
}

void BlocksTest::selectsAndCopies() {
    answer(u"First **bold** words.\n\nOther words."_s);
    QTest::mousePress(&m_gallery->window(), Qt::LeftButton, {},
                      placeOf(u"First"_s) - QPoint(14, 0));
    QTest::mouseMove(&m_gallery->window(), placeOf(u"words."_s));
    // Over the end of the block: the selection ends with it.
    QTest::mouseMove(&m_gallery->window(), placeOf(u"Other"_s) + QPoint(200, 30));
    QTest::mouseRelease(&m_gallery->window(), Qt::LeftButton, {},
                        placeOf(u"Other"_s) + QPoint(200, 30));
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(copied(), u"First bold words."_s);
    // While the answer grows below, what is selected stays so.
    m_workspace->row(7, u"First **bold** words.\n\nOther words.\n\n- and more"_s);
    QTRY_VERIFY(textWith(m_gallery->item(u"dockFeed"_s), u"and more"_s));
    QGuiApplication::clipboard()->clear();
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(copied(), u"First bold words."_s);
}

void BlocksTest::copiesCode() {
    answer(u"Run:\n\n```sh\nmake  all\n\tcheck\n```\n\nThen stop."_s);
    m_gallery->click(u"copyCode"_s);
    QCOMPARE(copied(), u"make  all\n\tcheck"_s);
    QCOMPARE(m_gallery->item(u"copyCode"_s)->property("text"), u"Copied"_s);
}

/// The tab key leads to no button out of sight.
void BlocksTest::copyingByKeys() {
    answer((u"```sh\n"_s + u"make\n"_s.repeated(12) + u"```\n\nand\n\n"_s).repeated(8));
    QQuickItem *feed = m_gallery->item(u"dockFeed"_s);
    const double atEnd = feed->property("contentY").toDouble();
    feed->forceActiveFocus(Qt::TabFocusReason);
    const QRectF sight(0, 0, feed->width(), feed->height());
    for (int stop = 0; stop < 3; ++stop) {
        m_gallery->press(Qt::Key_Tab);
        const QQuickItem *button = m_gallery->window().activeFocusItem();
        QCOMPARE(button->objectName(), u"copyCode"_s);
        QVERIFY(sight.contains(button->mapRectToItem(feed, button->boundingRect())));
    }
    // Some have been out of it.
    QVERIFY(feed->property("contentY").toDouble() != atEnd);
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(copied(), u"make\n"_s.repeated(11) + u"make"_s);
}

void BlocksTest::copiesTable() {
    // A second table, for the first may be drawn on the canvas alone.
    answer(u"Two:\n\n| a | b |\n|---|---|\n| 1 | 2 |\n\nand\n\n"
           "| Name | Sum |\n|---|---|\n| North, **old** | €1,240 |\n| South | €385 |"_s);
    QTest::mouseMove(&m_gallery->window(), placeOf(u"North"_s));
    m_gallery->click(u"copyTable"_s);
    QCOMPARE(copied(), u"Name\tSum\nNorth, **old**\t€1,240\nSouth\t€385"_s);

    // So do the cells that are selected.
    QTest::mouseDClick(&m_gallery->window(), Qt::LeftButton, {}, placeOf(u"South"_s));
    QTest::mousePress(&m_gallery->window(), Qt::LeftButton, {}, placeOf(u"North"_s));
    QTest::mouseMove(&m_gallery->window(), placeOf(u"South"_s) + QPoint(2, 0));
    QTest::mouseMove(&m_gallery->window(), placeOf(u"South"_s));
    QTest::mouseRelease(&m_gallery->window(), Qt::LeftButton, {}, placeOf(u"South"_s));
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(copied(), u"North, old\t€1,240\nSouth\t€385"_s);
}

void BlocksTest::opensLinks_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("opened");
    QTest::newRow("http") << u"See [there](http://a.example/b) now"_s
                          << QStringList{u"http://a.example/b"_s};
    QTest::newRow("https") << u"See [there](https://a.example/) now"_s
                           << QStringList{u"https://a.example/"_s};
    QTest::newRow("mail") << u"See [there](mailto:a@b.example) now"_s
                          << QStringList{u"mailto:a@b.example"_s};
    QTest::newRow("file") << u"See [there](file:///etc/passwd) now"_s << QStringList();
    QTest::newRow("script") << u"See [there](javascript:alert(1)) now"_s << QStringList();
    QTest::newRow("a name before the host") << u"See [there](https://bank.example@a.example/) now"_s
                                            << QStringList{u"https://a.example/"_s};
    QTest::newRow("a letter with a file")
        << u"See [there](mailto:a@b.example?attach=/etc/passwd) now"_s
        << QStringList{u"mailto:a@b.example"_s};
    QTest::newRow("a chat") << u"See [there](kiv://chat/kiv) now"_s << QStringList();
    QTest::newRow("ftp") << u"See [there](ftp://a.example/) now"_s << QStringList();
    QTest::newRow("a path of the workspace")
        << u"See [there](/etc/passwd) now"_s << QStringList{u"WORKSPACE/etc/passwd"_s};
    QTest::newRow("a path of another host") << u"See [there](//a.example/b) now"_s << QStringList();
}

void BlocksTest::opensLinks() {
    QFETCH(QString, text);
    answer(text);
    QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {}, placeOf(u"there"_s));
    const QString workspace = m_workspace->backend.url().toString();
    QTEST(QStringList(m_opened).replaceInStrings(workspace, u"WORKSPACE"_s), "opened");
}

/// What is shown is in the order in which it is written, and marks of other languages are words.
void BlocksTest::nothingPassesForAnything() {
    answer(u"at evil.example/\u202emoc.knab <img src='file:///etc/passwd'> <b>there</b>"_s);
    const QQuickItem *words = textWith(m_gallery->window().contentItem(), u"moc.knab"_s);
    QVERIFY(words);
    QCOMPARE(words->property("text").toString(),
             u"at evil.example/\ufffdmoc.knab <img src='file:///etc/passwd'> <b>there</b>"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::BlocksTest)
#include "BlocksTest.moc"
