#include "canvas/AnswerBlock.h"
#include "canvas/ArtChoice.h"
#include "canvas/CanvasIntents.h"
#include "canvas/CanvasNum.h"
#include "canvas/ReplyOptions.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SpecReader.h"
#include "canvas/SurfaceMatcher.h"
#include "canvas/TableText.h"
#include "canvas/TextCues.h"
#include "support/HostileAnswers.h"
#include "support/WorkingTime.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::canvas;

namespace {

// Seconds. Far from what a linear reader needs, and nearer than any other one.
#if defined(__has_feature)
constexpr double bound = __has_feature(address_sanitizer) ? 30 : 5;
#else
constexpr double bound = 5;
#endif

/// Everything that is asked of an answer when it arrives.
void readAnswer(const QString &text) {
    const auto answer = CanvasEngine::extractViewSpec(text);
    if (answer.spec) {
        for (const QString &art : CanvasEngine::knownArts())
            SceneAdapter::build(*answer.spec, std::nullopt, art);
        csvText(answerTables(*answer.spec));
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
        for (const auto &[name, text] : test::hostileAnswers())
            QTest::newRow(name.constData()) << text;
    }
    void answers() {
        QFETCH(QString, text);
        const double start = test::workingTime();
        readAnswer(text);
        QCOMPARE_LT(test::workingTime() - start, bound);
    }

    void texts_data() {
        QTest::addColumn<QString>("text");
        for (const QString &piece : {u"7"_s, u"1,"_s, u"1.5"_s, u","_s, u"-"_s, u" "_s, u"°"_s,
                                     u"1 °"_s, u"[a]("_s, u"e"_s, u"when do "_s, u"yesterday "_s,
                                     u"обратной "_s, u"wait"_s, u"a"_s, u"сравни"_s})
            QTest::newRow(qPrintable(piece)) << test::repeated(piece);
    }
    void texts() {
        QFETCH(QString, text);
        const double start = test::workingTime();
        CanvasNum::parse(text);
        CanvasNum::out(text);
        CanvasNum::numsIn(text);
        CanvasNum::numFromText(text);
        CanvasEngine::statusWord(text);
        CanvasEngine::stripInline(text);
        const ViewSpec spec{.title = text, .points = {{.label = text}}};
        CanvasEngine::looksTemp(spec);
        CanvasEngine::looksDays(spec);
        CanvasIntents::classify(text);
        QCOMPARE_LT(test::workingTime() - start, bound);
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
                                   u"okr"_s, u"budget"_s})
            QVERIFY2(!SceneAdapter::build(*spec, std::nullopt, art), qPrintable(art));
    }
};

QTEST_APPLESS_MAIN(HostileTest)
#include "HostileTest.moc"
