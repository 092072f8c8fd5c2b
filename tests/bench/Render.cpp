// An answer as a picture, the whole process, beside one that shows an empty window.

#include "Measure.h"

#include <QProcess>
#include <QTemporaryDir>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int repetitions = 7;

const QByteArray answer = R"(Spending by line.

| Line | Amount |
|---|---:|
| Hosting | €17,300 |
| Ads | €12,450 |
| Travel | €3,120 |
| Tools | €2,980 |
| Training | €1,200 |
| Legal | €640 |
)";

/// The median of several runs, the first of which only warms the disk's cache.
double processTime(const QString &program, const QStringList &arguments) {
    QList<double> times;
    for (int run = 0; run <= repetitions; ++run) {
        const double time = measureOnce([&] {
            QProcess process;
            process.start(program, arguments);
            process.write(answer);
            process.closeWriteChannel();
            if (!process.waitForFinished() || process.exitCode() != 0)
                qFatal("%s fails: %s", qPrintable(program),
                       process.readAllStandardError().constData());
        });
        if (run > 0)
            times.append(time);
    }
    return median(times);
}

} // namespace

QList<Row> render() {
    const QTemporaryDir folder;
    const QStringList arguments{u"render"_s, u"-o"_s, folder.filePath(u"out.png"_s), u"-"_s};
    return {{.name = u"render"_s,
             .figure = processTime(QStringLiteral(KIV_PREVIEWER), arguments),
             .peer = u"empty window"_s,
             .peerFigure = processTime(QStringLiteral(KIV_EMPTY_WINDOW), {}),
             .target = 700e6}};
}

} // namespace kiv::bench
