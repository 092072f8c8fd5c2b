#include "support/Damage.h"
#include "ui/GalleryTest.h"
#include "ui/canvas/CanvasExport.h"
#include "ui/files/FileName.h"

#include <QClipboard>
#include <QDir>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// How far apart two pictures of one size are, from 0 to 255 on average.
double difference(const QImage &one, const QImage &other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    }
    return sum / one.width() / one.height();
}

int pixelsOf(const QImage &picture, const QColor &color) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

/// What leaves the canvas: pictures and tables, in files and on the clipboard.
class ExportTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void picture_data();
    void picture();
    void pictureWithoutFocus();
    void table();
    void copyButton();
    void menuByKeys();
    void tableOnClipboard();
    void failureIsSaid();
    void dialogOpens();
    void iconsWhereRoomIsShort();
    void fileNames_data();
    void fileNames();

private:
    void prepare() override;
    void open(const QSize &size = {1440, 900});
    QString savedFile(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    CanvasExport *m_export = nullptr;
};

void ExportTest::prepare() {
    m_folder = std::make_unique<QTemporaryDir>();
    QGuiApplication::clipboard()->clear();
}

/// The window with a comparison on the canvas. Files go where the dialog would offer.
void ExportTest::open(const QSize &size) {
    GalleryTest::open(size);
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(), u"compare"_s));
    QTRY_VERIFY(m_gallery->find(u"compareRows"_s));
    m_export = m_gallery->window().findChild<CanvasExport *>(u"canvasExport"_s);
    QVERIFY(m_export);
    m_export->saver()->setProperty(
        "dialog", QUrl::fromLocalFile(QStringLiteral(KIV_PAGES "/ChosenFile.qml")));
    m_export->saver()->setProperty("folder", QUrl::fromLocalFile(m_folder->path()));
}

void ExportTest::picture_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

/// Twice the size of the sheet, and all of it in its theme.
void ExportTest::picture() {
    QFETCH(bool, dark);
    m_gallery->setDark(dark);
    open();
    const QImage window = m_gallery->save(u"export-window-%1"_s.arg(dark ? u"dark"_s : u"light"_s));
    m_gallery->press(Qt::Key_E, Qt::ControlModifier);
    const QString file = savedFile(u"Hosting options for Glasshouse.png"_s);
    QTRY_VERIFY(QFile::exists(file));
    const QImage saved(file);
    const QQuickItem *sheet = m_export->sheet();
    const QRect place = sheet->mapRectToScene(sheet->boundingRect()).toRect();
    QCOMPARE(saved.size(), place.size() * 2);
    QCOMPARE(saved.pixelColor(0, 0), QColor(dark ? 0x0e1016 : 0xf3f4f8));
    QCOMPARE(saved.pixelColor(saved.width() / 2, 8), QColor(dark ? 0x181b25 : 0xffffff));
    const QRect inner(24, 24, place.width() - 48, place.height() - 48);
    const QImage shrunk =
        saved.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QCOMPARE_LT(difference(shrunk.copy(inner), window.copy(inner.translated(place.topLeft()))),
                3.0);
    saved.save(QStringLiteral(KIV_PICTURES "/export-%1.png").arg(dark ? u"dark"_s : u"light"_s));
}

/// The ring of the row that has the focus is on the screen, not in the picture.
void ExportTest::pictureWithoutFocus() {
    open();
    m_gallery->item(u"compareRows"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Down);
    const QColor ring(0x6644e6);
    QVERIFY(pixelsOf(m_gallery->save(u"export-focus"_s), ring) > 500);
    m_gallery->press(Qt::Key_E, Qt::ControlModifier);
    const QString file = savedFile(u"Hosting options for Glasshouse.png"_s);
    QTRY_VERIFY(QFile::exists(file));
    QCOMPARE(pixelsOf(QImage(file), ring), 0);
    QTRY_VERIFY(pixelsOf(m_gallery->grab(u"export-focus"_s), ring) > 500);
}

void ExportTest::table() {
    open();
    m_gallery->click(u"exportButton"_s);
    m_gallery->click(u"saveTableRow"_s);
    const QString file = savedFile(u"Hosting options for Glasshouse.csv"_s);
    QTRY_VERIFY(QFile::exists(file));
    const QQuickItem *news = m_gallery->item(u"toast:0"_s);
    QCOMPARE(news->property("words").toString(), u"Saved Hosting options for Glasshouse.csv"_s);
    QCOMPARE(news->property("target").toUrl(), QUrl::fromLocalFile(m_folder->path()));
    m_gallery->save(u"export-saved"_s);
    const QList<QByteArray> lines = test::contentOf(file).split('\n');
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines.at(0), "Option,Price per month,Uptime,\"Latency, p95\",Backups\r");
    QCOMPARE(lines.at(4), "Edge network,\"€2,760\",99.97%,11 ms,Extra €180\r");
    QCOMPARE(lines.at(6), "Резервный кластер,\"€1,560\",99.90%,41 ms,Included\r");
}

