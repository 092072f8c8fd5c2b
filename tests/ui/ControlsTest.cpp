#include "ui/Gallery.h"
#include "ui/SeenText.h"
#include "ui/icons/IconProvider.h"
#include "ui/tokens/Tint.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

class ControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void pressedByKeys();
    void iconTakesColour();
    void tabularDigits_data();
    void tabularDigits();
    void wordsOnTint_data();
    void wordsOnTint();

private:
    Gallery m_gallery;
};

void ControlsTest::pressedByKeys() {
    const QQuickItem *page = m_gallery.show(u"ControlsPage.qml"_s, {1120, 760});
    QSet<QString> kinds;
    const QList<QQuickItem *> items = page->findChildren<QQuickItem *>();
    for (QQuickItem *item : items) {
        if (!item->inherits("QQuickButton") || !item->isEnabled())
            continue;
        kinds.insert(QLatin1StringView(item->metaObject()->className()));
        QSignalSpy clicked(item, SIGNAL(clicked()));
        item->forceActiveFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            m_gallery.press(key);
        QVERIFY2(clicked.size() == 3, item->metaObject()->className());
    }
    QCOMPARE(kinds.size(), 5);
}

void ControlsTest::iconTakesColour() {
    IconProvider icons;
    const QImage wide = icons.requestImage(u"stop/20/#c9282f"_s, nullptr, {40, 40});
    QCOMPARE(wide.size(), QSize(40, 40));
    QCOMPARE(wide.pixelColor(20, 20), QColor(0xc9282f));
    QCOMPARE(wide.pixelColor(2, 2).alpha(), 0);
    QVERIFY(icons.requestImage(u"nothing/20/#000000"_s, nullptr, {}).isNull());
}

void ControlsTest::tabularDigits_data() {
    QTest::addColumn<QFont::Weight>("weight");
    QTest::newRow("normal") << QFont::Normal;
    QTest::newRow("medium") << QFont::Medium;
    QTest::newRow("demi-bold") << QFont::DemiBold;
}

void ControlsTest::tabularDigits() {
    QFETCH(QFont::Weight, weight);
    m_gallery.show(u"ControlsPage.qml"_s, {640, 480});
    const auto widthOf = [&](const QString &family, const QString &text) {
        QFont font(family);
        font.setPixelSize(14);
        font.setWeight(weight);
        return QFontMetricsF(font).horizontalAdvance(text);
    };
    QFont face(u"KIV Tabular"_s);
    face.setWeight(weight);
    QCOMPARE(QFontInfo(face).family(), u"KIV Tabular"_s);
    QCOMPARE(QFontInfo(face).weight(), static_cast<int>(weight));
    for (const QString &figure : {u"1111"_s, u"7777"_s, u"4174"_s, u"1717"_s})
        QCOMPARE(widthOf(u"KIV Tabular"_s, figure), widthOf(u"KIV Tabular"_s, u"0000"_s));
    QCOMPARE(widthOf(u"KIV Tabular"_s, u"1,711.71"_s), widthOf(u"KIV Tabular"_s, u"8.888,88"_s));
    // Words look as they do beside it, and the other face keeps its narrow one.
    for (const QString &words : {u"Price per month"_s, u"млн"_s, u"→ λ 漢"_s})
        QCOMPARE(widthOf(u"KIV Tabular"_s, words), widthOf(u"Inter"_s, words));
    QVERIFY(widthOf(u"Inter"_s, u"1111"_s) < widthOf(u"Inter"_s, u"0000"_s));
}

void ControlsTest::wordsOnTint_data() {
    QTest::addColumn<QColor>("base");
    for (const char *hex : {"#1f6ff2", "#0f9f7a", "#7c5cff", "#f59e0b", "#e0484a", "#0ea5e9",
                            "#ffffff", "#000000", "#ffff00"})
        QTest::newRow(hex) << QColor(QLatin1StringView(hex));
}

void ControlsTest::wordsOnTint() {
    QFETCH(QColor, base);
    for (const bool dark : {false, true})
        QVERIFY(contrast(Tint::ground(base, dark), Tint::text(base, dark)) >= 4.5);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::ControlsTest)
#include "ControlsTest.moc"
