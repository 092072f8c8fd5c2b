#include "ui/canvas/CashflowPlot.h"
#include "ui/canvas/CompareColumns.h"
#include "ui/canvas/LaneLayout.h"
#include "ui/canvas/MarkGroups.h"
#include "ui/canvas/PlotAxis.h"
#include "ui/canvas/RingSegment.h"
#include "ui/canvas/StackLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// Where the marks of scenes lie.
class SceneLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lanes_data();
    void lanes();
    void titles();
    void lanesShareTheHeight();
    void axis_data();
    void axis();
    void periods_data();
    void periods();
    void labelsStayApart_data();
    void labelsStayApart();
    void balanceOfSomePeriods();
    void ring_data();
    void ring();
    void stack_data();
    void stack();
    void noMoreColumnsThanShow();
    void keysThroughGroups();
};

namespace {

canvas::SceneOut laneOf(const QList<QPair<double, double>> &tasks, const QString &title = u"T"_s) {
    canvas::Lane lane{.name = u"Scout"_s};
    for (const auto &[left, width] : tasks)
        lane.tasks.append({title, left, width, u"todo"_s});
    canvas::SceneOut scene;
    scene.lanes = {lane};
    return scene;
}

canvas::SceneOut balances(const QList<double> &values) {
    canvas::SceneOut scene;
    scene.cfHigh = 100;
    for (const double value : values)
        scene.cfMonths.append(
            {.name = u"January"_s, .balY = value, .balance = u"€%1,000"_s.arg(value)});
    return scene;
}

} // namespace

void SceneLayoutTest::lanes_data() {
    using Tasks = QList<QPair<double, double>>;
    QTest::addColumn<Tasks>("tasks");
    QTest::addColumn<QString>("blocks"); // x+width@y of each, on a track of 400
    QTest::newRow("side by side") << Tasks{{0, 0.25}, {0.25, 0.5}} << u"0+96@8 100+196@8"_s;
    QTest::newRow("overlapping") << Tasks{{0, 0.5}, {0.25, 0.25}} << u"0+196@8 100+96@54"_s;
    QTest::newRow("not in order") << Tasks{{0.5, 0.5}, {0, 0.5}} << u"0+196@8 200+196@8"_s;
    QTest::newRow("too short") << Tasks{{0, 0.01}, {0.01, 0.01}, {0.1, 0.1}}
                               << u"0+33@8 4+33@54 40+36@8"_s;
    QTest::newRow("at the end") << Tasks{{0.99, 0.01}} << u"368+32@8"_s;
}

void SceneLayoutTest::lanes() {
    using Tasks = QList<QPair<double, double>>;
    QFETCH(Tasks, tasks);
    LaneLayout layout;
    layout.setWidth(400);
    layout.setScene(laneOf(tasks));
    QStringList blocks;
    for (const LaneBlock &block : layout.lanes().first().blocks)
        blocks.append(u"%1+%2@%3"_s.arg(block.x).arg(block.width).arg(block.y));
    QTEST(blocks.join(u' '), "blocks");
}

void SceneLayoutTest::titles() {
    const QString title = u"Guided sign-up"_s;
    LaneLayout layout;
    layout.setWidth(800);
    const double words = QFontMetricsF(layout.font()).horizontalAdvance(title);

    // A block takes what its title needs of the free track, and no more.
    layout.setScene(laneOf({{0, 0.05}, {0.5, 0.05}}, title));
    QList<LaneBlock> blocks = layout.lanes().first().blocks;
    QVERIFY(blocks.at(0).titleWidth >= words && blocks.at(0).titleWidth < words + 3);
    // The end of the track and the next block limit it.
    layout.setScene(laneOf({{0, 0.05}, {0.1, 0.05}, {0.95, 0.05}}, title));
    blocks = layout.lanes().first().blocks;
    QCOMPARE(blocks.at(0).width, 76);
    QCOMPARE(blocks.at(0).titleWidth, 60);
    QCOMPARE(blocks.at(2).x + blocks.at(2).width, 796);
    // A title that would get lost has its block go to another row, but not without end.
    QList<QPair<double, double>> many;
    for (int i = 0; i < 40; ++i)
        many.append({i / 40.0, 1 / 40.0});
    layout.setScene(laneOf(many, title));
    QSet<double> rows;
    for (const LaneBlock &block : layout.lanes().first().blocks)
        rows.insert(block.y);
    QCOMPARE(rows.size(), 3);
    // There is height to spare: nothing is cut short.
    layout.setScene(laneOf({{0, 0.05}, {0.1, 0.05}}, title));
    layout.setHeight(400);
    blocks = layout.lanes().first().blocks;
    QVERIFY(blocks.at(0).titleWidth >= words);
    QCOMPARE(blocks.at(1).y - blocks.at(0).y, 46);
}

