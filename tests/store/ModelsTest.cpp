// Every list of the store keeps the promises of a list model while it changes.

#include "store/EventModel.h"
#include "store/HistoryModel.h"
#include "store/MessageModel.h"
#include "store/RailModel.h"
#include "support/ManualClock.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::store;

namespace {

Msg stored(qint64 id, const QString &text) {
    Msg message = localMsg(Who::Agent, text);
    message.serverID = id;
    return message;
}

} // namespace

class ModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messages() {
        MessageModel model;
        FeedModel feed(&model);
        feed.setWindow(3);
        const QAbstractItemModelTester messagesTester(&model);
        const QAbstractItemModelTester feedTester(&feed);
        for (int id = 1; id <= 5; ++id)
            model.append(stored(id, QString::number(id)));
        QCOMPARE(feed.rowCount(), 3);
        QVERIFY(feed.hasOlder());
        QCOMPARE(feed.index(0, 0).data(MessageModel::BodyRole).toString(), u"3"_s);

        // A reload that brings the same rows keeps them, whatever changes around them.
        const QUuid second = model.messages().at(1).id;
        const QPersistentModelIndex fifth = model.index(4);
        model.replaceAll({stored(9, u"9"_s), stored(2, u"2"_s), stored(3, u"3"_s),
                          stored(8, u"8"_s), stored(7, u"7"_s), stored(5, u"5"_s)});
        QCOMPARE(fifth.row(), 5);
        model.replaceAll({stored(5, u"5"_s), stored(2, u"2"_s), stored(1, u"1"_s)});
        QCOMPARE(model.count(), 3);
        QCOMPARE(model.messages().at(0).text, u"5"_s);
        model.replaceAll({stored(1, u"1"_s), stored(2, u"2, longer"_s), stored(6, u"6"_s)});
        QCOMPARE(model.count(), 3);
        QCOMPARE(model.messages().at(1).id, second);
        QCOMPARE(model.messages().at(1).text, u"2, longer"_s);
        QCOMPARE(feed.rowCount(), 3);
        QVERIFY(!feed.hasOlder());
        model.remove(0);
        model.setGrowing(second);
        model.setOnCanvas(second);
        QVERIFY(model.index(0).data(MessageModel::GrowingRole).toBool());
        model.replaceAll({});
        QCOMPARE(feed.rowCount(), 0);
    }

    void history() {
        HistoryModel model;
        const QAbstractItemModelTester tester(&model);
        for (int drawn = 0; drawn < 25; ++drawn)
            model.record({.query = QString::number(drawn)});
        QVERIFY(model.amend(model.at(3).id, {.query = u"amended"_s}));
        QCOMPARE(model.index(3).data(HistoryModel::QueryRole).toString(), u"amended"_s);
        QVERIFY(!model.amend(QUuid(), {}));
        model.clear();
        QCOMPARE(model.count(), 0);
    }

    void events() {
        test::ManualClock clock;
        EventModel model(clock);
        const QAbstractItemModelTester tester(&model);
        const auto ageOf = [&](qint64 seconds) {
            const QString at = clock.now().addSecs(-seconds).toString(Qt::ISODateWithMs);
            model.replaceAll({{.createdAt = at}});
            return model.index(0).data(EventModel::AgeRole).toString();
        };
        QCOMPARE(ageOf(-5), u"now"_s);
        QCOMPARE(ageOf(59), u"now"_s);
        QCOMPARE(ageOf(60), u"1 m"_s);
        QCOMPARE(ageOf(3599), u"59 m"_s);
        QCOMPARE(ageOf(3600), u"1 h"_s);
        QCOMPARE(ageOf(47 * 3600), u"1 d"_s);
        clock.advance(std::chrono::hours(1));
        QCOMPARE(model.index(0).data(EventModel::AgeRole).toString(), u"2 d"_s);

        // What the server leaves out or writes in its own way stays empty.
        model.replaceAll({{.kind = u"note"_s, .createdAt = u"yesterday"_s}, {}});
        QCOMPARE(model.index(0).data(EventModel::AgeRole).toString(), QString());
        QCOMPARE(model.index(0).data(EventModel::TitleRole).toString(), u"note"_s);
        QCOMPARE(model.index(1).data(EventModel::TitleRole).toString(), QString());
    }

    void tones_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<EventTone>("tone");
        QTest::newRow("done") << u"task_done"_s << EventTone::Good;
        QTest::newRow("release") << u"Release"_s << EventTone::Good;
        QTest::newRow("alert") << u"alert"_s << EventTone::Bad;
        QTest::newRow("failed") << u"run.failed"_s << EventTone::Bad;
        QTest::newRow("to be approved") << u"approval_needed"_s << EventTone::Warning;
        QTest::newRow("approved") << u"approved"_s << EventTone::Good;
        QTest::newRow("else") << u"comment"_s << EventTone::Neutral;
        QTest::newRow("nothing") << QString() << EventTone::Neutral;
    }
    void tones() {
        QFETCH(QString, kind);
        QTEST(toneOf(kind), "tone");
    }

    void rail() {
        RailModel model;
        RailView view(&model);
        ScopeChoices choices(&model);
        const QAbstractItemModelTester modelTester(&model);
        const QAbstractItemModelTester viewTester(&view);
        const QAbstractItemModelTester choicesTester(&choices);
        const QList<Project> projects{{u"ferry"_s,
                                       u"Night Ferry"_s,
                                       u"2 agents"_s,
                                       {},
                                       {{u"scout"_s, u"Scout"_s, u"Research"_s, {}},
                                        {u"loom"_s, u"Loom"_s, u"Design"_s, {}}}}};
        const QList<Agent> standalone{{u"ledger"_s, u"Ledger"_s, u"Finance"_s, {}}};
        model.setEntries(projects, standalone);
        QCOMPARE(view.rowCount(), 5); // KIV, label, project, label, agent
        model.toggleExpanded(u"ferry"_s);
        QCOMPARE(view.rowCount(), 7);
        model.toggleExpanded(u"ferry"_s);
        QCOMPARE(view.rowCount(), 5);
        model.select(u"ferry"_s, u"loom"_s);
        QCOMPARE(view.rowCount(), 7);
        QCOMPARE(view.index(4, 0).data(RailModel::NameRole).toString(), u"Loom"_s);
        QVERIFY(view.index(4, 0).data(RailModel::SelectedRole).toBool());
        QVERIFY(!view.index(2, 0).data(RailModel::SelectedRole).toBool());
        // What comes as it was leaves the rows as they are.
        const QPersistentModelIndex loom = view.index(4, 0);
        model.setEntries(projects, standalone);
        QVERIFY(loom.isValid());
        choices.setQuery(u" des"_s);
        QCOMPARE(choices.rowCount(), 1);
        choices.setQuery(QString());
        QCOMPARE(choices.rowCount(), 7);
    }

    /// The current project before the others, which keep their order; a rail that comes does, too.
    void railOrder() {
        RailModel model;
        RailView view(&model);
        const QAbstractItemModelTester modelTester(&model);
        const QAbstractItemModelTester viewTester(&view);
        const auto order = [&view] {
            QStringList ids;
            for (int row = 2; row < view.rowCount(); ++row)
                ids.append(view.index(row, 0).data(RailModel::EntryIdRole).toString());
            return ids.join(u' ');
        };
        const auto selected = [&view] {
            return view.index(view.selectedRow(), 0).data(RailModel::EntryIdRole).toString();
        };
        QList<Project> projects{{u"a"_s, {}, {}, {}, {{u"a1"_s, {}, {}, {}}}},
                                {u"b"_s, {}, {}, {}, {{u"b1"_s, {}, {}, {}}}},
                                {u"c"_s, {}, {}, {}, {}}};
        const QList<Agent> standalone{{u"alone"_s, {}, {}, {}}};
        model.setEntries(projects, standalone);
        model.select(u"b"_s, u"b1"_s);
        QCOMPARE(order(), u"b b1 a c agent alone"_s);
        QCOMPARE(selected(), u"b1"_s);
        model.select(u"c"_s, {});
        QCOMPARE(order(), u"c a b b1 agent alone"_s);
        projects.prepend({u"new"_s, {}, {}, {}, {}});
        model.setEntries(projects, standalone);
        QCOMPARE(order(), u"c new a b b1 agent alone"_s);
        QCOMPARE(selected(), u"c"_s);
        model.select({}, u"alone"_s);
        QCOMPARE(order(), u"new a b b1 c agent alone"_s);
        QCOMPARE(selected(), u"alone"_s);
        model.select(u"gone"_s, {});
        QCOMPARE(order(), u"new a b b1 c agent alone"_s);
        QCOMPARE(view.selectedRow(), -1);
    }
};

QTEST_GUILESS_MAIN(ModelsTest)
#include "ModelsTest.moc"
