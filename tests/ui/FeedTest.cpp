#include "ui/Gallery.h"
#include "ui/Workspace.h"

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
QQuickItem *findText(QQuickItem *item, const QString &text) {
    if (item->inherits("QQuickTextEdit") && item->property("text") == text)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findText(child, text))
            return found;
    }
    return nullptr;
}

} // namespace

/// The compact conversation of the rail while answers come in.
class FeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void followsItsEnd();
    void staysWhereItIsRead();
    void messageIsSelectable();
    void sceneLeadsToMessage();

private:
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void FeedTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
}

void FeedTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void FeedTest::followsItsEnd() {
    QQuickItem *feed = m_gallery->item(u"compactFeed"_s);
    for (int i = 0; i < 12; ++i)
        m_workspace->row(i + 1, u"A line that is long enough to be broken once or twice. "_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 13);
    QTRY_COMPARE_GT(number(feed, "contentHeight"), feed->height() * 1.5);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
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
    for (int i = 0; i < 12; ++i)
        m_workspace->row(i + 1, u"A line that is long enough to be broken once or twice. "_s);
    QTRY_COMPARE(m_workspace->msgs().count(), 13);
    QTRY_COMPARE_GT(number(feed, "contentHeight"), feed->height() * 1.5);
    QTRY_COMPARE_LE(std::abs(distanceToEnd(feed)), 1.0);
    const QPointF middle = feed->mapToScene(QPointF(feed->width() / 2, feed->height() / 2));
    for (const quint64 time : {1000, 1040}) {
        QWheelEvent notch(middle, middle, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        notch.setTimestamp(time);
        QGuiApplication::sendEvent(&m_gallery->window(), &notch);
    }
    QTRY_COMPARE_GT(distanceToEnd(feed), 60.0);
    // The wheel's movement has come to its end when two looks find the same.
    double place = -1;
    QTRY_VERIFY(std::exchange(place, number(feed, "contentY")) == number(feed, "contentY") &&
                !feed->property("moving").toBool());
    QString growing = u"The answer"_s;
    for (int i = 0; i < 10; ++i) {
        growing += u" grows by a few words"_s;
        m_workspace->row(50, growing);
        QTRY_COMPARE(m_workspace->msgs().messages().last().text, growing);
        m_gallery->window().grabWindow();
        QCOMPARE(number(feed, "contentY"), place);
    }
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
