// From a scene to the first frame that shows it, for the slowest art, beside a bare list.

#include "Measure.h"
#include "ui/Modules.h"
#include "ui/canvas/Samples.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickWindow>

#include <ctime>
#include <memory>

namespace kiv::bench {

using namespace Qt::StringLiterals;
using canvas::SceneOut;

namespace {

constexpr QSize size{1120, 760};
constexpr int repetitions = 9;

/// As many rows as asked for, from those that there are.
template <typename Row>
void stretch(QList<Row> &rows, int count) {
    const qsizetype given = rows.size();
    for (qsizetype i = given; given > 0 && i < count; ++i)
        rows.append(Row(rows.at(i % given)));
}

/// The sample of an art with `count` rows.
SceneOut sceneOf(const QString &art, int count) {
    ui::Samples samples;
    samples.setCurrent(static_cast<int>(ui::Samples::arts().indexOf(art)));
    SceneOut scene = samples.scene();
    stretch(scene.kpiCards, count / 2);
    stretch(scene.highlights, count / 2);
    stretch(scene.cpRows, count);
    stretch(scene.criteria, count);
    stretch(scene.streams, count);
    stretch(scene.fnStages, count);
    stretch(scene.ueRows, count);
    for (canvas::UeRow &part : scene.ueRows)
        part.w = 100.0 / count;
    stretch(scene.coRows, count);
    stretch(scene.coSegs, count);
    stretch(scene.cfMonths, count);
    stretch(scene.cfLine, count);
    for (qsizetype i = 0; i < scene.cfLine.size(); ++i)
        scene.cfLine[i].setX(100.0 * static_cast<double>(i) / count);
    stretch(scene.wlRows, count);
    stretch(scene.bgRows, count);
    for (canvas::Lane &lane : scene.lanes)
        stretch(lane.tasks, count / static_cast<int>(scene.lanes.size()));
    for (canvas::BriefCol &column : scene.groups)
        stretch(column.items, count / static_cast<int>(scene.groups.size()));
    for (canvas::OkObj &objective : scene.okObjs)
        stretch(objective.krs, count / static_cast<int>(scene.okObjs.size()));
    return scene;
}

/// The processor time of what is done, the median of several times; `reset` is not counted.
double timeOf(const std::function<void()> &reset, const std::function<void()> &step) {
    QList<double> times;
    for (int run = 0; run <= repetitions; ++run) {
        reset();
        const std::clock_t start = std::clock();
        step();
        // The first one compiles and fills caches.
        if (run > 0)
            times.append(1e9 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return median(times);
}

/// A window off screen with one item.
class Stage {
public:
    Stage() {
        ui::registerModules(m_engine);
        // What a scene could not make is not to be timed.
        QObject::connect(&m_engine, &QQmlEngine::warnings, [](const QList<QQmlError> &errors) {
            qFatal("%s", qPrintable(errors.first().toString()));
        });
        m_window.resize(size);
    }
    ~Stage() { m_item.reset(); }

    void show(QQmlComponent &component, const QVariantMap &properties = {}) {
        m_item.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(properties)));
        if (!m_item)
            qFatal("%s", qPrintable(component.errorString()));
        m_item->setParentItem(m_window.contentItem());
        m_item->setSize(size);
        draw();
    }
    void clear() { m_item.reset(); }
    void draw() {
        QCoreApplication::processEvents(); // what an item puts off until it has a size
        if (m_window.grabWindow().isNull())
            qFatal("No frame is drawn");
    }
    QQuickItem *item() const { return m_item.get(); }
    QQmlEngine &engine() { return m_engine; }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
};

double listTime(Stage &stage, int rows) {
    QQmlComponent list(&stage.engine());
    list.setData(
        "import QtQuick\nListView { required model; delegate: Text { required property int "
        "index; height: 44; text: \"Row \" + index } }",
        QUrl());
    return timeOf([&] { stage.clear(); }, [&] { stage.show(list, {{u"model"_s, rows}}); });
}

double sceneTime(Stage &stage, const SceneOut &scene) {
    return timeOf(
        [&] {
            stage.item()->setProperty("scene", QVariant::fromValue(SceneOut()));
            stage.draw();
        },
        [&] {
            stage.item()->setProperty("scene", QVariant::fromValue(scene));
            stage.draw();
        });
}

Row slowest(Stage &stage, int rows, double target) {
    Row row{.name = {},
            .peer = u"%1 texts in a list"_s.arg(rows),
            .peerFigure = listTime(stage, rows),
            .target = target};
    QQmlComponent sheet(&stage.engine(), QUrl(u"qrc:/qt/qml/Kiv/Canvas/Sheet.qml"_s));
    stage.show(sheet, {{u"scene"_s, QVariant::fromValue(SceneOut())},
                       {u"time"_s, QString()},
                       {u"linked"_s, false},
                       {u"animated"_s, false}});
    for (const QString &art : ui::Samples::arts()) {
        const double time = sceneTime(stage, sceneOf(art, rows));
        if (time > row.figure) {
            row.figure = time;
            row.name = u"scene-frame %1 rows, %2"_s.arg(rows).arg(art);
        }
    }
    return row;
}

} // namespace

QList<Row> sceneFrame() {
    Stage stage;
    return {slowest(stage, 12, 50e6), slowest(stage, 200, 120e6)};
}

} // namespace kiv::bench
