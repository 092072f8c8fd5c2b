#include "ui/GalleryTest.h"
#include "ui/markdown/BlockText.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// The current words as they show in the window; null when they do not.
QRectF currentMark(const QQuickItem &item) {
    if (!item.isVisible())
        return {};
    if (const auto *words = qobject_cast<const BlockText *>(&item); words)
        return words->currentMark().isNull() ? QRectF()
                                             : words->mapRectToScene(words->currentMark());
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children) {
        if (const QRectF found = currentMark(*child); !found.isNull())
            return found;
    }
    return {};
}

} // namespace

/// Looking for words in the dock.
class FindTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void byKeys();
    void everyBlockShowsItsWords_data();
    void everyBlockShowsItsWords();

private:
    void prepare() override;
    QString count() const { return m_gallery->item(u"findCount"_s)->property("text").toString(); }
    /// Whether the current words are all in the feed's sight.
    bool isMarkSeen() const;
};

void FindTest::prepare() {
    QVERIFY(m_workspace->signIn());
}

bool FindTest::isMarkSeen() const {
    const QQuickItem *feed = m_gallery->item(u"dockFeed"_s);
    const QRectF mark = currentMark(*feed);
    return !mark.isNull() && feed->mapRectToScene(feed->boundingRect()).contains(mark);
}

void FindTest::byKeys() {
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_workspace->row(1, u"The first word about sails"_s);
    for (int i = 2; i < 60; ++i)
        m_workspace->row(i, u"A line that is long enough to be broken once or twice. "_s);
    m_workspace->row(60, u"The last word about sails and SAILS"_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 61);
    m_gallery->click(u"askField"_s);
    m_gallery->press(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->hasFocus(u"findField"_s));
    m_gallery->type(u"sails"_s);
    QTRY_COMPARE(count(), u"2 of 3"_s);
    QTRY_VERIFY(isMarkSeen());
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(count(), u"3 of 3"_s);
    m_gallery->press(Qt::Key_F3);
    QCOMPARE(count(), u"1 of 3"_s);
    QTRY_VERIFY(isMarkSeen());
    m_gallery->press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(count(), u"3 of 3"_s);
    QTRY_VERIFY(isMarkSeen());
    m_gallery->press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(count(), u"2 of 3"_s);

    // A new message is counted and takes nobody along.
    m_workspace->row(61, u"More sails"_s);
    QTRY_COMPARE(count(), u"2 of 4"_s);
    m_gallery->type(u"x"_s);
    QTRY_COMPARE(count(), u"Not found"_s);

    m_gallery->press(Qt::Key_Escape);
    QVERIFY(!m_gallery->find(u"findField"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    QVERIFY(m_workspace->store->layout()->dockOpen());
    // The same words again, ready to be typed over.
    m_gallery->press(Qt::Key_F, Qt::ControlModifier);
    m_gallery->type(u"more"_s);
    QTRY_COMPARE(count(), u"1 of 1"_s);
}

void FindTest::everyBlockShowsItsWords_data() {
    QTest::addColumn<QString>("words");
    QTest::newRow("heading") << u"state on"_s;
    QTest::newRow("paragraph") << u"leaves tax_region empty"_s;
    QTest::newRow("cell") << u"shops"_s;
    QTest::newRow("cell out of sight") << u"grows by 2"_s;
    QTest::newRow("broken cell") << u"open, with the"_s;
    QTest::newRow("task") << u"the billing address"_s;
    QTest::newRow("code") << u"billing_region"_s;
    QTest::newRow("quote") << u"wording"_s;
    QTest::newRow("numbered item") << u"start the export"_s;
    QTest::newRow("bullet") << u"with code in it"_s;
}

/// Each is read by its letters: what is marked is as wide as the words in their place.
void FindTest::everyBlockShowsItsWords() {
    QFETCH(QString, words);
    m_gallery->open(*m_workspace->store, {1024, 680});
    m_workspace->row(1, u"A question"_s, u"user"_s);
    m_workspace->row(2, Workspace::mixedAnswer());
    QTRY_COMPARE(m_workspace->msgs().count(), 3);
    m_gallery->press(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->hasFocus(u"findField"_s));
    m_gallery->type(words);
    QTRY_COMPARE(count(), u"1 of 1"_s);
    m_gallery->save(u"find-block-%1"_s.arg(QLatin1StringView(QTest::currentDataTag())));
    QVERIFY(isMarkSeen());
    const QRectF mark = currentMark(*m_gallery->item(u"dockFeed"_s));
    const double letters = mark.width() / static_cast<double>(words.size());
    QVERIFY2(letters > 3.5 && letters < 10, qPrintable(QString::number(letters)));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::FindTest)
#include "FindTest.moc"
