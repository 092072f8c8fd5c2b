#include "soak/Soak.h"

#include "soak/Steps.h"
#include "soak/Waiting.h"

#include <cstdio>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto betweenCalms = 20s;
constexpr auto sampleEvery = 2s;

// The memory is level when the last part of a run takes no more than the second minute, but for
// what the size of the conversations, caches that fill late and a torn heap account for.
constexpr auto warmUp = 60s;
constexpr qint64 allowedKib = 24 * 1024;

// Under a sanitizer, times and sizes are its own.
#ifdef __has_feature
constexpr bool isSanitized = __has_feature(address_sanitizer);
#else
constexpr bool isSanitized = false;
#endif

double milliseconds(MainThread::Nanoseconds time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

} // namespace

Soak::Soak(quint64 seed, std::chrono::seconds length, HoldBound bound)
    : m_seed(seed),
      m_length(length),
      m_bound(bound),
      m_stage(seed),
      m_witness(m_stage.server.url().port()),
      m_calm(m_stage, m_witness) {
    m_timer.start();
}

std::chrono::seconds Soak::elapsed() const {
    return std::chrono::seconds(m_timer.elapsed() / 1000);
}

bool Soak::begin() {
    m_stage.users = {{u"ada@example.org"_s, u"difference engine"_s},
                     {u"grace@example.org"_s, u"nanosecond wire"_s}};
    for (const User &user : m_stage.users) {
        if (!m_witness.signUp(user.email, user.password)) {
            m_stage.fail(u"no account can be made"_s);
            return false;
        }
    }
    m_stage.open();
    return true;
}

bool Soak::run() {
    if (begin()) {
        while (elapsed() < m_length && m_stage.failure.isEmpty()) {
            takeSteps(std::min(betweenCalms, std::max(m_length - elapsed(), 1s)));
            if (m_stage.failure.isEmpty())
                m_calm.check(elapsed() < m_length ? Calm::Extent::Open : Calm::Extent::All);
            ++m_calms;
        }
    }
    if (m_stage.failure.isEmpty())
        checkMemory();
    checkMainThread();
    print();
    return m_stage.failure.isEmpty();
}

void Soak::takeSteps(std::chrono::seconds time) {
    const auto end = elapsed() + time;
    auto sampleAt = elapsed();
    while (elapsed() < end && m_stage.failure.isEmpty()) {
        if (elapsed() >= sampleAt) {
            const MainThread::OwnDoing sampling(m_stage.thread);
            m_memory.sample(elapsed());
            sampleAt = elapsed() + sampleEvery;
        }
        const Step &step = nextStep(m_stage);
        ++m_stage.steps;
        ++m_stage.tally[QString::fromLatin1(step.name)];
        m_stage.note(QString::fromLatin1(step.name));
        m_stage.thread.enter();
        step.take(m_stage);
        m_stage.thread.leave(step.name);
        // Mostly at once or soon, so that it meets every point of a turn.
        const qsizetype kind = m_stage.random.below(10);
        const int longest = kind < 5 ? 40 : kind < 9 ? 400 : 1500;
        letRun(std::chrono::milliseconds(m_stage.random.between(0, longest)));
    }
}

void Soak::checkMemory() {
    const qint64 first = m_memory.median(warmUp, warmUp + 60s);
    const qint64 last = m_memory.median(elapsed() - 60s, elapsed());
    if (first > 0 && last - first > allowedKib && !isSanitized)
        m_stage.fail(u"the memory has grown from %1 to %2 KiB"_s.arg(first).arg(last));
}

void Soak::checkMainThread() {
    const MainThread &thread = m_stage.thread;
    const auto held = m_bound.onlyWork ? thread.hardest().worked : thread.worst().held;
    if (held > m_bound.longest && !isSanitized)
        m_stage.fail(u"the main thread was held for %1 ms"_s.arg(milliseconds(held)));
}

void Soak::print() const {
    const MainThread &thread = m_stage.thread;
    std::printf("seed %llu, %lld s, %d steps, %d calms\n", static_cast<unsigned long long>(m_seed),
                static_cast<long long>(elapsed().count()), m_stage.steps, m_calms);
    for (const auto &[name, count] : m_stage.tally)
        std::printf("  %-20s %6d\n", qPrintable(name), count);
    std::printf("memory (its own): %lld KiB in the second minute, %lld KiB in the last\n",
                static_cast<long long>(m_memory.median(warmUp, warmUp + 60s)),
                static_cast<long long>(m_memory.median(elapsed() - 60s, elapsed())));
    std::printf("main thread: worked for %.1f ms at most (%s), held for %.1f ms at worst (%.1f ms "
                "of it working) by %s\n",
                milliseconds(thread.hardest().worked), thread.hardest().doing.constData(),
                milliseconds(thread.worst().held), milliseconds(thread.worst().worked),
                thread.worst().doing.constData());
    std::printf("  %d passes, %d over 16 ms, %d over 50 ms, %d over 100 ms\n", thread.passes(),
                thread.over16(), thread.over50(), thread.over100());
    for (const MainThread::Hold &hold : thread.holds())
        std::printf("  pass %d: %.1f ms (%.1f ms, %ld waits) %s\n", hold.pass,
                    milliseconds(hold.held), milliseconds(hold.worked), hold.waits,
                    hold.doing.constData());
    if (m_stage.failure.isEmpty())
        return;
    std::printf("FAILED at step %d of seed %llu: %s\n", m_stage.steps,
                static_cast<unsigned long long>(m_seed), qPrintable(m_stage.failure));
    for (const QString &step : m_stage.lastSteps)
        std::printf("%s\n", qPrintable(step));
}

} // namespace kiv::soak