void SceneLayoutTest::lanesShareTheHeight() {
    canvas::SceneOut scene = laneOf({{0, 1}, {0, 1}}); // two rows of blocks
    scene.lanes.append(laneOf({{0, 1}}).lanes);
    scene.lanes.append(canvas::Lane{.name = u"Idle"_s});
    LaneLayout layout;
    layout.setWidth(400);
    layout.setScene(scene);
    const auto heights = [&layout](double height) {
        layout.setHeight(height);
        QList<double> list;
        for (const LaneRow &lane : layout.lanes())
            list.append(lane.height);
        return list;
    };
    QCOMPARE(heights(100), (QList<double>{102, 56, 56}));
    QCOMPARE(layout.contentHeight(), 214);
    QCOMPARE(heights(242), (QList<double>{102, 70, 70}));
    QCOMPARE(heights(2000), (QList<double>{102, 88, 88}));
    // Larger text makes them higher.
    layout.setBlockHeight(60);
    QCOMPARE(heights(100), (QList<double>{142, 76, 76}));
    QCOMPARE(heights(2000), (QList<double>{142, 108, 108}));
}

void SceneLayoutTest::axis_data() {
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("height");
    QTest::addColumn<QString>("ticks"); // text@y
    QTest::newRow("all steps") << 0.0 << 200.0 << 400.0 << u"200@0 150@100 100@200 50@300 0@400"_s;
    QTest::newRow("fewer steps") << 0.0 << 200.0 << 100.0 << u"200@0 100@50 0@100"_s;
    QTest::newRow("ends alone") << 0.0 << 200.0 << 30.0 << u"200@0 0@30"_s;
    QTest::newRow("below zero") << -25.0 << 100.0 << 250.0
                                << u"100@0 75@50 50@100 25@150 0@200 −25@250"_s;
    QTest::newRow("zero between the ends") << -25.0 << 100.0 << 50.0 << u"100@0 0@40 −25@50"_s;
    QTest::newRow("all below") << -200.0 << 0.0 << 80.0 << u"0@0 −100@40 −200@80"_s;
    QTest::newRow("fractions") << 0.0 << 0.3 << 120.0 << u"0.3@0 0.2@40 0.1@80 0@120"_s;
    QTest::newRow("thousands") << -6000.0 << 6000.0 << 400.0
                               << u"6\u202f000@0 4\u202f000@67 2\u202f000@133 0@200 "
                                  u"−2\u202f000@267 −4\u202f000@333 −6\u202f000@400"_s;
    QTest::newRow("no range") << 0.0 << 0.0 << 100.0 << u"0@100"_s;
}

void SceneLayoutTest::axis() {
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(double, height);
    PlotAxis axis;
    axis.setHeight(height);
    axis.setHigh(high);
    axis.setLow(low);
    QStringList ticks;
    for (const PlotTick &tick : axis.ticks()) {
        ticks.append(u"%1@%2"_s.arg(tick.text).arg(tick.y));
        QCOMPARE(tick.zero, tick.text == u"0"_s);
    }
    QTEST(ticks.join(u' '), "ticks");
}

