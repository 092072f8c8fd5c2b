#include "ui/SceneView.h"
#include "ui/canvas/PlotLine.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// What moves in a scene: all of it when it comes, then only what another answer changes.
class SceneMotionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML|file:"_s)); }
    void entrance_data();
    void entrance();
    void entranceTakenBack();
    void redrawn();
    void stackRedrawn();
    void lineRedrawn();

private:
    SceneView m_view;
};

void SceneMotionTest::entrance_data() {
    QTest::addColumn<bool>("animated");
    QTest::addColumn<bool>("reduced");
    QTest::addColumn<bool>("grows");
    QTest::newRow("a new scene") << true << false << true;
    QTest::newRow("a restored scene") << false << false << false;
    QTest::newRow("less motion asked for") << true << true << false;
}

void SceneMotionTest::entrance() {
    QFETCH(bool, animated);
    QFETCH(bool, reduced);
    QFETCH(bool, grows);
    m_view.gallery.setReducedMotion(reduced);
    m_view.show(sceneOf(answerNamed(u"workload-plain"_s)), {{u"animated"_s, animated}});
    m_view.gallery.setReducedMotion(false);
    const auto lengthOf = [this](int bar) {
        return m_view.itemsOf("ValueBar").at(bar)->childItems().first()->width();
    };
    const double track = m_view.itemsOf("ValueBar").first()->width();
    const double first = lengthOf(0);
    QCOMPARE(first < track, grows);
    // The bars come one after the other.
    QVERIFY(!grows || lengthOf(1) <= first);
    QTRY_COMPARE(lengthOf(0), track);
    QTRY_COMPARE(lengthOf(5), 0.52 * track);
    QTRY_COMPARE(m_view.itemsOf("WorkloadScene").first()->opacity(), 1.0);
}

/// A scene that turns out to be one of before is there at once.
void SceneMotionTest::entranceTakenBack() {
    QQuickItem *page =
        m_view.show(sceneOf(answerNamed(u"workload-plain"_s)), {{u"animated"_s, true}});
    page->setProperty("animated", false);
    QCOMPARE(m_view.itemsOf("WorkloadScene").first()->opacity(), 1.0);
}

/// Other figures of the same scene: rows stay, and only the bar that changed moves.
void SceneMotionTest::redrawn() {
    canvas::SceneOut scene = sceneOf(answerNamed(u"workload-plain"_s));
    QQuickItem *page = m_view.show(scene, {{u"animated"_s, true}});
    const QList<QQuickItem *> rows = m_view.itemsOf("WorkloadRow");
    const QList<QQuickItem *> bars = m_view.itemsOf("ValueBar");
    const double track = bars.first()->width();
    const auto lengthOf = [&](int bar) { return bars.at(bar)->childItems().first()->width(); };
    QTRY_COMPARE(lengthOf(4), 0.74 * track);
    QTRY_COMPARE(lengthOf(5), 0.52 * track);
    scene.wlRows[5].pct = 20;
    page->setProperty("scene", QVariant::fromValue(scene));
    QCOMPARE(m_view.itemsOf("WorkloadRow"), rows);
    QVERIFY(m_view.seesText(u"20%"_s));
    QCOMPARE(lengthOf(4), 0.74 * track);
    QVERIFY(lengthOf(5) > 0.4 * track);
    QTRY_COMPARE(lengthOf(5), 0.2 * track);
    scene.wlRows.removeLast();
    page->setProperty("scene", QVariant::fromValue(scene));
    QTRY_COMPARE(m_view.itemsOf("WorkloadRow"), rows.first(5));
}

/// The pieces of a bar glide to where other shares put them; another width puts them there at once.
void SceneMotionTest::stackRedrawn() {
    canvas::SceneOut scene = sceneOf(answerNamed(u"costs-plain"_s));
    QQuickItem *page = m_view.show(scene);
    const QQuickItem *bar = m_view.itemsOf("StackedBar").first();
    const auto pieces = [&] {
        QList<QQuickItem *> found;
        const QList<QQuickItem *> children = bar->childItems();
        for (QQuickItem *child : children) {
            if (child->width() > 0)
                found.append(child);
        }
        return found;
    };
    const QList<QQuickItem *> before = pieces();
    QCOMPARE(before.size(), 6);
    const double first = before.at(0)->width();
    const double second = before.at(1)->x();

    page->setWidth(page->width() - 100);
    QVERIFY(before.at(0)->width() < first - 20);
    page->setWidth(page->width() + 100);
    QCOMPARE(before.at(1)->x(), second);

    scene.coSegs[0].w /= 2;
    page->setProperty("scene", QVariant::fromValue(scene));
    QCOMPARE(pieces(), before);
    QCOMPARE(before.at(0)->width(), first);
    QTRY_VERIFY(before.at(0)->width() < first * 0.7);
    QTRY_VERIFY(before.at(1)->x() < second * 0.7);
    scene.coSegs.removeLast();
    page->setProperty("scene", QVariant::fromValue(scene));
    QTRY_COMPARE(pieces(), before.first(5));
}

/// The balance glides along with its bars; in a plot of another size it is there at once.
void SceneMotionTest::lineRedrawn() {
    canvas::SceneOut scene = sceneOf(answerNamed(u"cashflow-plain"_s));
    QQuickItem *page = m_view.show(scene);
    const auto *line = m_view.itemsOf("BalanceLine").first()->findChild<PlotLine *>();
    QVERIFY(line);
    const auto heightOf = [line](qsizetype point) { return line->shownPoints().at(point).y(); };
    const double before = heightOf(1);
    scene.cfMonths[1].balY /= 2;
    page->setProperty("scene", QVariant::fromValue(scene));
    QCOMPARE(heightOf(1), before);
    QTRY_COMPARE_GT(heightOf(1), before + 10);
    const auto places = [line] { return line->property("points").value<QList<QPointF>>(); };
    QTRY_COMPARE(line->shownPoints(), places());
    const double place = places().at(1).x();
    page->setWidth(page->width() - 120);
    QVERIFY(places().at(1).x() < place);
    QCOMPARE(line->shownPoints(), places());
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SceneMotionTest)
#include "SceneMotionTest.moc"
