#include "driver/FindItem.h"
#include "ui/GalleryTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

#include <utility>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

double number(QQuickItem *item, const char *property) {
    return item->property(property).toDouble();
}

/// How far a list view is from its end.
double distanceToEnd(QQuickItem *list) {
    return number(list, "originY") + number(list, "contentHeight") + number(list, "bottomMargin") -
           list->height() - number(list, "contentY");
}

/// The selectable text that reads `text`.
QQuickItem *findText(QQuickItem *below, const QString &text) {
    return driver::findItem(below, [&](const QQuickItem &item) {
        return item.inherits("QQuickTextEdit") && item.property("text") == text;
    });
}

} // namespace

/// The compact conversation of the rail while answers come in.
class FeedTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void followsItsEnd();
    void staysWhereItIsRead();
    void restsWhileHidden();
    void jumpsToTheNewest();
    void olderComeInAtTheTop();
    void newIsMarked();
    void ruleGrows();
    void messageIsSelectable();
    void sceneLeadsToMessage();

private:
    void prepare() override;
    void fill(int count);
    void wheelUp();
};

void FeedTest::prepare() {
    open();
}

/// Answers that fill the feed, which follows them.
void FeedTest::fill(int count) {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    for (int i = 1; i <= count; ++i)
        m_workspace->row(
            i, u"Line %1, that is long enough to be broken once or twice in a rail. "_s.arg(i));
    QTRY_COMPARE(m_workspace->msgs().count(), count + 1);
    QTRY_COMPARE_GT(number(feed, "contentHeight"), feed->height() * 1.5);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
}

/// Turns the wheel and lets it come to rest.
void FeedTest::wheelUp() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    const QPointF middle = feed->mapToScene(QPointF(feed->width() / 2, feed->height() / 2));
    for (const quint64 time : {1000, 1040}) {
        QWheelEvent notch(middle, middle, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        notch.setTimestamp(time);
        QGuiApplication::sendEvent(&m_gallery->window(), &notch);
    }
    QTRY_COMPARE_GT(distanceToEnd(feed), 60.0);
    // The movement has come to its end when two frames find the same.
    double place = -1;
    const auto hasStopped = [&] {
        m_gallery->window().grabWindow();
        const double now = number(feed, "contentY");
        return std::exchange(place, now) == now && !feed->property("moving").toBool();
    };
    QTRY_VERIFY(hasStopped());
}

void FeedTest::followsItsEnd() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    fill(12);
    QString growing = u"The answer"_s;
    for (int i = 0; i < 20; ++i) {
        growing += u" grows by a few words"_s;
        m_workspace->row(50, growing);
        QTRY_COMPARE(m_workspace->msgs().messages().last().text, growing);
        m_gallery->window().grabWindow();
        QCOMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
    }
}

void FeedTest::staysWhereItIsRead() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    fill(12);
    wheelUp();
    const double place = number(feed, "contentY");
    QString growing = u"The answer"_s;
    for (int i = 0; i < 10; ++i) {
        growing += u" grows by a few words"_s;
        m_workspace->row(50, growing);
        QTRY_COMPARE(m_workspace->msgs().messages().last().text, growing);
        m_gallery->window().grabWindow();
        QCOMPARE(number(feed, "contentY"), place);
    }
}

/// What grows while nobody sees it is laid out when it shows again, at the place that was read.
void FeedTest::restsWhileHidden() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    fill(30);
    wheelUp();
    m_gallery->window().grabWindow();
    const QQuickItem *read = driver::findItem(feed, [&](const QQuickItem &item) {
        const double place = item.mapToItem(feed, QPointF()).y();
        return item.inherits("QQuickTextEdit") && place >= 0 && place < feed->height() / 2;
    });
    QVERIFY(read);
    const QString words = read->property("text").toString();
    const double place = read->mapToItem(feed, QPointF()).y();
    m_workspace->row(50, u"Begun"_s);
    m_workspace->store->layout()->toggleRail();
    QTRY_VERIFY(!feed->isVisible());
    const double height = number(feed, "contentHeight");
    for (int line = 0; line < 5; ++line) {
        m_workspace->row(50, u"Begun. And a line more.\n\n"_s.repeated(line + 2));
        m_gallery->window().grabWindow();
    }
    QCOMPARE(number(feed, "contentHeight"), height);
    m_workspace->store->layout()->toggleRail();
    QTRY_VERIFY(feed->isVisible());
    QTRY_COMPARE_GT(number(feed, "contentHeight"), height);
    m_gallery->window().grabWindow();
    const QQuickItem *again = findText(feed, words);
    QVERIFY(again);
    QCOMPARE(again->mapToItem(feed, QPointF()).y(), place);
}

