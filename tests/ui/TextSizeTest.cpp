#include "ui/EveryPlace.h"
#include "ui/SeenText.h"
#include "ui/Workspace.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// The size of text: its steps by key and by mouse, what is kept of it, and what the window makes
/// of it.
class TextSizeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s)); }
    void steps();
    void kept_data();
    void kept();
    void desktopCounts();
    void rowsGrow();
    void contrast();
    void everyPlace_data();
    void everyPlace();
};

void TextSizeTest::steps() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    store::AppearanceRoom *room = workspace.store->appearance();
    gallery.press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(room->textSize(), 110);
    for (int i = 0; i < 8; ++i)
        gallery.press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(room->textSize(), 150);
    for (int i = 0; i < 12; ++i)
        gallery.press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(room->textSize(), 80);

    gallery.click(u"profileButton"_s);
    QQuickItem *stepper = gallery.item(u"textSizeChoice"_s);
    QTest::qWait(200);
    gallery.click(u"more"_s);
    QCOMPARE(room->textSize(), 90);
    gallery.click(u"less"_s);
    gallery.click(u"less"_s);
    QCOMPARE(room->textSize(), 80);
    stepper->forceActiveFocus(Qt::TabFocusReason);
    gallery.press(Qt::Key_Right);
    QCOMPARE(room->textSize(), 90);
    gallery.press(Qt::Key_End);
    QCOMPARE(room->textSize(), 150);
}

void TextSizeTest::kept_data() {
    QTest::addColumn<QVariant>("written");
    QTest::addColumn<int>("size");
    QTest::newRow("a step") << QVariant(130) << 130;
    QTest::newRow("between steps") << QVariant(94) << 90;
    QTest::newRow("too small") << QVariant(5) << 80;
    QTest::newRow("too large") << QVariant(4000) << 150;
    QTest::newRow("no number") << QVariant(u"large"_s) << 100;
    QTest::newRow("nothing") << QVariant() << 100;
}

void TextSizeTest::kept() {
    QFETCH(QVariant, written);
    Workspace workspace;
    if (written.isValid())
        workspace.settings->setValue(u"zandor.textSize"_s, written);
    workspace.restart();
    QTEST(workspace.store->appearance()->textSize(), "size");
    workspace.store->appearance()->chooseTextSize(120);
    workspace.restart();
    QCOMPARE(workspace.store->appearance()->textSize(), 120);
}

/// The person's choice comes on top of the desktop's, within the same limits.
void TextSizeTest::desktopCounts() {
    Workspace workspace;
    store::AppearanceRoom *room = workspace.store->appearance();
    room->setSystemTextScale(1.25);
    QCOMPARE(room->textScale(), 1.25);
    room->chooseTextSize(110);
    QCOMPARE(room->textScale(), 1.375);
    room->chooseTextSize(150);
    QCOMPARE(room->textScale(), 1.5);
}

void TextSizeTest::rowsGrow() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    store::AppearanceRoom *room = workspace.store->appearance();
    const auto heightOf = [&](const char *item) {
        return gallery.item(QLatin1StringView(item))->height();
    };
    const double scope = heightOf("scopeButton");
    const double row = heightOf("railRow:ferry");
    room->chooseTextSize(150);
    QTRY_COMPARE(heightOf("scopeButton"), scope * 1.5);
    QTRY_COMPARE(heightOf("railRow:ferry"), row * 1.5);
    // Heights are the least that there is.
    room->chooseTextSize(80);
    QTRY_COMPARE(heightOf("scopeButton"), scope);
    QTRY_COMPARE(heightOf("railRow:ferry"), row);
}

void TextSizeTest::contrast() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    store::AppearanceRoom *room = workspace.store->appearance();
    const QImage usual = gallery.save(u"contrast-usual"_s);
    room->setHighContrast(true);
    QVERIFY(gallery.save(u"contrast-high"_s) != usual);
    room->setHighContrast(false);
    QTRY_COMPARE(gallery.grab(u"contrast-again"_s), usual);
}

void TextSizeTest::everyPlace_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<bool>("dark");
    QTest::newRow("80") << 80 << QSize(1440, 900) << false;
    QTest::newRow("150-dark") << 150 << QSize(1440, 900) << true;
    QTest::newRow("150-least") << 150 << QSize(1024, 680) << false;
}

/// Leaves a picture of every place. Controls are as high as their words.
void TextSizeTest::everyPlace() {
    QFETCH(int, size);
    QFETCH(QSize, window);
    QFETCH(bool, dark);
    const QString name = QLatin1StringView(QTest::currentDataTag());
    Gallery gallery;
    QStringList squeezed;
    visitEveryPlace(gallery, {.size = window, .textSize = size, .dark = dark},
                    [&](const QString &place) {
                        gallery.save(u"text-%1-%2"_s.arg(name, place));
                        const QList<SeenText> seen = textsIn(gallery.window());
                        for (const SeenText &text : seen) {
                            if (text.squeezed)
                                squeezed.append(place + u": "_s + text.words);
                        }
                    });
    QVERIFY2(squeezed.isEmpty(), qPrintable(u'\n' + squeezed.join(u'\n')));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::TextSizeTest)
#include "TextSizeTest.moc"
