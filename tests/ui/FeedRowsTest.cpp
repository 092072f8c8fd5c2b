#include "ui/chat/FeedRows.h"
#include "store/MessageModel.h"
#include "support/ManualClock.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

namespace {

using Kind = FeedDelegate::Kind;
using store::Msg;
using store::Who;

/// Everything that a model says of its rows, in words.
class Listener : public QObject {
public:
    explicit Listener(const QAbstractItemModel &model) {
        using Model = QAbstractItemModel;
        connect(&model, &Model::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) { add(u'+', first, last); });
        connect(&model, &Model::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) { add(u'-', first, last); });
        connect(&model, &Model::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last) {
                    add(u'~', first.row(), last.row());
                });
        connect(&model, &Model::modelReset, this, [this] { m_said.append(u"reset"_s); });
    }

    QString said() { return std::exchange(m_said, {}).join(u' '); }

private:
    void add(QChar what, int first, int last) {
        m_said.append(what + QString::number(first) +
                      (last > first ? u'-' + QString::number(last) : QString()));
    }
    QStringList m_said;
};

Msg said(Who who, const QString &text, const QDateTime &at = {}) {
    Msg message = store::localMsg(who, text);
    if (at.isValid())
        message.at = at;
    return message;
}

} // namespace

/// What the model of a feed's rows says of them while messages come, grow and go.
class FeedRowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC"); }
    void init();
    void answerGrows_data();
    void answerGrows();
    void answerEnds();
    void messagesComeAndGo();
    void unreadLine();
    void daysMoveOn();

private:
    QList<Kind> kinds() const;
    void grow(const QString &text);

    std::unique_ptr<test::ManualClock> m_clock;
    std::unique_ptr<store::Calendar> m_calendar;
    std::unique_ptr<store::MessageModel> m_messages;
    std::unique_ptr<FeedRows> m_rows;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<Listener> m_listener;
};

void FeedRowsTest::init() {
    m_listener.reset();
    m_tester.reset();
    m_rows.reset();
    m_calendar.reset();
    m_clock = std::make_unique<test::ManualClock>();
    m_calendar = std::make_unique<store::Calendar>(*m_clock);
    m_messages = std::make_unique<store::MessageModel>();
    m_rows = std::make_unique<FeedRows>();
    m_rows->setCalendar(m_calendar.get());
    m_rows->setMessages(m_messages.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_rows.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_listener = std::make_unique<Listener>(*m_rows);
}

QList<Kind> FeedRowsTest::kinds() const {
    QList<Kind> kinds;
    for (int row = 0; row < m_rows->rowCount(); ++row)
        kinds.append(m_rows->at(row).kind);
    return kinds;
}

void FeedRowsTest::grow(const QString &text) {
    const Msg &shown = m_messages->messages().last();
    Msg grown = said(Who::Agent, text);
    grown.id = shown.id;
    m_messages->update(m_messages->count() - 1, grown);
    m_messages->setGrowing(grown.id);
}

void FeedRowsTest::answerGrows_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");
    // Of the answer, row 0 is its head and the last one its tail.
    QTest::newRow("a word") << u"One\n\nTwo"_s << u"One\n\nTwo more"_s << u"~2"_s;
    QTest::newRow("nothing") << u"One\n\nTwo"_s << u"One\n\nTwo"_s << QString();
    QTest::newRow("a block") << u"One\n\nTwo"_s << u"One\n\nTwo\n\n# Three"_s << u"+3 ~2"_s;
    QTest::newRow("an item") << u"One\n\n- a"_s << u"One\n\n- a\n- b"_s << u"~2"_s;
    QTest::newRow("a line of code") << u"```\na"_s << u"```\na\nb"_s << u"~1"_s;
    QTest::newRow("a table row") << u"|a|\n|---|\n|1|"_s << u"|a|\n|---|\n|1|\n|2|"_s << u"~1"_s;
    QTest::newRow("words become a table") << u"|a|\n|--"_s << u"|a|\n|---|"_s << u"-1-2 +1"_s;
    QTest::newRow("words become an item") << u"One\n\n-"_s << u"One\n\n- a"_s << u"-2 +2"_s;
}

