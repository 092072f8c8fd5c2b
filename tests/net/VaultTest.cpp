// Where the session is kept: the key chain in all its moods, the file, and the way between them.

#include "net/PersistentCookieJar.h"
#include "support/Damage.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QNetworkCookie>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

#include <deque>

using namespace kiv;
using namespace kiv::net;
using namespace Qt::StringLiterals;
using Outcome = SecretStore::Outcome;

namespace {

/// A key chain that answers when the test says so. What it holds outlives a program.
class ScriptedSecrets : public SecretStore {
public:
    enum class Mood { Works, Hangs, Refuses };

    void read(Answer answer) override {
        ++reads;
        m_asked.push_back([this, answer] {
            if (mood == Mood::Refuses)
                answer(Outcome::Failed, {});
            else
                answer(secret.isEmpty() ? Outcome::NotFound : Outcome::Done, secret);
        });
    }
    void write(const QByteArray &written, Answer answer) override {
        m_asked.push_back([this, written, answer] {
            if (mood == Mood::Works)
                secret = written;
            answer(mood == Mood::Works ? Outcome::Done : Outcome::Failed, {});
        });
    }
    void remove() override {
        m_asked.push_back([this] { secret.clear(); });
    }

    /// Answers what was asked, unless it hangs.
    void answer() {
        while (mood != Mood::Hangs && !m_asked.empty()) {
            const auto next = std::move(m_asked.front());
            m_asked.pop_front();
            next();
        }
    }
    bool holds(const QByteArray &text) const { return secret.contains(text); }

    Mood mood = Mood::Works;
    QByteArray secret;
    int reads = 0;

private:
    std::deque<std::function<void()>> m_asked;
};

using Mood = ScriptedSecrets::Mood;
const QUrl server(u"https://kiv.example"_s);

} // namespace

class VaultTest : public QObject {
    Q_OBJECT

private:
    /// One run of the program after another, with the same file and the same key chain.
    struct Runs {
        QTemporaryDir folder;
        test::ManualClock clock;
        ScriptedSecrets secrets;
        std::unique_ptr<PersistentCookieJar> jar;

        void start() { jar = std::make_unique<PersistentCookieJar>(path(), &clock, &secrets); }
        void end() { jar.reset(); }
        void signIn(const QByteArray &value, const QByteArray &name = "sid") {
            QNetworkCookie cookie(name, value);
            jar->setCookiesFromUrl({cookie}, server);
            QCoreApplication::processEvents(); // the jar saves once for all that came
        }
        void signOut() {
            QNetworkCookie cookie("sid", "");
            cookie.setExpirationDate(QDateTime::fromSecsSinceEpoch(1));
            jar->setCookiesFromUrl({cookie}, server);
            QCoreApplication::processEvents();
        }
        QString path() const { return folder.filePath(u"cookies"_s); }
        QByteArray session() const {
            for (const QNetworkCookie &cookie : jar->cookiesForUrl(server)) {
                if (cookie.name() == "sid")
                    return cookie.value();
            }
            return {};
        }
        /// When what is being written is written.
        bool fileHolds(const QByteArray &text) const {
            for (int writing = 0; writing < 2; ++writing) {
                QThreadPool::globalInstance()->waitForDone();
                QCoreApplication::processEvents();
            }
            QFile file(path());
            return file.open(QIODevice::ReadOnly) && file.readAll().contains(text);
        }
        /// A first run with a key chain that works leaves the session in there.
        void keepInChain(const QByteArray &value) {
            start();
            signIn(value);
            secrets.answer();
            end();
        }
    };

private Q_SLOTS:
    void theChainTakesTheSession() {
        Runs at;
        at.keepInChain("first");
        QVERIFY(at.secrets.holds("first"));
        QVERIFY(!at.fileHolds("first"));

        at.start();
        QVERIFY(at.jar->isWaiting());
        QCOMPARE(at.session(), ""_ba);
        QSignalSpy settled(at.jar.get(), &PersistentCookieJar::settled);
        at.secrets.answer();
        QCOMPARE(settled.size(), 1);
        QVERIFY(!at.jar->isWaiting());
        QCOMPARE(at.session(), "first"_ba);
        // One that works is trusted: a newer session is never in the file.
        at.signIn("second");
        QVERIFY(!at.fileHolds("second"));
        at.secrets.answer();
        QVERIFY(at.secrets.holds("second"));
        QCOMPARE(at.clock.pending(), 0);
    }