void SceneLayoutTest::periods_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("slot");
    QTest::addColumn<double>("bar");
    QTest::newRow("wide bars") << 6 << 966.0 << 161.0 << 32.0;
    QTest::newRow("narrow bars") << 24 << 966.0 << 40.0 << 12.0;
    QTest::newRow("scrolls") << 200 << 966.0 << 36.0 << 12.0;
    QTest::newRow("one") << 1 << 200.0 << 200.0 << 32.0;
}

void SceneLayoutTest::periods() {
    QFETCH(int, count);
    QFETCH(double, width);
    canvas::SceneOut scene;
    scene.cfLow = -50;
    scene.cfHigh = 100;
    scene.cfMonths.fill({.name = u"A very long name of a period"_s,
                         .inH = 50,
                         .outH = -20,
                         .in = u"75"_s,
                         .out = u"30"_s},
                        count);
    CashflowPlot plot;
    plot.setWidth(width);
    plot.setHeight(300);
    plot.setScene(scene);
    QTEST(plot.slot(), "slot");
    QTEST(plot.barWidth(), "bar");
    QCOMPARE(plot.zeroY(), 200);
    QVERIFY(plot.line().isEmpty());

    // Names do not meet, and those at the ends are always there.
    QVERIFY(plot.periods().first().nameWidth > 0);
    QVERIFY(plot.periods().last().nameWidth > 0);
    double end = 0;
    for (qsizetype i = 0; i < plot.periods().size(); ++i) {
        const PlotPeriod &period = plot.periods().at(i);
        if (period.nameWidth == 0)
            continue;
        const double left = static_cast<double>(i) * plot.slot() + period.nameX;
        QVERIFY(left >= end);
        end = left + period.nameWidth;
    }
    QVERIFY(end <= plot.slot() * count);
}

void SceneLayoutTest::labelsStayApart_data() {
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<double>("width");
    QTest::addColumn<qsizetype>("least");
    QTest::newRow("all") << QList<double>{60, 40, 20, 80} << 600.0 << qsizetype(4);
    QTest::newRow("flat and narrow") << QList<double>(12, 50.0) << 300.0 << qsizetype(6);
    QTest::newRow("at the edges") << QList<double>{100, 0} << 300.0 << qsizetype(2);
    QList<double> many(30, 50.0);
    many[10] = 90;
    many[20] = 10;
    QTest::newRow("ends and extremes") << many << 1200.0 << qsizetype(4);
    QTest::newRow("one") << QList<double>{50} << 300.0 << qsizetype(1);
}

void SceneLayoutTest::labelsStayApart() {
    QFETCH(QList<double>, values);
    QFETCH(double, width);
    CashflowPlot plot;
    plot.setWidth(width);
    plot.setHeight(300);
    plot.setScene(balances(values));
    const QList<PlotLabel> labels = plot.labels();
    QVERIFY(labels.size() <= values.size());
    QFETCH(qsizetype, least);
    QVERIFY(labels.size() >= least);
    QVERIFY(labels.first().text == u"€%1,000"_s.arg(values.last())); // the last is never left out
    for (qsizetype i = 0; i < labels.size(); ++i) {
        const PlotLabel &label = labels.at(i);
        const QRectF place(label.x, label.y, label.width, 20);
        QVERIFY(
            QRectF(0, -24, plot.slot() * static_cast<double>(values.size()), 324).contains(place));
        for (qsizetype other = 0; other < i; ++other)
            QVERIFY(!place.intersects(
                QRectF(labels.at(other).x, labels.at(other).y, labels.at(other).width, 20)));
    }
}

void SceneLayoutTest::balanceOfSomePeriods() {
    canvas::SceneOut scene = balances({50, 0, 25});
    scene.cfMonths[1].balance.clear();
    CashflowPlot plot;
    plot.setWidth(300);
    plot.setHeight(200);
    plot.setScene(scene);
    QCOMPARE(plot.line(), (QList<QPointF>{{50, 100}, {250, 150}}));
    QVERIFY(plot.hasBalance());
    QVERIFY(!plot.hasIn() && !plot.hasOut());
}