void FeedRowsTest::answerGrows() {
    QFETCH(QString, before);
    QFETCH(QString, after);
    m_messages->append(said(Who::Agent, before));
    m_messages->setGrowing(m_messages->messages().last().id);
    m_listener->said();
    grow(after);
    QTEST(m_listener->said(), "expected");
    QVERIFY(m_rows->at(m_rows->rowCount() - 2).growing);
    QVERIFY(m_rows->at(m_rows->rowCount() - 2).last);
}

void FeedRowsTest::answerEnds() {
    m_messages->append(said(Who::Agent, u"One\n\nTwo\n\n---"_s));
    m_messages->setGrowing(m_messages->messages().last().id);
    QVERIFY(m_rows->at(3).growing);
    m_listener->said();
    m_messages->setGrowing({});
    QCOMPARE(m_listener->said(), u"~3 ~4"_s);
    QVERIFY(!m_rows->at(3).growing);
    m_messages->setOnCanvas(m_messages->messages().last().id);
    QCOMPARE(m_listener->said(), u"~4"_s);
}

void FeedRowsTest::messagesComeAndGo() {
    m_messages->append(said(Who::You, u"Well?"_s));
    m_messages->append(said(Who::Agent, u"# One\n\nTwo"_s));
    QCOMPARE(m_listener->said(), u"+0-1 +2-5"_s);
    m_rows->setOlderBefore(true);
    QCOMPARE(m_listener->said(), u"+0"_s);
    QCOMPARE(kinds(), (QList<Kind>{Kind::Older, Kind::Own, Kind::Tail, Kind::Head, Kind::Heading,
                                   Kind::Paragraph, Kind::Tail}));
    // The link goes to the message that is the first now.
    m_messages->remove(0);
    QCOMPARE(m_listener->said(), u"-0-2 +0"_s);
    m_messages->replaceAll({});
    QCOMPARE(m_rows->rowCount(), 0);
}

void FeedRowsTest::unreadLine() {
    for (const QString &text : {u"One"_s, u"Two"_s, u"Three"_s})
        m_messages->append(said(Who::Agent, text));
    const auto idOf = [this](int row) {
        return m_messages->messages().at(row).id.toString(QUuid::WithoutBraces);
    };
    m_listener->said();
    m_rows->setUnreadFrom(idOf(1));
    QCOMPARE(m_listener->said(), u"+3"_s);
    QCOMPARE(m_rows->at(3).kind, Kind::Unread);
    m_rows->setUnreadFrom(idOf(2));
    QCOMPARE(m_listener->said(), u"-3 +6"_s);
    m_rows->setUnreadFrom({});
    QCOMPARE(m_listener->said(), u"-6"_s);
}

void FeedRowsTest::daysMoveOn() {
    const QDateTime now = m_clock->now();
    m_messages->append(said(Who::Agent, u"One"_s, now.addDays(-1)));
    m_messages->append(said(Who::Agent, u"Two"_s, now));
    const auto labels = [this] {
        QStringList found;
        for (int row = 0; row < m_rows->rowCount(); ++row) {
            if (m_rows->at(row).kind == Kind::Day)
                found.append(m_rows->at(row).label);
        }
        return found;
    };
    QCOMPARE(labels(), (QStringList{u"Yesterday"_s, u"Today"_s}));
    m_listener->said();
    const auto untilMidnight = std::chrono::milliseconds(
        now.msecsTo(QDateTime(now.date().addDays(1), QTime(0, 0), Qt::UTC)));
    m_clock->advance(untilMidnight - 1ms);
    QCOMPARE(m_listener->said(), QString());
    m_clock->advance(1ms);
    QCOMPARE(labels(), (QStringList{u"Sunday, 1 March"_s, u"Yesterday"_s}));
    QCOMPARE(m_listener->said(), u"~0 ~4"_s);
    m_clock->advance(24h);
    QCOMPARE(labels(), (QStringList{u"Sunday, 1 March"_s, u"Monday, 2 March"_s}));
}

} // namespace kiv::ui

QTEST_GUILESS_MAIN(kiv::ui::FeedRowsTest)
#include "FeedRowsTest.moc"
