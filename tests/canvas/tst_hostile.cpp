#include "canvas/CanvasEngine.h"
#include "canvas/CanvasIntents.h"
#include "canvas/CanvasNum.h"
#include "canvas/SceneAdapter.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

namespace {

constexpr qsizetype length = 1'000'000;

QString repeated(const QString &piece) {
    return piece.repeated(length / piece.size() + 1).first(length);
}

/// Everything that is asked of an answer when it arrives.
void readAnswer(const QString &text) {
    const auto answer = CanvasEngine::extractViewSpec(text);
    if (answer.spec) {
        for (const QString &art : CanvasEngine::knownArts())
            SceneAdapter::build(*answer.spec, std::nullopt, art);
    }
    CanvasEngine::closedFenceRe().contains(text);
    SurfaceMatcher::match(text, QUrl(u"https://kiv.example"_s));
    ReplyOptions::parse(text);
}

} // namespace

/// Answers and figures of a million characters, made to be slow: each must take time linear to its
/// length. A quadratic reader takes minutes here.
class HostileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data() {
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QString &text) {
            QTest::newRow(name) << text.first(std::min(text.size(), length));
        };
        const QStringList pieces{u"|"_s,           u"["_s,          u"-"_s,
                                 u"7"_s,           u"`"_s,          u" "_s,
                                 u"\n"_s,          u"("_s,          u"*"_s,
                                 u":"_s,           u"\t"_s,         u"~"_s,
                                 u"€"_s,           u"/"_s,          u"#"_s,
                                 u"😀"_s,           u"- "_s,         u"[]("_s,
                                 u"[](/"_s,        u"](/x "_s,      u"https://a/p/"_s,
                                 u" https://a"_s,  u"OPTIONS: "_s,  u"\nOPTIONS: a | b"_s,
                                 u"```view\n"_s,   u"``` "_s,       u"```\n~~~\n"_s,
                                 u"- a: 1\n"_s,    u"a: 1\n"_s,     u"a — 1\n\n"_s,
                                 u"|---"_s,        u"|a\n|---\n"_s, u"a|b\n---|---\n"_s,
                                 u"| a | 1 |\n"_s, u"1,"_s,         u"1. "_s,
                                 u"5 - "_s,        u"(+4%)"_s,      u"\\|"_s,
                                 u"\r"_s,          u"a: b: "_s};
        for (const QString &piece : pieces)
            row(qPrintable(u"repeated "_s + piece), repeated(piece));
        row("open block", u"```view\n"_s + repeated(u"{"_s));
        row("block of spaces", u"```view"_s + repeated(u" "_s));
        row("options of spaces", u"OPTIONS: a"_s + repeated(u" "_s).chopped(20) + u"b"_s);
        row("many options", u"OPTIONS: "_s + repeated(u"a|"_s));
        row("deep JSON", u"```view\n"_s + repeated(u"["_s).chopped(20) + u"\n```"_s);
        row("wide key figures",
            u"```kpi\n["_s + repeated(u"\"a: 1\","_s).first(length - 28) + u"\"a: 1\"]\n```"_s);
        row("long table", u"| a | b |\n|---|---|\n"_s + repeated(u"| x | 1 |\n"_s));
        row("wide table",
            repeated(u"|a"_s).first(length / 2) + u'\n' + repeated(u"|---"_s).first(length / 2));
        row("long list item", u"- a: 1\n- b: "_s + repeated(u"1"_s));
        row("long item of marks", u"- [a: 1](b\n- "_s + repeated(u"[a]"_s));
        row("many owners", [] {
            QString points;
            for (int i = 0; points.size() < length - 100; ++i)
                points += u"{\"label\":\"a\",\"value\":1,\"hint\":\"o%1\"},"_s.arg(i);
            return u"```view\n{\"kind\":\"timeline\",\"points\":["_s + points.chopped(1) +
                   u"]}\n```"_s;
        }());
    }
    void answers() {
        QFETCH(QString, text);
        QElapsedTimer timer;
        timer.start();
        readAnswer(text);
        constexpr qint64 bound = 30000; // also with sanitizers on a busy machine
        QVERIFY2(timer.elapsed() < bound, qPrintable(u"%1 ms"_s.arg(timer.elapsed())));
        if (qEnvironmentVariableIsSet("KIV_TIMINGS"))
            qInfo("%lld ms", timer.elapsed());
    }

    void texts_data() {
        QTest::addColumn<QString>("text");
        for (const QString &piece : {u"7"_s, u"1,"_s, u"1.5"_s, u","_s, u"-"_s, u" "_s, u"°"_s,
                                     u"1 °"_s, u"[a]("_s, u"e"_s, u"when do "_s, u"yesterday "_s,
                                     u"обратной "_s, u"wait"_s, u"a"_s, u"сравни"_s})
            QTest::newRow(qPrintable(piece)) << repeated(piece);
    }
    void texts() {
        QFETCH(QString, text);
        QElapsedTimer timer;
        timer.start();
        CanvasNum::parse(text);
        CanvasNum::out(text);
        CanvasNum::numsIn(text);
        CanvasNum::numFromText(text);
        CanvasEngine::statusWord(text);
        CanvasEngine::stripInline(text);
        const ViewSpec spec{.title = text, .points = {{.label = text}}};
        CanvasEngine::looksTemp(spec);
        CanvasEngine::looksDays(spec);
        const qint64 readers = timer.elapsed();
        CanvasIntents::classify(text);
        constexpr qint64 bound = 30000;
        QVERIFY2(timer.elapsed() < bound, qPrintable(u"%1 ms"_s.arg(timer.elapsed())));
        if (qEnvironmentVariableIsSet("KIV_TIMINGS"))
            qInfo("%lld ms, of which classifying %lld", timer.elapsed(), timer.elapsed() - readers);
    }

    void noSenseIsNoScene_data() {
        QTest::addColumn<QByteArray>("values");
        QTest::newRow("huge") << QByteArray("1e300,-1e300,1e308,1e16");
        QTest::newRow("tiny") << QByteArray("1e-300,5e-324,-1e-12,1e-10");
    }
    void noSenseIsNoScene() {
        QFETCH(QByteArray, values);
        const auto json = JVal::parse(R"({"kind":"line","points":[)" + values +
                                      R"(],"series":[{"points":[)" + values + R"(]}]})");
        const auto spec = CanvasEngine::spec(*json, u"k"_s);
        QVERIFY(spec);
        for (const QString &art : {u"status"_s, u"funnel"_s, u"unit"_s, u"costs"_s, u"cashflow"_s,
                                   u"okr"_s, u"workload"_s, u"budget"_s})
            QVERIFY2(!SceneAdapter::build(*spec, std::nullopt, art), qPrintable(art));
    }
};

QTEST_APPLESS_MAIN(HostileTest)
#include "tst_hostile.moc"
