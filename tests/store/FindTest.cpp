// Finding words in the conversation, while it goes on.

#include "StoreFixture.h"
#include "support/WorkingTime.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::rowJson;
using test::StoreFixture;

namespace {

/// A store whose conversation is searched.
class FindFixture : public StoreFixture {
public:
    bool begin(const QByteArrayList &rows) {
        history(kivChat, '[' + rows.join(',') + ']');
        if (!signIn())
            return false;
        find().open();
        return find().isShown();
    }
    FindRoom &find() { return *store->find(); }
    bool look(const QString &words, const QString &from = {}) {
        find().look(words, from);
        return test::soon([this] { return !find().isSearching(); });
    }
    /// "2 of 3 in row 0 at 1.0 4+5"
    QString state() {
        QString state = u"%1 of %2"_s.arg(find().place()).arg(find().count());
        if (const text::WordPlace *at = find().current())
            state += u" in row %1 at %2.%3 %4+%5"_s
                         .arg(msgs().rowOf(QUuid::fromString(find().currentMessage())))
                         .arg(at->part)
                         .arg(at->line)
                         .arg(at->start)
                         .arg(at->length);
        return state;
    }
    QString idOf(int row) { return msgs().messages().at(row).id.toString(QUuid::WithoutBraces); }
};

} // namespace

class FindTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void steps() {
        FindFixture f;
        QVERIFY(f.begin({rowJson(1, u"user"_s, u"**Sails** or hull?"_s),
                         rowJson(2, u"assistant"_s, u"# Hull\n\nThe **hu**ll first."_s)}));
        QVERIFY(f.store->layout()->dockOpen());
        QSignalSpy stepped(&f.find(), &FindRoom::stepped);
        QVERIFY(f.look(u"hull"_s));
        // Nothing says where the person is: the newest.
        QCOMPARE(f.state(), u"3 of 3 in row 1 at 1.0 4+4"_s);
        QCOMPARE(stepped.count(), 1);
        f.find().next();
        QCOMPARE(f.state(), u"1 of 3 in row 0 at 0.0 13+4"_s);
        f.find().previous();
        f.find().previous();
        QCOMPARE(f.state(), u"2 of 3 in row 1 at 0.0 0+4"_s);
        QCOMPARE(stepped.count(), 4);
        const auto marks = f.find().foundIn(f.idOf(1), 1);
        QCOMPARE(marks, (QList<text::WordPlace>{{1, 0, 4, 4}}));
        QVERIFY(f.find().foundIn(f.idOf(0), 1).isEmpty());

        // Words that grow keep the place; others that are not there leave nothing.
        QVERIFY(f.look(u"hul"_s));
        QCOMPARE(f.state(), u"2 of 3 in row 1 at 0.0 0+3"_s);
        QVERIFY(f.look(u"*"_s));
        QCOMPARE(f.state(), u"1 of 4 in row 0 at 0.0 0+1"_s);
        QVERIFY(f.look(u"mast"_s));
        QCOMPARE(f.state(), u"0 of 0"_s);
        f.find().next();
        QCOMPARE(f.state(), u"0 of 0"_s);

        f.store->layout()->toggleDock();
        QVERIFY(!f.find().isShown());
    }

    void beginsWhereOneReads() {
        FindFixture f;
        QVERIFY(f.begin({rowJson(1, u"user"_s, u"one"_s), rowJson(2, u"user"_s, u"two"_s),
                         rowJson(3, u"user"_s, u"one"_s), rowJson(4, u"user"_s, u"one"_s)}));
        QVERIFY(f.look(u"one"_s, f.idOf(1)));
        QCOMPARE(f.state(), u"2 of 3 in row 2 at 0.0 0+3"_s);
        QVERIFY(f.look(u"two"_s, f.idOf(3)));
        QCOMPARE(f.state(), u"1 of 1 in row 1 at 0.0 0+3"_s);
    }

    void conversationGoesOn() {
        FindFixture f;
        QVERIFY(f.begin({rowJson(1, u"user"_s, u"one"_s), rowJson(2, u"user"_s, u"one"_s)}));
        QVERIFY(f.look(u"one"_s, f.idOf(0)));
        QSignalSpy stepped(&f.find(), &FindRoom::stepped);
        f.row(3, u"One"_s);
        SOON_COMPARE(f.state(), u"1 of 3 in row 0 at 0.0 0+3"_s);
        f.row(3, u"One and one"_s);
        SOON_COMPARE(f.state(), u"1 of 4 in row 0 at 0.0 0+3"_s);
        // Nobody is taken anywhere by what comes in.
        QCOMPARE(stepped.count(), 0);

        f.find().next();
        f.find().next();
        QCOMPARE(f.state(), u"3 of 4 in row 2 at 0.0 0+3"_s);
        f.msgs().remove(0);
        SOON_COMPARE(f.state(), u"2 of 3 in row 1 at 0.0 0+3"_s);

        // Another conversation is searched for the same.
        f.history(test::ferryChat, '[' + rowJson(9, u"user"_s, u"one more"_s) + ']');
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.state(), u"1 of 1 in row 0 at 0.0 0+3"_s);
        f.find().close();
        QCOMPARE(f.state(), u"0 of 0"_s);
        f.find().next();
        SOON_COMPARE(f.state(), u"1 of 1 in row 0 at 0.0 0+3"_s);
    }

    void longConversation() {
        FindFixture f;
        QByteArrayList rows;
        for (int i = 0; i < 2000; ++i)
            rows.append(rowJson(i + 1, i % 2 == 0 ? u"user"_s : u"assistant"_s,
                                u"**Line** %1 of the log, with a needle. "_s.arg(i).repeated(20)));
        QVERIFY(f.begin(rows));
        double start = test::workingTime();
        f.find().look(u"needle"_s, {});
        // The window is not held up meanwhile.
        QCOMPARE_LT(test::workingTime() - start, 0.033);
        SOON_COMPARE(f.find().count(), 40000);
        start = test::workingTime();
        QVERIFY(!f.find().foundIn(f.idOf(1999), 0).isEmpty());
        f.find().previous();
        QCOMPARE_LT(test::workingTime() - start, 0.033);
    }
};

QTEST_GUILESS_MAIN(FindTest)
#include "FindTest.moc"