void SceneLayoutTest::ring_data() {
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<bool>("inside");
    // A quarter from three o'clock to six o'clock, on a ring of 200 with a stroke of 20.
    QTest::newRow("in the stroke") << QPointF(165, 165) << true;
    QTest::newRow("towards the middle") << QPointF(130, 130) << false;
    QTest::newRow("outside") << QPointF(195, 195) << false;
    QTest::newRow("before it") << QPointF(165, 35) << false;
    QTest::newRow("after it") << QPointF(35, 165) << false;
}

void SceneLayoutTest::ring() {
    QFETCH(QPointF, point);
    RingSegment segment;
    segment.setSize({200, 200});
    segment.setThickness(20);
    segment.setStart(0.25);
    segment.setSweep(0.25);
    segment.setColor(Qt::red);
    QTEST(segment.contains(point), "inside");

    QImage picture(200, 200, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    segment.paint(&painter);
    QCOMPARE(picture.pixelColor(point.toPoint()).alpha() > 0, segment.contains(point));
}

void SceneLayoutTest::stack_data() {
    QTest::addColumn<QList<double>>("parts");
    QTest::addColumn<int>("pieces");
    QTest::newRow("few") << QList<double>{70, 29.9, 0.1} << 3;
    QTest::newRow("many of a size") << QList<double>(160, 1) << 1;
    QTest::newRow("as many as fit") << QList<double>(110, 1) << 110;
    QTest::newRow("some wide") << QList<double>{QList<double>(100, 10) + QList<double>(60, 1)}
                               << 101;
}

/// The pieces of a bar of a thousand lie beside each other and end with it.
void SceneLayoutTest::stack() {
    QFETCH(QList<double>, parts);
    QList<canvas::Seg> segments;
    for (const double part : parts)
        segments.append({.label = u"a"_s, .w = part});
    StackLayout layout;
    layout.setWidth(1000);
    layout.setParts(QVariant::fromValue(segments));
    double end = -3;
    for (const StackPiece &piece : layout.pieces()) {
        QCOMPARE(piece.x, end + 3);
        QVERIFY(piece.width >= 6);
        end = piece.x + piece.width;
    }
    QVERIFY2(qAbs(end - 1000) < 0.01, QByteArray::number(end));
    QTEST(int(layout.pieces().size()), "pieces");
}

void SceneLayoutTest::noMoreColumnsThanShow() {
    canvas::SceneOut scene;
    scene.cpCols = QStringList(200, u"a"_s);
    scene.cpRows = {{.name = u"n"_s, .cells = QStringList(300, u"b"_s)}};
    CompareColumns columns;
    columns.setWidth(1000);
    columns.setScene(scene);
    QCOMPARE(columns.columns().size(), 60);
}

void SceneLayoutTest::keysThroughGroups() {
    MarkGroups groups;
    QCOMPARE(groups.count(), 0);
    QCOMPARE(groups.groupOf(0), 0);
    canvas::SceneOut scene;
    for (const qsizetype tasks : {3, 0, 1, 2})
        scene.lanes.append({.tasks = QList<canvas::LaneTask>(tasks)});
    groups.setScene(scene);
    QCOMPARE(groups.count(), 6);
    QCOMPARE(groups.first(3), 4);
    QCOMPARE(groups.groupOf(2), 0);
    QCOMPARE(groups.groupOf(3), 2);
    QCOMPARE(groups.groupOf(5), 3);
    QCOMPARE(groups.beside(2, 1), 3); // over the empty group, to the last mark there
    QCOMPARE(groups.beside(5, -1), 3);
    QCOMPARE(groups.beside(5, 1), 5);
    QCOMPARE(groups.beside(0, -1), 0);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SceneLayoutTest)
#include "SceneLayoutTest.moc"