void FeedTest::jumpsToTheNewest() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    fill(12);
    QVERIFY(!m_gallery->find(u"jumpButton"_s));
    wheelUp();
    QCOMPARE(number(m_gallery->item(u"jumpButton"_s), "unseen"), 0.0);
    m_workspace->row(50, u"One more"_s);
    m_workspace->row(51, u"Another"_s);
    QTRY_COMPARE(number(m_gallery->item(u"jumpButton"_s), "unseen"), 2.0);
    m_gallery->save(u"feed-unseen"_s);
    m_gallery->click(u"jumpButton"_s);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
    QVERIFY(!m_gallery->find(u"jumpButton"_s));

    // So does a message of one's own.
    wheelUp();
    m_workspace->store->chat()->send(u"And what about this?"_s);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
    QVERIFY(!m_gallery->find(u"jumpButton"_s));
}

void FeedTest::olderComeInAtTheTop() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    fill(70);
    store::ChatRoom *chat = m_workspace->store->chat();
    QCOMPARE(chat->feedWindow(), 30);
    const QString first = chat->msgs()->messages().at(41).text.trimmed();
    QVERIFY(!findText(feed, chat->msgs()->messages().at(40).text.trimmed()));
    const QPoint corner =
        feed->mapToScene(QPointF(feed->width() - 6, feed->height() - 6)).toPoint();
    QTest::mousePress(&m_gallery->window(), Qt::LeftButton, {}, corner);
    QTest::mouseMove(&m_gallery->window(), corner - QPoint(0, 40));
    const QPoint upper = corner - QPoint(0, static_cast<int>(feed->height()));
    QTest::mouseMove(&m_gallery->window(), upper);
    QTRY_COMPARE(chat->feedWindow(), 60);
    // What was the first message is read where it was, with older ones above it.
    const auto placeOfFirst = [&] {
        m_gallery->window().grabWindow();
        const QQuickItem *text = findText(feed, first);
        return text ? text->mapToItem(feed, QPointF()).y() : -1;
    };
    const double place = placeOfFirst();
    // Below its head and the room of the link that was there.
    QCOMPARE_GT(place, 45.0);
    QCOMPARE_LT(place, 80.0);
    QCOMPARE_GT(number(feed, "contentY"), number(feed, "originY"));
    // Up once more, and there is no more to come.
    QTest::mouseMove(&m_gallery->window(), upper + QPoint(0, 60));
    QTest::mouseMove(&m_gallery->window(), upper);
    QTRY_COMPARE(chat->feedWindow(), 90);
    QVERIFY(!chat->feedMsgs()->hasOlder());
    QTest::mouseRelease(&m_gallery->window(), Qt::LeftButton, {}, upper);
}

void FeedTest::newIsMarked() {
    store::LayoutRoom *layout = m_workspace->store->layout();
    layout->toggleRail();
    m_workspace->row(1, u"One"_s);
    m_workspace->row(2, u"Two"_s);
    QTRY_COMPARE(m_workspace->store->chat()->unseenMsgs(), 2);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    const QQuickItem *feed = m_gallery->item(u"dockFeed"_s);
    const QQuickItem *line = m_gallery->item(u"unreadLine"_s);
    QTRY_COMPARE_LT(
        line->mapToItem(feed, QPointF()).y(),
        findText(m_gallery->item(u"dockFeed"_s), u"One"_s)->mapToItem(feed, QPointF()).y());
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(!m_gallery->find(u"dockFeed"_s));
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"dockFeed"_s));
    QVERIFY(!m_gallery->find(u"unreadLine"_s));
}

void FeedTest::ruleGrows() {
    m_workspace->store->chat()->send(u"Go on"_s);
    m_workspace->row(50, u"One"_s);
    QTRY_COMPARE(m_workspace->texts().last(), u"One"_s);
    QVERIFY(!m_gallery->find(u"ruleDot"_s));
    m_workspace->row(50, u"One\n\n---"_s);
    QTRY_VERIFY(m_gallery->find(u"ruleDot"_s));
    m_workspace->row(50, u"One\n\n---\n\nTwo"_s);
    QTRY_VERIFY(!m_gallery->find(u"ruleDot"_s));
}

void FeedTest::messageIsSelectable() {
    m_workspace->row(7, u"selectable"_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 2);
    QQuickItem *words = nullptr;
    QTRY_VERIFY((words = findText(m_gallery->item(u"compactFeed"_s), u"selectable"_s)));
    const QPoint place = words->mapToScene(QPointF(20, 8)).toPoint();
    QTest::mouseDClick(&m_gallery->window(), Qt::LeftButton, {}, place);
    m_gallery->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"selectable"_s);
}

void FeedTest::sceneLeadsToMessage() {
    QVERIFY(m_workspace->ask(u"Compare"_s, Workspace::compareAnswer(), u"compare"_s));
    for (int i = 0; i < 12; ++i)
        m_workspace->row(200 + i, u"A line that is long enough to be broken once or twice. "_s);
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
    m_gallery->click(u"showMessage"_s);
    QTRY_COMPARE_GT(distanceToEnd(feed), 100.0);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::FeedTest)
#include "FeedTest.moc"
