// An answer with a table of twelve rows, from its text to the scene, beside the JSON parse alone.

#include "Measure.h"

#include "base/JVal.h"
#include "canvas/AnswerBlock.h"
#include "canvas/SceneAdapter.h"

#include <benchmark/benchmark.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

QString tableBlock() {
    QString rows;
    for (int row = 0; row < 12; ++row) {
        if (row > 0)
            rows += u",\n"_s;
        rows += u"[\"Option %1\",\"€%2\",\"99.9%3%\",%4,\"Included\"]"_s.arg(row)
                    .arg(1240 + 97 * row)
                    .arg(row % 10)
                    .arg(11 + row);
    }
    return u"{\"kind\":\"table\",\"title\":\"Hosting options\",\"columns\":[\"Option\",\"Price\","
           "\"Uptime\",\"Latency\",\"Backups\"],\n\"rows\":["_s +
           rows + u"]}"_s;
}

} // namespace

QList<Row> answerToScene() {
    const QString json = tableBlock();
    const QString answer = u"Twelve options at the current load.\n\n```view\n"_s + json +
                           u"\n```\n\nThe first is the cheapest."_s;
    const QByteArray utf8 = json.toUtf8();
    Row row{.name = u"answer-to-scene"_s, .peer = u"its JSON parse"_s};
    row.figure = measure(row.name, [&] {
        const auto drawable = canvas::CanvasEngine::extractViewSpec(answer);
        auto scene = canvas::SceneAdapter::vals(*drawable.spec, std::nullopt);
        benchmark::DoNotOptimize(scene);
    });
    row.peerFigure = measure(row.peer, [&] {
        auto value = JVal::parse(utf8);
        benchmark::DoNotOptimize(value);
    });
    row.target = 150e3;
    return {row};
}

} // namespace kiv::bench
