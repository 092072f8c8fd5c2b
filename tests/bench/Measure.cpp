#include "Measure.h"

#include <QElapsedTimer>

#include <algorithm>

#include <benchmark/benchmark.h>

namespace kiv::bench {

namespace {

/// Keeps the median of the repetitions and prints nothing.
class MedianReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                m_nanoseconds = run.GetAdjustedCPUTime();
        }
    }
    double nanoseconds() const { return m_nanoseconds; }

private:
    double m_nanoseconds = 0;
};

constexpr int repetitions = 5;
constexpr double secondsEach = 0.2;

} // namespace

double measure(const QString &name, const std::function<void()> &step) {
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark(qPrintable(name),
                                 [&step](benchmark::State &state) {
                                     for (auto _ : state)
                                         step();
                                 })
        ->Repetitions(repetitions)
        ->MinTime(secondsEach)
        ->Unit(benchmark::kNanosecond);
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.nanoseconds();
}

double measureOnce(const std::function<void()> &step) {
    QElapsedTimer timer;
    timer.start();
    step();
    return static_cast<double>(timer.nsecsElapsed());
}

double median(QList<double> figures) {
    std::ranges::sort(figures);
    return figures.at(figures.size() / 2);
}

} // namespace kiv::bench