/// A program that takes pictures gets one, one that takes texts the table.
void ExportTest::copyButton() {
    open();
    m_gallery->click(u"copyButton"_s);
    const QQuickItem *button = m_gallery->item(u"copyButton"_s);
    QTRY_COMPARE(button->property("iconName").toString(), u"check"_s);
    const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(qvariant_cast<QImage>(copied->imageData()).size(),
             (m_export->sheet()->size() * 2).toSize());
    QVERIFY(
        copied->text().startsWith(u"Option\tPrice per month\tUptime\tLatency, p95\tBackups\n"_s));
    QTRY_COMPARE(button->property("iconName").toString(), u"copy"_s);
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(),
             u"Copied as a picture and a table"_s);
}

void ExportTest::menuByKeys() {
    open();
    m_gallery->item(u"exportButton"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->press(Qt::Key_Space);
    QTRY_VERIFY(m_gallery->hasFocus(u"savePictureRow"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"savePictureRow"_s));
    // A second press closes what the first has opened.
    m_gallery->click(u"exportButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"savePictureRow"_s));
    m_gallery->click(u"exportButton"_s);
    QTRY_VERIFY(!m_gallery->find(u"savePictureRow"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"savePictureRow"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"copyPictureRow"_s));
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(!QGuiApplication::clipboard()->image().isNull());
    QTRY_VERIFY(!m_gallery->find(u"copyPictureRow"_s));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

/// The figures of the answer on the canvas, not of one before.
void ExportTest::tableOnClipboard() {
    open();
    QVERIFY(m_workspace->ask(u"How was the week?"_s, Workspace::reportAnswer(), u"report"_s));
    m_gallery->click(u"exportButton"_s);
    m_gallery->click(u"copyTableRow"_s);
    const QString text = QGuiApplication::clipboard()->text();
    QVERIFY(text.startsWith(
        u"Name\tValue\tChange\nRecognised revenue\t€418,200\t+6.2% on last week\n"_s));
    QVERIFY(text.contains(u"\nOpen tasks\t137\t−12\n"_s));
}

void ExportTest::failureIsSaid() {
    open();
    m_export->saver()->setProperty("folder", QUrl::fromLocalFile(savedFile(u"gone"_s)));
    m_gallery->press(Qt::Key_E, Qt::ControlModifier);
    QTRY_VERIFY(!m_export->failure().isEmpty());
    QVERIFY2(m_export->failure().startsWith(
                 u"Hosting options for Glasshouse.png could not be saved: "_s),
             qPrintable(m_export->failure()));
    QCOMPARE(m_gallery->item(u"captionLine"_s)->property("text").toString(), m_export->failure());
    m_gallery->save(u"export-failure"_s);
    // The next one that goes well takes the line away.
    m_gallery->click(u"copyButton"_s);
    QTRY_VERIFY(
        m_gallery->item(u"captionLine"_s)->property("text").toString().startsWith(u"Answer to"_s));
}

/// The platform's own dialog, until the person changes their mind.
void ExportTest::dialogOpens() {
    open();
    m_export->saver()->setProperty("dialog", QUrl(u"qrc:/qt/qml/Kiv/Files/SaveDialog.qml"_s));
    m_export->saveTable();
    auto *dialog = m_export->findChild<QObject *>(u"saveDialog"_s);
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->property("visible").toBool());
    QCOMPARE(dialog->property("title").toString(), u"Save the table"_s);
    QCOMPARE(dialog->property("selectedFile").toUrl().fileName(),
             u"Hosting options for Glasshouse.csv"_s);
    constexpr int asksBeforeReplacing = 0; // of its options none is set
    QCOMPARE(dialog->property("options").toInt(), asksBeforeReplacing);
    QMetaObject::invokeMethod(dialog, "reject");
    QTRY_VERIFY(!dialog->property("visible").toBool());
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void ExportTest::iconsWhereRoomIsShort() {
    open({1440, 900});
    QVERIFY(m_gallery->item(u"exportButton"_s)->width() > 80);
    m_gallery->window().resize(1024, 680);
    QTRY_VERIFY(m_gallery->item(u"exportButton"_s)->width() < 48);
    QVERIFY(m_gallery->item(u"refineButton"_s)->width() < 48);
}

void ExportTest::fileNames_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"Report, week 47"_s << u"Report, week 47"_s;
    QTest::newRow("Cyrillic") << u"Отчёт за неделю"_s << u"Отчёт за неделю"_s;
    QTest::newRow("folders") << u"../../etc/passwd"_s << u"etc passwd"_s;
    QTest::newRow("refused signs") << u"A/B: \"what\" <is> |it|? *"_s << u"A B what is it"_s;
    QTest::newRow("line and direction") << u"one\ntwo\u202egnp\u0000"_s << u"one two gnp"_s;
    QTest::newRow("unseen letters") << u"a\U000E0041\U000E0042b"_s << u"a b"_s;
    QTest::newRow("points") << u"..hidden.."_s << u"hidden"_s;
    QTest::newRow("an option") << u"-rf --now"_s << u"rf --now"_s;
    QTest::newRow("nothing left") << u"///"_s << QString();
    QTest::newRow("long") << u"ж"_s.repeated(300) << u"ж"_s.repeated(80);
    QTest::newRow("no half sign at the end")
        << u"a"_s + u"🚀"_s.repeated(60) << u"a"_s + u"🚀"_s.repeated(39);
}

void ExportTest::fileNames() {
    QFETCH(QString, title);
    QTEST(fileNameOf(title), "name");
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::ExportTest)
#include "ExportTest.moc"
