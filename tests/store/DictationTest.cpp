// Speaking into the draft: where words go, and that none is lost whatever ends dictation.

#include "StoreFixture.h"

#include "ScriptedVoice.h"
#include "store/SpokenWords.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivPost;
using test::StoreFixture;

namespace {

/// A store that hears and understands what the test says.
class DictationFixture : public StoreFixture {
public:
    DictationFixture() { plugIn(); }
    ~DictationFixture() { store.reset(); } // before what it hears with

    void plugIn() {
        store->dictation()->setService(&speech);
        store->microphone()->setSource(&microphones);
    }
    void dictate() {
        room()->toggleDictation();
        speech.authorise();
    }
    DictationRoom *room() { return store->dictation(); }
    QString draft() { return store->chat()->draft(); }
    bool isOff() {
        return !room()->dictating() && room()->dictationInterim().isEmpty() && speech.open == 0 &&
               microphones.openId.isNull();
    }

    test::ScriptedSpeech speech;
    test::ScriptedMicrophones microphones;
};

} // namespace

class DictationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void spacing_data() {
        QTest::addColumn<QString>("text"); // | is the caret
        QTest::addColumn<QString>("result");
        const auto row = [](const QString &text, const QString &result) {
            QTest::newRow(qUtf8Printable(text)) << text << result;
        };
        row(u"|"_s, u"two words"_s);
        row(u"Ask|"_s, u"Ask two words"_s);
        row(u"Ask |"_s, u"Ask two words"_s);
        row(u"Ask\n|"_s, u"Ask\ntwo words"_s);
        row(u"Ask:|"_s, u"Ask: two words"_s);
        row(u"(|"_s, u"(two words"_s);
        row(u"(see|)"_s, u"(see two words)"_s);
        row(u"say “|”"_s, u"say “two words”"_s);
        row(u"say \"|\" loud"_s, u"say \"two words\" loud"_s);
        row(u"the \"end\"|"_s, u"the \"end\" two words"_s);
        row(u"|more"_s, u"two words more"_s);
        row(u"| more"_s, u"two words more"_s);
        row(u"one|more"_s, u"one two words more"_s);
        row(u"one|, then"_s, u"one two words, then"_s);
        row(u"|?"_s, u"two words?"_s);
        row(u"Привет|мир"_s, u"Привет two words мир"_s);
    }
    void spacing() {
        QFETCH(QString, text);
        QFETCH(QString, result);
        const qsizetype caret = text.indexOf(u'|');
        text.remove(caret, 1);
        const QString words = spokenWords(u" two words "_s, text, caret);
        QCOMPARE(text.insert(caret, words), result);
        QCOMPARE(spokenWords(u"  "_s, u"some"_s, 4), QString());
    }

    void utterancesGoToTheCaret() {
        DictationFixture f;
        f.store->chat()->setDraft(u"Compare costs"_s);
        f.room()->setCaret(7);
        f.dictate();
        QVERIFY(f.room()->dictating());
        f.speech.interim(u"our Hosting"_s);
        QCOMPARE(f.room()->dictationInterim(), u"our Hosting"_s);
        QCOMPARE(f.room()->interimWords(), u" our Hosting"_s);
        QCOMPARE(f.draft(), u"Compare costs"_s);
        f.speech.finish(u"our Hosting"_s);
        QCOMPARE(f.room()->interimWords(), QString());
        f.speech.finish(u"and mail"_s);
        QCOMPARE(f.draft(), u"Compare our Hosting and mail costs"_s);

        // The person goes on typing elsewhere, and what is being spoken goes there.
        f.speech.interim(u"all"_s);
        f.store->chat()->setDraft(f.draft() + u" of"_s);
        f.room()->setCaret(static_cast<int>(f.draft().size()));
        f.speech.finish(u"all."_s);
        QCOMPARE(f.draft(), u"Compare our Hosting and mail costs of all."_s);
        f.room()->toggleDictation();
        QVERIFY(f.isOff());
    }

    void whateverEndsItKeepsTheWords_data() {
        QTest::addColumn<std::function<void(DictationFixture &)>>("end");
        QTest::addColumn<QString>("note");
        const auto row = [](const char *name, std::function<void(DictationFixture &)> end,
                            const QString &note = {}) { QTest::newRow(name) << end << note; };
        row("the button", [](DictationFixture &f) { f.room()->toggleDictation(); });
        row(
            "the recogniser fails", [](DictationFixture &f) { f.speech.fail(9, u"Gone."_s); },
            u"Gone."_s);
        row(
            "the microphone is unplugged",
            [](DictationFixture &f) {
                QTest::ignoreMessage(QtWarningMsg, "The microphone is gone: unplugged");
                f.microphones.unplug();
            },
            u"Microphone is not available."_s);
        row(
            "the microphone gives nothing",
            [](DictationFixture &f) {
                f.clock.advance(5s);
                f.microphones.hear("ab");
                f.clock.advance(5s);
                QVERIFY(f.room()->dictating());
                QTest::ignoreMessage(QtWarningMsg,
                                     "The microphone is gone: it gives no sound any more");
                f.clock.advance(1s);
            },
            u"Microphone is not available."_s);
        row(
            "the chosen microphone does not open",
            [](DictationFixture &f) {
                QTest::ignoreMessage(QtWarningMsg, "The microphone is gone: busy");
                f.microphones.opens = false;
                f.store->microphone()->choose(u"headset"_s);
            },
            u"Microphone is not available."_s);
        row("another scope and back", [](DictationFixture &f) {
            f.store->scope()->enterProject(u"ferry"_s);
            QCOMPARE(f.draft(), QString());
            QVERIFY(f.isOff());
            f.store->scope()->pickGlobal();
        });
        row("the program ends", [](DictationFixture &f) {
            f.restart();
            f.plugIn();
            QVERIFY(f.signIn());
        });
        row("the session expires", [](DictationFixture &f) {
            f.store->session()->resetToAnon();
            QVERIFY(f.isOff());
            f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"ada@example.org"})");
            f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
            SOON_VERIFY(!f.draft().isEmpty());
        });
    }
    void whateverEndsItKeepsTheWords() {
        QFETCH(std::function<void(DictationFixture &)>, end);
        QFETCH(QString, note);
        DictationFixture f;
        QVERIFY(f.signIn());
        f.dictate();
        f.speech.finish(u"How many tasks"_s);
        f.speech.interim(u"are open"_s);
        end(f);
        QCOMPARE(f.draft(), u"How many tasks are open"_s);
        QVERIFY(f.isOff());
        QCOMPARE(f.store->chat()->chatNote(), note);

        // It works again, and what was wrong is not said any longer.
        f.microphones.opens = true;
        f.dictate();
        QCOMPARE(f.store->chat()->chatNote(), QString());
        f.speech.finish(u"today?"_s);
        QCOMPARE(f.draft(), u"How many tasks are open today?"_s);
    }

    void expiringWithSomethingUnsent() {
        DictationFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, "{}", 500);
        f.store->chat()->send(u"failed"_s);
        SOON_VERIFY(!f.store->chat()->liveWaiting());
        f.dictate();
        f.speech.interim(u"are open"_s);
        f.store->session()->expire();
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"ada@example.org"})");
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.draft(), u"failed\nare open"_s);
    }

    void sendingInMidSentence() {
        DictationFixture f;
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"How many"_s);
        f.room()->setCaret(8);
        f.dictate();
        f.speech.interim(u"tasks are open"_s);
        f.store->chat()->sendDraft();
        QVERIFY(f.isOff());
        QCOMPARE(f.draft(), QString());
        QVERIFY(f.texts().contains(u"How many tasks are open"_s));
        SOON_COMPARE(f.backend.count(kivPost), 1);
    }

    void leavingForGoodKeepsNothing() {
        DictationFixture f;
        QVERIFY(f.signIn());
        f.dictate();
        f.speech.interim(u"a secret"_s);
        f.store->session()->logout();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QVERIFY(f.isOff());
        QCOMPARE(f.draft(), QString());
        f.restart();
        f.backend.answer(u"GET api/v2/auth/me"_s, R"({"email":"ada@example.org"})");
        QVERIFY(f.signIn());
        QCOMPARE(f.draft(), QString());
    }

    void withoutARecogniser() {
        DictationFixture f;
        f.store->dictation()->setService(nullptr);
        f.room()->toggleDictation();
        QVERIFY(f.isOff());
        QCOMPARE(f.store->chat()->chatNote(), u"Speech recognition is not available right now."_s);
        QCOMPARE(f.microphones.looks, 0);
    }

    void secondsAreCounted() {
        DictationFixture f;
        f.dictate();
        QSignalSpy ticks(f.room(), &DictationRoom::secondsChanged);
        for (int tenth = 0; tenth < 75; ++tenth) {
            f.microphones.hear("ab");
            f.clock.advance(100ms);
        }
        QCOMPARE(f.room()->seconds(), 7);
        QCOMPARE(ticks.count(), 7);
        f.room()->stop();
        f.clock.advance(5s);
        QCOMPARE(f.room()->seconds(), 7);
        f.dictate();
        QCOMPARE(f.room()->seconds(), 0);
    }

    void choosingAMicrophone() {
        DictationFixture f;
        MicrophoneRoom *room = f.store->microphone();
        QCOMPARE(f.microphones.looks, 0); // nobody has asked for it
        QVERIFY(room->devices().isEmpty() && room->available());
        room->look();
        QCOMPARE(room->devices().size(), 2);

        f.dictate();
        QCOMPARE(f.microphones.openId, u"desk"_s);
        QCOMPARE(room->level(), 0.0);
        f.microphones.hear("ab");
        QCOMPARE(room->level(), 0.5);
        room->choose(u"headset"_s);
        QCOMPARE(f.microphones.openId, u"headset"_s);
        f.microphones.hear("cd");
        QCOMPARE(f.speech.heard, "abcd"_ba); // the same request goes on
        f.room()->stop();
        QCOMPARE(room->level(), 0.0);

        f.restart();
        QCOMPARE(f.store->microphone()->chosen(), u"headset"_s);
        f.store->microphone()->choose({});
        f.restart();
        QCOMPARE(f.store->microphone()->chosen(), QString());

        f.plugIn();
        f.microphones.there.clear();
        f.store->microphone()->look();
        QVERIFY(!f.store->microphone()->available());
    }
};

QTEST_GUILESS_MAIN(DictationTest)
#include "DictationTest.moc"
