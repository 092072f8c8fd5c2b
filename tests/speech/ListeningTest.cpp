// What the recogniser's program makes of sound, before and after the recogniser itself.

#include "speech/Listener.h"
#include "speech/Requests.h"

#include <QTest>

#include <atomic>
#include <deque>
#include <numeric>
#include <thread>

using namespace Qt::StringLiterals;
using namespace kiv::speech;

namespace {

using Stretches = QList<Stretch>;

constexpr Stretch ms(qint64 begin, qint64 end) {
    return {samplesIn(begin), samplesIn(end)};
}

/// Somebody who speaks in the given stretches.
class ScriptedActivity : public VoiceActivity {
public:
    explicit ScriptedActivity(const Stretches &spoken) : m_spoken(spoken) {}

    void accept(std::span<const float> samples) override {
        m_end += qint64(samples.size());
        while (!m_spoken.isEmpty() && m_end >= m_spoken.first().end + leastSilence) {
            const Stretch ended = m_spoken.takeFirst();
            if (ended.end > m_origin)
                m_ended.push_back(
                    {std::max(ended.begin, m_origin) - m_origin, ended.end - m_origin});
        }
    }
    bool speaking() const override {
        return !m_spoken.isEmpty() &&
               m_end >= std::max(m_spoken.first().begin, m_origin) + leastSpeech;
    }
    std::optional<Stretch> takeEnded() override {
        if (m_ended.empty())
            return {};
        const Stretch ended = m_ended.front();
        m_ended.pop_front();
        return ended;
    }
    void restart() override {
        m_origin = m_end;
        m_ended.clear();
    }

private:
    Stretches m_spoken;
    std::deque<Stretch> m_ended;
    qint64 m_origin = 0;
    qint64 m_end = 0;
};

/// A listener whose sound is the number of each sample, so that what is read tells where it is
/// from.
struct Scene {
    explicit Scene(const Stretches &spoken) : activity(spoken) {}

    /// Sound up to `milliseconds`, in pieces of 100 ms that take their time.
    void hearUntil(qint64 milliseconds) {
        while (heard < samplesIn(milliseconds)) {
            std::vector<float> piece(size_t(samplesIn(100)));
            if (heard < samplesIn(quietFrom))
                std::iota(piece.begin(), piece.end(), float(heard));
            heard += samplesIn(100);
            now = std::max(now, Beat::Milliseconds(heard * 1000 / sampleRate));
            listener.hear(piece);
            listener.look();
        }
    }

    ScriptedActivity activity;
    qint64 heard = 0;
    qint64 quietFrom = 1'000'000; ///< milliseconds
    Beat::Milliseconds now{0};
    Beat::Milliseconds cost{0};
    std::deque<QString> words; ///< what the next readings give; "words" when there is none
    Stretches readings;
    Stretches finals; ///< what was read last before each final
    QStringList said;
    Listener listener{activity,
                      [this](const std::vector<float> &samples) {
                          now += cost;
                          const float last = *std::ranges::max_element(samples);
                          readings.append({qint64(samples.front()), qint64(last) + 1});
                          if (words.empty())
                              return u"words"_s;
                          const QString word = words.front();
                          words.pop_front();
                          return word;
                      },
                      [this] { return now; },
                      [this](const Heard &result) {
                          said.append((result.final ? u"final "_s : u"interim "_s) + result.text);
                          if (result.final)
                              finals.append(readings.last());
                      }};
};

} // namespace

class ListeningTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void agreement_data() {
        QTest::addColumn<QStringList>("readings");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("one reading") << QStringList{u"Show me"_s} << QStringList{};
        QTest::newRow("grows") << QStringList{u"Sho"_s, u"Show me"_s, u"Show me the"_s,
                                              u"Show me the money"_s}
                               << QStringList{u"Show me"_s, u"Show me the"_s};
        QTest::newRow("flickers") << QStringList{u"Show me the bud"_s, u"Show me the butter"_s,
                                                 u"Show me the budget."_s,
                                                 u"Show me the budget of"_s}
                                  << QStringList{u"Show me the"_s, u"Show me the budget"_s};
        QTest::newRow("two of three")
            << QStringList{u"Compare"_s, u"Compound the"_s, u"Compare the three"_s}
            << QStringList{u"Compare"_s};
        QTest::newRow("never agrees")
            << QStringList{u"Growth."_s,     u"Draw a"_s, u"Gratitude"_s,
                           u"Brown chart"_s, u"Drawn"_s,  u"Brown chart of"_s}
            << QStringList{u"Brown"_s, u"Brown chart"_s};
        QTest::newRow("disagrees later")
            << QStringList{u"a b c d"_s, u"a b c d"_s, u"a x"_s, u"a x y"_s}
            << QStringList{u"a b c d"_s};
        QTest::newRow("case and punctuation")
            << QStringList{u"hello there."_s, u"Hello, there you"_s, u"Hello there, you."_s}
            << QStringList{u"Hello, there"_s, u"Hello there, you."_s};
        QTest::newRow("nothing between")
            << QStringList{u"a b"_s, u""_s, u"a b"_s} << QStringList{u"a b"_s};
    }
    void agreement() {
        QFETCH(QStringList, readings);
        QStringList shown;
        WordAgreement agreement;
        for (const QString &reading : readings) {
            if (const auto words = agreement.add(reading))
                shown.append(*words);
        }
        QTEST(shown, "shown");
    }

    void ring_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<Stretch>("wanted");
        QTest::addColumn<Stretch>("kept");
        QTest::newRow("not full") << 60 << Stretch{10, 20} << Stretch{10, 20};
        QTest::newRow("across its end") << 250 << Stretch{180, 220} << Stretch{180, 220};
        QTest::newRow("let go of") << 250 << Stretch{100, 160} << Stretch{150, 160};
        QTest::newRow("before the first") << 60 << Stretch{-30, 5} << Stretch{0, 5};
        QTest::newRow("not heard yet") << 60 << Stretch{50, 90} << Stretch{50, 60};
        QTest::newRow("nothing") << 250 << Stretch{20, 30} << Stretch{0, 0};
    }
    void ring() {
        QFETCH(int, count);
        QFETCH(Stretch, wanted);
        QFETCH(Stretch, kept);
        std::vector<float> all(static_cast<size_t>(count));
        std::iota(all.begin(), all.end(), 0.F);
        SampleRing ring(100);
        for (size_t at = 0; at < all.size(); at += 7)
            ring.append(std::span(all).subspan(at, std::min<size_t>(7, all.size() - at)));
        const std::vector<float> expected(all.begin() + kept.begin, all.begin() + kept.end);
        QCOMPARE(ring.copy(wanted), expected);
    }

    /// Which sound is read for good.
    void utterances_data() {
        QTest::addColumn<Stretches>("spoken");
        QTest::addColumn<int>("until");
        QTest::addColumn<Stretches>("read");
        QTest::newRow("silence") << Stretches{} << 5000 << Stretches{};
        QTest::newRow("one") << Stretches{ms(1000, 3000)} << 5000 << Stretches{ms(700, 3100)};
        QTest::newRow("at once") << Stretches{ms(0, 2000)} << 3000 << Stretches{ms(0, 2100)};
        QTest::newRow("two") << Stretches{ms(1000, 2000), ms(2700, 4000)} << 6000
                             << Stretches{ms(700, 2100), ms(2400, 4100)};
        QTest::newRow("two close together, nothing read twice")
            << Stretches{ms(1000, 2000), ms(2200, 4000)} << 6000
            << Stretches{ms(700, 2100), ms(2100, 4100)};
        // Cut after 20 s, between two windows.
        QTest::newRow("nobody stops") << Stretches{ms(1000, 60'000)} << 50'000
                                      << Stretches{{10'208, 335'360}, {335'360, 655'360}};
    }
    void utterances() {
        QFETCH(Stretches, spoken);
        QFETCH(int, until);
        Scene scene(spoken);
        scene.hearUntil(until);
        QTEST(scene.finals, "read");
    }

    void understood_data() {
        QTest::addColumn<QStringList>("readings");
        QTest::addColumn<QString>("said");
        QTest::addColumn<Stretch>("lastRead");
        const Stretch around = ms(700, 1800);
        const Stretch bare = ms(1000, 1700);
        QTest::newRow("at once") << QStringList{u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"yes"_s}
                                 << u"yes"_s << around;
        QTest::newRow("without what is around")
            << QStringList{u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"yes"_s} << u"yes"_s
            << bare;
        QTest::newRow("only while it grew")
            << QStringList{u"ye"_s, u"yes"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s} << u"yes"_s
            << bare;
        QTest::newRow("never") << QStringList{u""_s, u""_s, u""_s, u""_s,
                                              u""_s, u""_s, u""_s, u""_s}
                               << u""_s << bare;
    }
    /// Six readings while it grows, then those of the whole.
    void understood() {
        QFETCH(QStringList, readings);
        QFETCH(QString, said);
        Scene scene({ms(1000, 1700)});
        scene.words.assign(readings.begin(), readings.end());
        scene.hearUntil(2500);
        QVERIFY(scene.words.empty());
        QCOMPARE(scene.said, QStringList{u"final "_s + said});
        QTEST(scene.readings.last(), "lastRead");
    }

    void beats_data() {
        QTest::addColumn<int>("cost");
        QTest::addColumn<int>("readings");
        QTest::newRow("quick") << 50 << 15;
        QTest::newRow("slow: two fifths of the time") << 300 << 5;
    }
    void beats() {
        QFETCH(int, cost);
        Scene scene({ms(1000, 5000)});
        scene.cost = std::chrono::milliseconds(cost);
        scene.hearUntil(4000);
        QTEST(int(scene.readings.size()), "readings");
        QCOMPARE(scene.said, QStringList{u"interim words"_s});
    }

    /// A reading that has begun would keep the last one waiting.
    void noReadingInAPause() {
        Scene scene({ms(1000, 3000)});
        scene.quietFrom = 3000;
        scene.hearUntil(3000);
        const qsizetype readings = scene.readings.size();
        QVERIFY(readings > 5);
        scene.hearUntil(3500);
        QCOMPARE(scene.readings.size(), readings);
        scene.hearUntil(4000);
        QCOMPARE(scene.finals.size(), 1);
    }

    void endInMidSpeech() {
        Scene scene({ms(1000, 5000)});
        scene.hearUntil(2100);
        scene.listener.end();
        QCOMPARE(scene.finals, (Stretches{{10'208, samplesIn(2100)}}));
        scene.listener.end();
        QCOMPARE(scene.finals.size(), 1);
    }

    void drop() {
        Scene scene({ms(1000, 5000)});
        scene.hearUntil(2100);
        scene.said.clear();
        scene.listener.drop();
        scene.listener.end();
        QCOMPARE(scene.said, QStringList{});
        scene.hearUntil(6000);
        QCOMPARE(scene.finals.size(), 1);
        QCOMPARE(scene.finals.first().begin, samplesIn(2100));
    }

    void requests_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("request");
        QTest::newRow("sound") << QByteArray("{'audio':'AAD/fwCAAQA='}")
                               << u"0 0.999969 -1 3.05176e-05"_s;
        QTest::newRow("no sound") << QByteArray("{'audio':''}") << u""_s;
        QTest::newRow("end") << QByteArray("{'end':true}") << u"end"_s;
        QTest::newRow("cancel") << QByteArray("{'cancel':true}") << u"drop"_s;
        QTest::newRow("of a later protocol") << QByteArray("{'pause':true}") << u"none"_s;
        QTest::newRow("half a sample") << QByteArray("{'audio':'AAAA'}") << u"fault"_s;
        QTest::newRow("no base64") << QByteArray("{'audio':'~~~~'}") << u"fault"_s;
        QTest::newRow("an array") << QByteArray("[]") << u"fault"_s;
        QTest::newRow("cut off") << QByteArray("{'audio':'AAAA") << u"fault"_s;
    }
    void requests() {
        QFETCH(QByteArray, line);
        line.replace('\'', '"');
        QString request;
        try {
            const auto parsed = parseRequest(line);
            if (!parsed)
                request = u"none"_s;
            else if (const auto *sound = std::get_if<Sound>(&*parsed))
                request = numbers(*sound);
            else
                request = std::holds_alternative<End>(*parsed) ? u"end"_s : u"drop"_s;
        } catch (const ProtocolError &) {
            request = u"fault"_s;
        }
        QTEST(request, "request");
    }

    /// A cancel takes the sound before it away and leaves the ends, each of which is answered.
    void queue() {
        RequestQueue queue;
        queue.put(Sound{{1}});
        queue.put(End{});
        queue.put(Sound{{2}});
        QVERIFY(!queue.dropping());
        queue.put(Drop{});
        QVERIFY(queue.dropping());
        queue.put(Sound{{3}});
        QVERIFY(std::holds_alternative<End>(queue.take()));
        QVERIFY(queue.dropping());
        QVERIFY(std::holds_alternative<Drop>(queue.take()));
        QVERIFY(!queue.dropping());
        QCOMPARE(std::get<Sound>(queue.take()).samples, std::vector<float>{3});
        QVERIFY(queue.empty());
    }

    /// What was asked to be finished is, also when nothing more comes.
    void closedQueue() {
        RequestQueue queue;
        for (const Request &request : {Request(Sound{{1}}), Request(End{}), Request(Sound{{2}})})
            queue.put(request);
        queue.put(Close{});
        QVERIFY(std::holds_alternative<Sound>(queue.take()));
        QVERIFY(std::holds_alternative<End>(queue.take()));
        QVERIFY(!queue.dropping());
        QVERIFY(std::holds_alternative<Close>(queue.take()));

        RequestQueue other;
        other.put(End{});
        other.take();
        other.put(Close{});
        QVERIFY(!other.dropping());
        other.take();
        other.put(Sound{{1}});
        other.put(Close{});
        QVERIFY(other.dropping());
        QVERIFY(std::holds_alternative<Close>(other.take()));
    }

    /// Whoever feeds a whole file waits for the recogniser instead of filling the memory.
    void fullQueue() {
        RequestQueue queue;
        queue.put(Sound{std::vector<float>(size_t(samplesIn(60'000)))});
        std::atomic<bool> taken = false;
        const std::jthread feeding([&] {
            queue.put(Sound{{1}});
            taken = true;
        });
        QTest::qSleep(50);
        QVERIFY(!taken);
        queue.take();
        QCOMPARE(std::get<Sound>(queue.take()).samples, std::vector<float>{1});
    }

private:
    static QString numbers(const Sound &sound) {
        QStringList result;
        for (const float sample : sound.samples)
            result.append(QString::number(double(sample)));
        return result.join(u' ');
    }
};

QTEST_APPLESS_MAIN(ListeningTest)
#include "ListeningTest.moc"
