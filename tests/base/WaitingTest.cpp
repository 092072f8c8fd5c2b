// Waiting work: it goes on when its time comes, and unwinds when its owner gives it up.

#include "base/ChildProcess.h"
#include "base/SystemClock.h"
#include "base/Work.h"
#include "support/ManualClock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;

namespace {

/// Something that a coroutine holds while it waits.
struct Witness {
    int *unwound;
    ~Witness() { ++*unwound; }
};

struct Owner {
    Clock &clock;
    QStringList log;
    int unwound = 0;
    Work work;

    QCoro::Task<void> inner(Cancel cancel) {
        const Witness witness{&unwound};
        co_await clock.sleep(100ms, cancel);
        log.append(u"inner"_s);
    }
    QCoro::Task<void> outer(Cancel cancel) {
        const Witness witness{&unwound};
        co_await inner(cancel);
        co_await clock.sleep(100ms, cancel);
        log.append(u"outer"_s);
    }
    void start() {
        work.start([this](Cancel cancel) { return outer(std::move(cancel)); });
    }
    QCoro::Task<void> replaceItself(Cancel cancel) {
        const Witness witness{&unwound};
        work.restart([this](Cancel next) { return inner(std::move(next)); });
        co_await clock.sleep(1ms, cancel);
        log.append(u"never"_s);
    }
};

QCoro::Task<void> readFirstLine(QProcess *process, Clock *clock, QString *result, Cancel cancel) {
    try {
        *result = QString::fromUtf8(co_await startAndReadLine(process, clock, 5s, cancel));
    } catch (const ProcessError &error) {
        *result = u"failed: "_s + QString::fromUtf8(error.what());
    }
}

} // namespace

class WaitingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesOnInTime() {
        test::ManualClock clock;
        Owner owner{clock};
        owner.start();
        clock.advance(99ms);
        QVERIFY(owner.log.isEmpty());
        clock.advance(1ms);
        QCOMPARE(owner.log, QStringList{u"inner"_s});
        QVERIFY(owner.work.running());
        clock.advance(100ms);
        QCOMPARE(owner.log.size(), 2);
        QCOMPARE(owner.unwound, 2);
        QVERIFY(!owner.work.running());
    }

    void cancellingUnwindsAtOnce() {
        test::ManualClock clock;
        Owner owner{clock};
        owner.start();
        owner.start();
        owner.work.cancel();
        QCOMPARE(owner.unwound, 4);
        QCOMPARE(clock.pending(), 0);
        clock.advance(1s);
        QVERIFY(owner.log.isEmpty());
    }

    void workThatReplacesItself() {
        test::ManualClock clock;
        Owner owner{clock};
        owner.work.start([&](Cancel cancel) { return owner.replaceItself(std::move(cancel)); });
        QCOMPARE(owner.unwound, 1);
        clock.advance(1s);
        QCOMPARE(owner.log, QStringList{u"inner"_s});
    }

    void goneWithItsOwner() {
        test::ManualClock clock;
        int unwound = 0;
        {
            Work work;
            work.start([&](Cancel cancel) { return clock.sleep(1s, std::move(cancel)); });
            QCOMPARE(clock.pending(), 1);
            unwound = 1;
        }
        QCOMPARE(clock.pending(), 0);
        clock.advance(2s);
        QCOMPARE(unwound, 1);
    }

    /// Qt gives the number of a timer that fired to a later one before long: stopping the first
    /// must not stop the later one.
    void firedTimersStopNothing() {
        SystemClock clock;
        constexpr int numbers = 300;
        std::vector<Clock::Timer> fired;
        for (int i = 0; i < numbers; ++i) {
            bool isDue = false;
            fired.push_back(clock.after(0ms, [&] { isDue = true; }));
            while (!isDue)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        bool isDue = false;
        const Clock::Timer timer = clock.after(1ms, [&] { isDue = true; });
        fired.clear();
        QTRY_VERIFY_WITH_TIMEOUT(isDue, 1000);
    }

    void timersOfTheSystemClock() {
        SystemClock clock;
        QStringList log;
        auto first = clock.after(5ms, [&] { log.append(u"first"_s); });
        auto dropped = clock.after(1ms, [&] { log.append(u"dropped"_s); });
        auto replaced = clock.after(2ms, [&] { log.append(u"replaced"_s); });
        dropped.stop();
        replaced = clock.after(10ms, [&] { log.append(u"second"_s); });
        QTRY_COMPARE(log, (QStringList{u"first"_s, u"second"_s}));
    }

    void firstLineOfAProcess_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("begins");
        QTest::newRow("line") << u"echo ready; cat"_s << u"ready"_s;
        QTest::newRow("in pieces") << u"printf rea; sleep 0.05; echo dy; cat"_s << u"ready"_s;
        QTest::newRow("ends early") << u"exit 3"_s << u"failed"_s;
    }
    void firstLineOfAProcess() {
        QFETCH(QString, script);
        SystemClock clock;
        QProcess process;
        process.setProgram(u"/bin/sh"_s);
        process.setArguments({u"-c"_s, script});
        QString result;
        Work work;
        work.start([&](Cancel cancel) {
            return readFirstLine(&process, &clock, &result, std::move(cancel));
        });
        QFETCH(QString, begins);
        QTRY_VERIFY2(result.startsWith(begins), qPrintable(result));
        process.closeWriteChannel();
        process.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(WaitingTest)
#include "WaitingTest.moc"