    void nobodyWaitsWhereThereIsNothingToWaitFor() {
        Runs at;
        at.start();
        QVERIFY(!at.jar->isWaiting());
        QCOMPARE(at.secrets.reads, 0);
    }

    void theFileMovesIntoTheChain_data() {
        QTest::addColumn<Mood>("mood");
        QTest::addColumn<bool>("moved");
        QTest::newRow("one that works") << Mood::Works << true;
        QTest::newRow("one that hangs") << Mood::Hangs << false;
        QTest::newRow("one that refuses") << Mood::Refuses << false;
    }
    void theFileMovesIntoTheChain() {
        QFETCH(Mood, mood);
        QFETCH(bool, moved);
        Runs at;
        {
            PersistentCookieJar earlier(at.path());
            earlier.setCookiesFromUrl({QNetworkCookie("sid", "old")}, server);
        }
        QVERIFY(at.fileHolds("old"));
        at.secrets.mood = mood;
        at.start();
        QVERIFY(!at.jar->isWaiting()); // the session is there at once
        QCOMPARE(at.session(), "old"_ba);
        at.secrets.answer();
        at.clock.advance(SessionVault::patience);
        at.end();
        QCOMPARE(at.fileHolds("old"), !moved);
        QCOMPARE(at.secrets.holds("old"), moved);
        at.start();
        at.secrets.answer();
        QCOMPARE(at.session(), "old"_ba);
    }

    void whatTheChainDoesNotTakeStaysInTheFile_data() {
        QTest::addColumn<Mood>("mood");
        QTest::addColumn<bool>("ended"); // before anybody could notice
        QTest::newRow("hangs") << Mood::Hangs << false;
        QTest::newRow("hangs to the end") << Mood::Hangs << true;
        QTest::newRow("refuses") << Mood::Refuses << false;
        QTest::newRow("refuses too late") << Mood::Refuses << true;
    }
    void whatTheChainDoesNotTakeStaysInTheFile() {
        QFETCH(Mood, mood);
        QFETCH(bool, ended);
        Runs at;
        at.keepInChain("first");
        at.start();
        at.secrets.answer();
        at.secrets.mood = mood;
        at.signIn("second");
        if (!ended) {
            at.secrets.answer();
            at.clock.advance(SessionVault::patience);
        }
        at.end();
        QVERIFY(at.fileHolds("second"));
        at.start();
        QVERIFY(!at.jar->isWaiting());
        QCOMPARE(at.session(), "second"_ba);
    }

    void aChainThatAnswersLateIsUsedAgain() {
        Runs at;
        at.start();
        at.secrets.mood = Mood::Hangs;
        at.signIn("first");
        at.clock.advance(SessionVault::patience);
        at.signIn("second");
        QVERIFY(at.fileHolds("second"));
        at.secrets.mood = Mood::Works;
        at.secrets.answer();
        QVERIFY(at.secrets.holds("second"));
        QVERIFY(!at.fileHolds("second"));
    }

    /// Nobody is signed out by a chain that cannot be read.
    void anUnreadChainIsLeftAlone_data() {
        QTest::addColumn<Mood>("mood");
        QTest::newRow("hangs") << Mood::Hangs;
        QTest::newRow("locked") << Mood::Refuses;
    }
    void anUnreadChainIsLeftAlone() {
        QFETCH(Mood, mood);
        Runs at;
        at.keepInChain("first");
        at.secrets.mood = mood;
        at.start();
        QSignalSpy settled(at.jar.get(), &PersistentCookieJar::settled);
        at.secrets.answer();
        at.clock.advance(SessionVault::patience);
        QCOMPARE(settled.size(), 1);
        QCOMPARE(at.session(), ""_ba);
        // The server greets somebody it does not know.
        at.signIn("en", "language");
        at.end();
        QVERIFY(at.secrets.holds("first"));

        at.secrets.mood = Mood::Works;
        at.start();
        at.secrets.answer();
        QCOMPARE(at.session(), "first"_ba);
    }

    void aLateAnswerIsTold() {
        Runs at;
        at.keepInChain("first");
        at.secrets.mood = Mood::Hangs;
        at.start();
        QSignalSpy joined(at.jar.get(), &PersistentCookieJar::joined);
        at.clock.advance(SessionVault::patience);
        QVERIFY(!at.jar->isWaiting());
        at.secrets.mood = Mood::Works;
        at.secrets.answer(); // somebody has unlocked it
        QCOMPARE(joined.size(), 1);
        QCOMPARE(at.session(), "first"_ba);
    }

