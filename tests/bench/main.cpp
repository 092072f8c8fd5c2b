// kiv-bench [NAME...]: one table, a row each; exits 1 when a row is short of its target.

#include "Measure.h"

#include <QGuiApplication>
#include <QStringList>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace kiv::bench;

namespace {

struct Bench {
    QString name;
    QList<Row> (*run)();
};

const QList<Bench> benches{{u"answer-to-scene"_s, answerToScene},
                           {u"classify"_s, classify},
                           {u"dictation"_s, dictation},
                           {u"explain"_s, explain},
                           {u"idle"_s, idle},
                           {u"keystroke"_s, keystroke},
                           {u"long-chat"_s, longChat},
                           {u"markdown"_s, markdown},
                           {u"memory"_s, memory},
                           {u"page-decode"_s, pageDecode},
                           {u"render"_s, render},
                           {u"scene-frame"_s, sceneFrame},
                           {u"start"_s, start},
                           {u"stream-parser"_s, streamParser},
                           {u"streaming"_s, streaming}};

QString shown(double figure, Unit unit) {
    switch (unit) {
    case Unit::Time:
        if (figure >= 100e6)
            return u"%1 ms"_s.arg(figure / 1e6, 0, 'f', 0);
        return u"%1 µs"_s.arg(figure / 1000, 0, 'f', figure < 10e3 ? 2 : 1);
    case Unit::Memory:
        return u"%1 MiB"_s.arg(figure / (1024 * 1024), 0, 'f', 1);
    case Unit::Percent:
        return u"%1 %"_s.arg(figure, 0, 'f', figure < 1 ? 3 : 1);
    }
    Q_UNREACHABLE();
}

void print(const QStringList &cells) {
    static constexpr int widths[] = {28, 12, 30, 8, 12, 6};
    QString line;
    for (qsizetype cell = 0; cell < cells.size(); ++cell)
        line += cells.at(cell).leftJustified(widths[cell]) + u' ';
    std::printf("%s\n", qPrintable(line.trimmed()));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_LOGGING_RULES", "qt.text.font.*=false");
    QGuiApplication application(argc, argv);
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    for (const QString &name : wanted) {
        if (std::ranges::none_of(benches, [&](const Bench &bench) { return bench.name == name; })) {
            std::fprintf(stderr, "There is no benchmark called %s.\n", qPrintable(name));
            return 2;
        }
    }
    bool isShort = false;
    print({u"name"_s, u"figure"_s, u"beside"_s, u"ratio"_s, u"target"_s, u""_s});
    for (const Bench &bench : benches) {
        if (!wanted.isEmpty() && !wanted.contains(bench.name))
            continue;
        for (const Row &row : bench.run()) {
            if (!row.missing.isEmpty()) {
                print({row.name, u"not measured: %1 missing"_s.arg(row.missing)});
                continue;
            }
            print({row.name, shown(row.figure, row.unit),
                   row.peer + u": "_s + shown(row.peerFigure, row.unit),
                   QString::number(row.ratio(), 'f', 2), u"≤ "_s + shown(row.target, row.unit),
                   row.isShort() ? u"short"_s : u"ok"_s});
            if (!row.how.isEmpty())
                print({u"  "_s + row.how});
            isShort = isShort || row.isShort();
        }
    }
    return isShort ? 1 : 0;
}
