#include "ui/CallWorkspace.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

CallWorkspace::CallWorkspace() {
    backend.answer(u"GET api/v2/voice/capability"_s, R"({"available":true})");
    backend.answer(
        u"POST api/v2/voice/session"_s,
        R"({"call_id":"now","signed_url":"wss://voice.example","max_duration_secs":600})");
    backend.answer(u"POST api/v2/voice/end"_s, "{}");
    backend.answer(u"GET api/v2/voice/calls"_s, R"({"calls":[]})");
    store->call()->setVoicePages(&m_pages);
    store->microphone()->setSource(&microphones);
}

CallWorkspace::~CallWorkspace() {
    store.reset(); // it uses what goes before it
}

bool CallWorkspace::call() {
    store->call()->callAction();
    return dialled();
}

bool CallWorkspace::dialled() {
    const auto starts = [this] { return m_pages.calls(u"Start"_s).size(); };
    const qsizetype before = starts(); // the session is still being asked for
    if (!test::soon([this] { return m_pages.loads > 0; }))
        return false;
    post({{u"t"_s, u"ready"_s}});
    return test::soon([&] { return starts() > before; });
}

bool CallWorkspace::talk() {
    if (!call())
        return false;
    connectCall();
    return store->call()->callPhase() == store::CallPhase::Active;
}

void CallWorkspace::pass(std::chrono::seconds time) {
    for (auto passed = 0s; passed < time; passed += 1s)
        clock.advance(1s);
}

void CallWorkspace::connectCall() {
    post({{u"t"_s, u"connected"_s}, {u"transport"_s, u"websocket"_s}});
}

void CallWorkspace::hear(const QString &who, const QString &words, bool partial) {
    post({{u"t"_s, u"message"_s},
          {u"source"_s, who},
          {u"message"_s, words},
          {u"type"_s, partial ? u"partial"_s : QString()}});
}

void CallWorkspace::speaking(bool speaking) {
    post({{u"t"_s, u"mode"_s}, {u"mode"_s, speaking ? u"speaking"_s : u"listening"_s}});
}

void CallWorkspace::drop() {
    post({{u"t"_s, u"disconnect"_s},
          {u"reason"_s, u"error"_s},
          {u"closeCode"_s, 1006},
          {u"closeReason"_s, u"network"_s}});
}

void CallWorkspace::converse() {
    pass(2s);
    hear(u"ai"_s, u"KIV here. I see all projects and every agent under them."_s);
    pass(7s);
    hear(u"user"_s, u"How do the projects look this week?"_s);
    pass(5s);
    hear(u"ai"_s, u"Three of five are on track. Orchard waits for a tax field and Glasshouse is "
                  u"over its capacity."_s);
    pass(197s);
    hear(u"user"_s, u"Покажи, кто перегружен."_s);
    pass(5s);
    hear(u"ai"_s, u"Here is the load for the coming week."_s);
    pass(22s);
    hear(u"user"_s, u"Which one should worry me?"_s);
    pass(8s);
    hear(u"ai"_s,
         u"Glasshouse is the one to watch. The data agent is back on Tuesday, until then "
         u"it runs at 118%."_s,
         true);
    pass(6s);
}

void CallWorkspace::post(const QVariantMap &message) {
    m_pages.post(message);
    QCoreApplication::sendPostedEvents();
}

QByteArray pastCalls() {
    return R"({"calls":[
    {"id":"c3","status":"done","duration_secs":192,"started_at":"2026-03-02T09:12:00Z",
     "snippet":"How do the projects look this week?","has_transcript":true},
    {"id":"c2","status":"failed","duration_secs":0,"started_at":"2026-03-01T17:40:00Z",
     "snippet":"","has_transcript":false},
    {"id":"c1","status":"done","duration_secs":3792,"started_at":"2025-11-20T08:05:00Z",
     "snippet":"How many hours will it take each of them until the end of the month if nobody falls ill, and who could help?",
     "has_transcript":true}]})";
}

QByteArray pastTranscript() {
    return R"({"call":{"transcript":[
    {"role":"agent","t":1.5,"text":"KIV here. I see all projects and every agent under them."},
    {"role":"user","t":9,"text":"How do the projects look this week?"},
    {"role":"agent","t":14.2,"text":"Three of five are on track. Orchard waits for a tax field and Glasshouse is over its capacity."}]}})";
}

} // namespace kiv::ui
