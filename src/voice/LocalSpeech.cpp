#include "voice/LocalSpeech.h"

#include <QPointer>

#include <utility>

namespace kiv::voice {

using namespace std::chrono_literals;

namespace {

constexpr auto restAfter = 60s;
constexpr auto handoverPatience = 1s;
constexpr int processFailed = 1;

} // namespace

class LocalSpeech::Task : public SpeechTask {
public:
    /// Handing: the final result is out, the sound that still comes is for the next request.
    enum class State { Open, Ending, Handing, Over };

    Task(LocalSpeech &service, SpeechHandler handler)
        : m_service(&service), m_handler(std::move(handler)) {}
    ~Task() override {
        if (m_service)
            m_service->leave(this);
    }
    void append(const QByteArray &samples) override {
        if (m_service)
            m_service->append(this, samples);
    }
    void endAudio() override {
        if (m_service)
            m_service->endAudio(this);
    }

    /// This may be gone after either of these.
    void answer(const SpeechResult &result) {
        const SpeechHandler handler = m_handler;
        if (result.final)
            state = state == State::Ending ? State::Over : State::Handing;
        handler(result);
    }
    void fail(const SpeechError &error) {
        const SpeechHandler handler = m_handler;
        state = State::Over;
        handler(error);
    }

    bool waiting() const { return state == State::Open || state == State::Ending; }

    State state = State::Open;
    QStringList finals; ///< what is finished while it is ending

private:
    QPointer<LocalSpeech> m_service;
    SpeechHandler m_handler;
};

class LocalSpeech::Recogniser : public SpeechRecogniser {
public:
    Recogniser(LocalSpeech &service, bool known) : m_service(&service), m_known(known) {}
    bool available() const override {
        return m_known && m_service && m_service->m_process.available();
    }
    bool supportsOnDevice() const override { return true; }
    std::unique_ptr<SpeechTask> startTask(bool, SpeechHandler handler) override {
        return m_service->startTask(std::move(handler));
    }

private:
    QPointer<LocalSpeech> m_service;
    bool m_known;
};

LocalSpeech::LocalSpeech(Clock &clock, const SpeechProcess::Program &program)
    : m_clock(clock), m_process(clock, program) {
    connect(&m_process, &SpeechProcess::interim, this, [this](const QString &text) {
        onResult({text, false});
    });
    connect(&m_process, &SpeechProcess::final, this, [this](const QString &text) {
        onResult({text, true});
    });
    connect(&m_process, &SpeechProcess::ended, this, &LocalSpeech::onEnded);
    connect(&m_process, &SpeechProcess::failed, this, &LocalSpeech::onFailed);
}

LocalSpeech::~LocalSpeech() = default;

void LocalSpeech::requestAuthorisation(std::function<void(SpeechAuthorisation)> answer) {
    QMetaObject::invokeMethod(
        this, [answer = std::move(answer)] { answer(SpeechAuthorisation::Authorised); },
        Qt::QueuedConnection);
}

std::unique_ptr<SpeechRecogniser> LocalSpeech::recogniser(const QLocale &locale) {
    // A computer on which no language was set speaks the one of its texts.
    const bool known = locale.language() == QLocale::English || locale.language() == QLocale::C;
    return std::make_unique<Recogniser>(*this, known);
}

std::unique_ptr<SpeechRecogniser> LocalSpeech::defaultRecogniser() {
    return std::make_unique<Recogniser>(*this, true);
}

std::unique_ptr<SpeechTask> LocalSpeech::startTask(SpeechHandler handler) {
    auto task = std::make_unique<Task>(*this, std::move(handler));
    m_rest.stop();
    m_handover.stop();
    if (m_task && m_task->waiting()) {
        giveUp(*m_task);
        m_replaced.append(m_task);
    }
    m_task = task.get();
    m_process.start();
    QMetaObject::invokeMethod(this, &LocalSpeech::deliver, Qt::QueuedConnection);
    return task;
}

void LocalSpeech::append(Task *task, const QByteArray &samples) {
    if (task != m_task || (task->state != Task::State::Open && task->state != Task::State::Handing))
        return;
    m_heard = true;
    m_process.sendSound(samples);
}

void LocalSpeech::endAudio(Task *task) {
    if (task != m_task)
        return;
    if (task->state == Task::State::Open) {
        task->state = Task::State::Ending;
        for (const SpeechResult &held : std::exchange(m_held, {}))
            collect(*task, held);
        m_process.sendEnd();
    } else if (task->state == Task::State::Handing) {
        giveUp(*task);
        task->state = Task::State::Over;
    }
}

void LocalSpeech::leave(Task *task) {
    m_replaced.removeOne(task);
    if (task != m_task)
        return;
    m_task = nullptr;
    if (task->waiting())
        giveUp(*task);
    else if (m_heard)
        m_handover = m_clock.after(handoverPatience, [this] { forget(); });
    m_rest = m_clock.after(restAfter, [this] {
        m_process.stop();
        reset();
    });
}

/// What a request has left in the program is of no use to anybody.
void LocalSpeech::giveUp(const Task &task) {
    if (task.state == Task::State::Ending)
        ++m_staleEnds;
    forget();
}

void LocalSpeech::forget() {
    m_held.clear();
    if (!std::exchange(m_heard, false))
        return;
    // The end tells where the results of what follows begin.
    m_process.sendCancel();
    m_process.sendEnd();
    ++m_staleEnds;
}

void LocalSpeech::reset() {
    m_held.clear();
    m_heard = false;
    m_staleEnds = 0;
    m_handover.stop();
}

void LocalSpeech::onResult(const SpeechResult &result) {
    if (m_staleEnds > 0)
        return;
    if (m_task && m_task->state == Task::State::Ending) {
        collect(*m_task, result);
        return;
    }
    if (!m_held.isEmpty() && !m_held.last().final)
        m_held.removeLast();
    m_held.append(result);
    deliver();
}

void LocalSpeech::collect(Task &task, const SpeechResult &result) {
    if (result.final && !result.text.isEmpty())
        task.finals.append(result.text);
}

void LocalSpeech::deliver() {
    while (!m_replaced.isEmpty())
        m_replaced.takeFirst()->fail({SpeechError::requestEnded, tr("The request has ended.")});
    // A final result lets the owner start the next request, which gets what follows.
    while (m_task && m_task->state == Task::State::Open && !m_held.isEmpty())
        m_task->answer(m_held.takeFirst());
}

void LocalSpeech::onEnded() {
    if (m_staleEnds > 0) {
        --m_staleEnds;
        return;
    }
    m_heard = false;
    if (!m_task || m_task->state != Task::State::Ending)
        return;
    if (m_task->finals.isEmpty())
        m_task->fail({SpeechError::noSpeech, tr("No speech was heard.")});
    else
        m_task->answer({m_task->finals.join(u' '), true});
}

void LocalSpeech::onFailed(const QString &why) {
    reset();
    if (!m_task)
        return;
    if (m_task->waiting())
        m_task->fail({processFailed, why});
    else
        m_task->state = Task::State::Over;
}

} // namespace kiv::voice
