// The slowest answers of a million characters through the previewer, beside the JSON parse of the
// request alone.

#include "Measure.h"

#include "base/Json.h"
#include "kiv-canvas/Explain.h"
#include "support/HostileAnswers.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <benchmark/benchmark.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

double once(const std::function<void()> &step) {
    QElapsedTimer timer;
    timer.start();
    step();
    return static_cast<double>(timer.nsecsElapsed());
}

} // namespace

QList<Row> explain() {
    Row slowest{.name = u"explain"_s, .target = 1e9};
    for (const auto &[name, text] : test::hostileAnswers()) {
        const QByteArray request =
            QJsonDocument(QJsonObject{{u"text"_s, text}}).toJson(QJsonDocument::Compact);
        const double time = once([&] {
            auto reply = tools::explain(request, QUrl(u"https://kiv.example"_s));
            benchmark::DoNotOptimize(reply);
        });
        if (time < slowest.figure)
            continue;
        slowest.figure = time;
        slowest.peer = u"JSON parse, "_s + QString::fromUtf8(name).simplified().left(16);
        slowest.peerFigure = once([&] {
            const JsonDocument document(request);
            auto value = document.root().toJVal();
            benchmark::DoNotOptimize(value);
        });
    }
    return {slowest};
}

} // namespace kiv::bench
