// The slowest answers of a million characters through the previewer, beside the JSON parse of the
// request alone.

#include "Measure.h"

#include "base/Json.h"
#include "kiv-canvas/Explain.h"
#include "support/HostileAnswers.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <benchmark/benchmark.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;

QList<Row> explain() {
    Row slowest{.name = u"explain"_s, .target = 1e9};
    for (const auto &[name, text] : test::hostileAnswers()) {
        const QByteArray request =
            QJsonDocument(QJsonObject{{u"text"_s, text}}).toJson(QJsonDocument::Compact);
        const double time = measureOnce([&] {
            auto reply = tools::explain(request, QUrl(u"https://kiv.example"_s));
            benchmark::DoNotOptimize(reply);
        });
        if (time < slowest.figure)
            continue;
        slowest.figure = time;
        slowest.peer = u"JSON parse, "_s + QString::fromUtf8(name).simplified().left(16);
        slowest.peerFigure = measureOnce([&] {
            const JsonDocument document(request);
            auto value = document.root().toJVal();
            benchmark::DoNotOptimize(value);
        });
    }
    return {slowest};
}

} // namespace kiv::bench