    void aNewerSessionWinsOverALateAnswer() {
        Runs at;
        at.keepInChain("first");
        at.secrets.mood = Mood::Hangs;
        at.start();
        at.clock.advance(SessionVault::patience);
        at.signIn("second");
        QVERIFY(at.fileHolds("second"));
        at.secrets.mood = Mood::Works;
        at.secrets.answer();
        QCOMPARE(at.session(), "second"_ba);
        QCoreApplication::processEvents();
        at.secrets.answer();
        at.end();
        QVERIFY(at.secrets.holds("second") && !at.secrets.holds("first"));
        QVERIFY(!at.fileHolds("second"));
    }

    void signingOutLeavesNothing_data() {
        QTest::addColumn<bool>("answered"); // before the person signs out
        QTest::newRow("kept") << true;
        QTest::newRow("on its way") << false;
    }
    void signingOutLeavesNothing() {
        QFETCH(bool, answered);
        Runs at;
        QThreadPool *pool = QThreadPool::globalInstance();
        QSemaphore disk;
        // Every thread has left the semaphore before it goes.
        const auto goOn = [&] {
            disk.release(pool->maxThreadCount());
            pool->waitForDone();
        };
        auto goesOn = qScopeGuard(goOn);
        for (int thread = 0; thread < pool->maxThreadCount(); ++thread)
            pool->start([&disk] { disk.acquire(); });
        at.start();
        at.signIn("first"); // waits for the disk
        if (answered)
            at.secrets.answer();
        at.signOut();
        QVERIFY(!QFile::exists(at.path()));
        goesOn.dismiss();
        goOn();
        at.secrets.answer();
        at.end();
        QCOMPARE(at.secrets.secret, ""_ba);
        QVERIFY(!QFile::exists(at.path()));
        at.start();
        QVERIFY(!at.jar->isWaiting());
    }

    /// Whatever stands in the file's place, it is set aside, the next session is kept, and signing
    /// out leaves no copy of a credential.
    void aDamagedFileIsSetAside_data() {
        QTest::addColumn<int>("damage");
        for (int i = 0; i < test::damages().size(); ++i)
            QTest::newRow(test::damages().at(i).name) << i;
    }
    void aDamagedFileIsSetAside() {
        QFETCH(int, damage);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"cookies"_s);
        {
            PersistentCookieJar jar(path);
            jar.setCookiesFromUrl({QNetworkCookie("sid", "first")}, server);
        }
        test::damages().at(damage).strike(path);
        {
            PersistentCookieJar jar(path);
            QCOMPARE(jar.setAside(), path + u".damaged"_s);
            QVERIFY(jar.cookiesForUrl(server).isEmpty());
            jar.setCookiesFromUrl({QNetworkCookie("sid", "second")}, server);
        }
        PersistentCookieJar jar(path);
        QCOMPARE(jar.setAside(), QString());
        QCOMPARE(jar.cookiesForUrl(server).value(0).value(), "second"_ba);
        jar.clear();
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
    }

    /// The file said whether the chain has the session: without it, the chain is asked.
    void theChainIsAskedWhenTheFileIsDamaged() {
        Runs at;
        at.keepInChain("first");
        test::putContent(at.path(), "{\"inKeyCh");
        at.start();
        QVERIFY(at.jar->isWaiting());
        at.secrets.answer();
        QCOMPARE(at.session(), "first"_ba);
    }

    void aSessionThatCannotBeSavedIsTold() {
        const QTemporaryDir folder;
        test::putContent(folder.filePath(u"file"_s), {});
        PersistentCookieJar jar(folder.filePath(u"file/cookies"_s));
        QSignalSpy written(&jar, &PersistentCookieJar::written);
        jar.setCookiesFromUrl({QNetworkCookie("sid", "first")}, server);
        QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, kiv::test::diskPatience);
        QVERIFY(!written.first().first().toString().isEmpty());
        QFile::remove(folder.filePath(u"file"_s));
        jar.save();
        QTRY_COMPARE_WITH_TIMEOUT(written.last().first().toString(), QString(),
                                  kiv::test::diskPatience);
    }

    void answersMayOutliveTheProgram() {
        Runs at;
        at.keepInChain("first");
        at.start();
        at.end();
        at.secrets.answer();
        QVERIFY(at.secrets.holds("first"));
    }
};

int main(int argc, char **argv) {
    kiv::test::becomeOrdinaryUser();
    QCoreApplication application(argc, argv);
    VaultTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "VaultTest.moc"
