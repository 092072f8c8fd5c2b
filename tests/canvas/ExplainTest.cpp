#include "kiv-canvas/Explain.h"

#include "canvas/ArtChoice.h"
#include "canvas/SceneOut.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;

namespace {

QJsonObject explained(const QByteArray &request) {
    const QByteArray reply = tools::explain(request, QUrl(u"https://kiv.example"_s));
    Q_ASSERT(!reply.contains('\n'));
    return QJsonDocument::fromJson(reply).object();
}

QJsonObject explained(const QJsonObject &request) {
    return explained(QJsonDocument(request).toJson(QJsonDocument::Compact));
}

} // namespace

/// What the previewer says about an answer, and that the guide for authors is true.
class ExplainTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wholeAnswer() {
        const QJsonObject reply = explained(QJsonObject{
            {u"text"_s, u"Hi\n```kpi\n[\"Cash: $5\"]\n```\n[p](/team/x)\nOPTIONS: a | b"_s},
            {u"question"_s, u"weekly report"_s}});
        QCOMPARE(reply.value(u"intent"_s), u"report"_s);
        QCOMPARE(reply.value(u"text"_s), u"Hi\n\n[p](/team/x)\nOPTIONS: a | b"_s);
        QCOMPARE(reply.value(u"art"_s), u"report"_s);
        const QJsonObject item = reply[u"spec"_s][u"items"_s][0].toObject();
        QCOMPARE(item, (QJsonObject{{u"label"_s, u"Cash"_s},
                                    {u"value"_s, 5},
                                    {u"display"_s, u"$5"_s},
                                    {u"delta"_s, QJsonValue()}}));
        const QJsonObject card = reply[u"scene"_s][u"kpiCards"_s][0].toObject();
        QCOMPARE(card, (QJsonObject{{u"label"_s, u"Cash"_s},
                                    {u"value"_s, u"$5"_s},
                                    {u"delta"_s, QString()},
                                    {u"deltaGood"_s, QJsonValue()}}));
        QCOMPARE(reply[u"surface"_s][u"url"_s], u"https://kiv.example/team/x"_s);
        QCOMPARE(reply[u"reply"_s][u"chips"_s].toArray().size(), 2);
        QVERIFY(reply[u"reply"_s][u"text"_s].toString().endsWith(u"(/team/x)"));
    }

    /// The art that is chosen, and that of the scene, which may be another.
    void artAndScene() {
        const QJsonObject reply = explained(QByteArray(
            R"({"view":{"kind":"hbar","points":["Ann: 5"]},"question":"who is busy?"})"));
        QCOMPARE(reply.value(u"art"_s), u"workload"_s);
        QCOMPARE(reply[u"scene"_s][u"art"_s], u"costs"_s);
    }

    void everyFieldOfAScene() {
        const QJsonObject reply = explained(QByteArray(R"({"view":{"kind":"line","series":[
            {"name":"Balance","points":[1,2]}]}})")
                                                .simplified());
        const QJsonObject scene = reply.value(u"scene"_s).toObject();
        QCOMPARE(scene.size(), canvas::SceneOut::staticMetaObject.propertyCount());
        QCOMPARE(scene[u"cfLine"_s][1][u"x"_s].toDouble(), 75);
        QCOMPARE(scene[u"tie"_s], false);
        QCOMPARE(reply[u"spec"_s][u"title"_s], QJsonValue());
        const QJsonObject bars = explained(QByteArray(R"({"text":"- a: 1\n- b: 2"})"));
        QCOMPARE(bars[u"scene"_s][u"coRows"_s][1][u"color"_s], u"blue"_s);
        const QJsonObject table =
            explained(QByteArray(R"({"text":"a|b\n---|---\nx|1\nOPTIONS: y | z"})"));
        QCOMPARE(table[u"scene"_s][u"cpRows"_s].toArray().size(), 1);
        QCOMPARE(table[u"scene"_s][u"cpRows"_s][0][u"numeric"_s],
                 (QJsonArray{true, false, false, false}));
    }

    void blocks() {
        const QJsonObject reply = explained(QJsonObject{
            {u"text"_s, u"## h\np\n- a\n7. b\n- [x] c\n> q\n```\nd\n```\n|e|\n|---|\n|1|\n---"_s}});
        const QByteArray expected = R"([
            {"kind":"heading","level":2,"text":"h"}, {"kind":"paragraph","text":"p"},
            {"kind":"bullets","items":["a"]},
            {"kind":"ordered","items":[{"number":7,"text":"b"}]},
            {"kind":"tasks","items":[{"done":true,"text":"c"}]},
            {"kind":"quote","lines":["q"]}, {"kind":"code","text":"d"},
            {"kind":"table","header":["e"],"rows":[["1"]]}, {"kind":"rule"}])";
        QCOMPARE(reply[u"blocks"_s].toArray(), QJsonDocument::fromJson(expected).array());
    }

    void plainProse() {
        const QJsonObject reply = explained(QByteArray(R"({"text":" Hello ","question":null})"));
        QCOMPARE(reply.value(u"text"_s), u"Hello"_s);
        for (const QString &key : {u"intent"_s, u"spec"_s, u"art"_s, u"scene"_s, u"surface"_s})
            QVERIFY2(reply.contains(key) && reply.value(key).isNull(), qPrintable(key));
    }

    void sources() {
        const QJsonObject reply = explained(QByteArray(
            R"({"text":"x","starters":[{"label":"a","prompt":"A"},{"label":"b","prompt":"B"}]})"));
        QCOMPARE(reply[u"reply"_s][u"chips"_s][1][u"send"_s], u"B"_s);
        const QJsonObject confirm = explained(QByteArray(R"({"text":"x","confirmAsk":true})"));
        QCOMPARE(confirm[u"reply"_s][u"chips"_s][0][u"label"_s], u"Yes"_s);
    }

    void refused_data() {
        QTest::addColumn<QByteArray>("line");
        for (const char *line :
             {"", "{", "[]", "5", "null", R"({"text":5})", R"({"text":"x","question":["a"]})",
              R"({"text":"x","choiceOptions":"a"})", R"({"text":"x","choiceOptions":[1]})",
              R"({"text":"x","starters":[{"label":"a"}]})", R"({"text":"x","confirmAsk":"yes"})",
              "{\"text\":\"\xff\"}"})
            QTest::newRow(line) << QByteArray(line);
    }
    void refused() {
        QFETCH(QByteArray, line);
        const QJsonObject reply = explained(line);
        QCOMPARE(reply.keys(), QStringList{u"error"_s});
        QVERIFY(!reply.value(u"error"_s).toString().isEmpty());
    }

    /// Every example of docs/answers.md draws the scene that its heading names, and a picture shows
    /// it.
    void guideIsTrue() {
        QFile guide(QStringLiteral(KIV_DOCS "/answers.md"));
        QVERIFY(guide.open(QIODevice::ReadOnly));
        static const QRegularExpression example(
            u"^### `(\\w+)`[^\n]*\n(?:(?!^###).)*?^````markdown\n(.*?)^````$"_s,
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
        QSet<QString> arts;
        auto examples = example.globalMatch(QString::fromUtf8(guide.readAll()));
        int count = 0;
        for (; examples.hasNext(); ++count) {
            const auto match = examples.next();
            const QJsonObject reply = explained(QJsonObject{{u"text"_s, match.captured(2)}});
            QCOMPARE(reply.value(u"art"_s), match.captured(1));
            QVERIFY2(reply.value(u"scene"_s).isObject(), qPrintable(match.captured(1)));
            QVERIFY(
                QFile::exists(QStringLiteral(KIV_DOCS "/pictures/%1.png").arg(match.captured(1))));
            arts.insert(match.captured(1));
        }
        QCOMPARE(arts.size(), canvas::CanvasEngine::knownArts().size());
        QCOMPARE(count, 17);
    }
};

QTEST_APPLESS_MAIN(ExplainTest)
#include "ExplainTest.moc"
