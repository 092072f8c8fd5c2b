// The replies offered under an answer.

#include "StoreFixture.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::rowJson;
using test::StoreFixture;

namespace {

QList<canvas::ReplyChip> chipsOf(StoreFixture &f, int row) {
    return f.msgs().index(row).data(MessageModel::ChipsRole).value<QList<canvas::ReplyChip>>();
}

QStringList labels(StoreFixture &f, int row) {
    QStringList result;
    for (const canvas::ReplyChip &chip : chipsOf(f, row))
        result.append(chip.label);
    return result;
}

QByteArray answerWith(const QString &text, const QByteArray &metadata) {
    QJsonObject row = QJsonDocument::fromJson(rowJson(2, u"assistant"_s, text)).object();
    row.insert(u"metadata"_s, QJsonDocument::fromJson(metadata).object());
    return QJsonDocument(row).toJson(QJsonDocument::Compact);
}

} // namespace

class RepliesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void offered_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("metadata");
        QTest::addColumn<QString>("bubble");
        QTest::addColumn<QStringList>("chips");
        QTest::newRow("line") << u"Which one?\nOPTIONS: Red | Blue"_s << QByteArray("{}")
                              << u"Which one?"_s << QStringList{u"Red"_s, u"Blue"_s};
        QTest::newRow("line above a block")
            << u"Which one?\nOPTIONS: Red | Blue\n"_s + test::reportBlock << QByteArray("{}")
            << u"Which one?"_s << QStringList{u"Red"_s, u"Blue"_s};
        QTest::newRow("line right below a table")
            << u"| a | b |\n|---|---|\n| x | 1 |\n| y | 2 |\nOPTIONS: Red | Blue"_s
            << QByteArray("{}") << QString() << QStringList{u"Red"_s, u"Blue"_s};
        QTest::newRow("choices") << u"Which one?"_s
                                 << QByteArray(R"({"choice_options":["Red","Blue","Green"]})")
                                 << u"Which one?"_s << QStringList{u"Red"_s, u"Blue"_s, u"Green"_s};
        QTest::newRow("starters") << u"Hello."_s
                                  << QByteArray(
                                         R"({"starters":[{"label":"Plan","prompt":"Show the plan"},
                                                    {"label":"Costs","prompt":"Show the costs"}]})")
                                  << u"Hello."_s << QStringList{u"Plan"_s, u"Costs"_s};
        QTest::newRow("confirmation") << u"Shall I?"_s << QByteArray(R"({"confirm_ask":true})")
                                      << u"Shall I?"_s << QStringList{u"Yes"_s, u"No"_s};
        QTest::newRow("error") << u"It broke."_s << QByteArray(R"({"error":"no disk"})")
                               << u"It broke."_s
                               << QStringList{u"Try again"_s, u"Skip and continue"_s,
                                              u"Try another way"_s};
        QTest::newRow("none") << u"Good."_s << QByteArray("{}") << u"Good."_s << QStringList();
    }
    void offered() {
        QFETCH(QString, text);
        QFETCH(QByteArray, metadata);
        StoreFixture f;
        f.history(kivChat,
                  "[" + rowJson(1, u"user"_s, u"hello"_s) + "," + answerWith(text, metadata) + "]");
        QVERIFY(f.signIn());
        QTEST(labels(f, 1), "chips");
        QTEST(f.msgs().index(1).data(MessageModel::BodyRole).toString(), "bubble");
        QCOMPARE(f.msgs().index(1).data(MessageModel::RawTextRole).toString(), text);
        QVERIFY(labels(f, 0).isEmpty());
    }

    void onlyUnderAFinishedLatestAnswer() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->chat()->send(u"hello"_s);
        f.row(2, u"Which one?\nOPTIONS: Red | Bl"_s);
        SOON_COMPARE(f.msgs().count(), 3);
        QCOMPARE(f.msgs().index(2).data(MessageModel::BodyRole).toString(), u"Which one?"_s);
        QVERIFY(labels(f, 2).isEmpty());
        f.row(2, u"Which one?\nOPTIONS: Red | Blue"_s);
        SOON_VERIFY(f.texts().last().endsWith(u"Blue"_s));
        QVERIFY(labels(f, 2).isEmpty());
        f.clock.advance(1200ms);
        QCOMPARE(labels(f, 2), (QStringList{u"Red"_s, u"Blue"_s}));
        // Also from another device a question puts an end to them.
        f.row(3, u"from the phone"_s, u"user"_s);
        SOON_COMPARE(f.msgs().count(), 4);
        QVERIFY(labels(f, 2).isEmpty());
    }

    void picked() {
        StoreFixture f;
        f.history(kivChat, "[" +
                               answerWith(u"Hello."_s,
                                          R"({"starters":[{"label":"Plan","prompt":"Show the plan"},
                                     {"label":"Costs","prompt":"Show the costs"}]})") +
                               "]");
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"half a thought"_s);
        const QString id = f.msgs().index(0).data(MessageModel::MessageIdRole).toString();
        f.store->chat()->pickChip(id, chipsOf(f, 0).at(1));
        QCOMPARE(f.texts(), (QStringList{u"Hello."_s, u"Show the costs"_s}));
        QCOMPARE(f.msgs().messages().first().chipsChosen, u"Costs"_s);
        QVERIFY(labels(f, 0).isEmpty());
        QCOMPARE(f.store->chat()->draft(), u"half a thought"_s);
        SOON_COMPARE(f.backend.count(u"POST "_s + kivChat), 1);

        // The row may still come anew.
        f.row(2, u"Hello!"_s);
        SOON_COMPARE(f.texts().first(), u"Hello!"_s);
        QCOMPARE(f.msgs().messages().first().chipsChosen, u"Costs"_s);
    }

    void openBlockOfAFinishedAnswer() {
        StoreFixture f;
        const QString text = u"Look:\n```view\n{\"kind\":\"kpi\",\"it"_s;
        f.history(kivChat, "[" + rowJson(2, u"assistant"_s, text) + "]");
        QVERIFY(f.signIn());
        QCOMPARE(f.msgs().index(0).data(MessageModel::BodyRole).toString(), text);
    }

    void startersOfTheScope() {
        StoreFixture f;
        ScopeRoom *scope = f.store->scope();
        QVERIFY(f.bootSignedOut());
        QVERIFY(scope->starters().isEmpty());
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"ada@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(scope->starters().first(), u"What did the agents do overnight?"_s);
        scope->enterProject(u"ferry"_s);
        QCOMPARE(scope->starters().at(1), u"What's blocked in Night Ferry?"_s);
        scope->pickAgent(u"ferry"_s, u"scout"_s);
        QCOMPARE(scope->starters().at(1), u"Where is Scout stuck?"_s);
    }
};

QTEST_GUILESS_MAIN(RepliesTest)
#include "RepliesTest.moc"
