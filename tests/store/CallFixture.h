#pragma once

#include "ScriptedPage.h"
#include "ScriptedVoice.h"
#include "StoreFixture.h"

namespace kiv::test {

/// A store that can place calls, once they are allowed, over a page that the test plays.
struct CallScript : StoreFixture {
    ~CallScript() { store.reset(); } // it uses what is below

    void allowCalls(const QByteArray &sessionAnswer = sessionBody) {
        call()->setVoicePages(&pages);
        store->microphone()->setSource(&microphones);
        backend.answer(QStringLiteral("GET api/v2/voice/capability"), R"({"available":true})");
        backend.answer(session, sessionAnswer);
        backend.answer(end, "{}");
        backend.answer(QStringLiteral("GET api/v2/voice/calls"), R"({"calls":[]})");
    }

    store::CallRoom *call() { return store->call(); }
    void post(const QVariantMap &message) {
        pages.post(message);
        QCoreApplication::sendPostedEvents();
    }
    void say(const QString &who, const QString &text, const QString &type = {}) {
        post({{QStringLiteral("t"), QStringLiteral("message")},
              {QStringLiteral("source"), who},
              {QStringLiteral("message"), text},
              {QStringLiteral("type"), type}});
    }
    void drop(const QString &reason = QStringLiteral("error")) {
        post({{QStringLiteral("t"), QStringLiteral("disconnect")},
              {QStringLiteral("reason"), reason},
              {QStringLiteral("closeCode"), 1006}});
    }
    void speaking(bool isSpeaking) {
        post({{QStringLiteral("t"), QStringLiteral("mode")},
              {QStringLiteral("mode"),
               isSpeaking ? QStringLiteral("speaking") : QStringLiteral("listening")}});
    }
    void ready() { post({{QStringLiteral("t"), QStringLiteral("ready")}}); }
    void connected() {
        post({{QStringLiteral("t"), QStringLiteral("connected")},
              {QStringLiteral("transport"), QStringLiteral("websocket")}});
    }
    void connectFail(const QString &message) {
        post({{QStringLiteral("t"), QStringLiteral("connectFail")},
              {QStringLiteral("message"), message}});
    }
    /// Presses the button and waits until the page is to connect.
    bool dial() {
        call()->callAction();
        return dialled();
    }
    /// The same of a call that has been begun; its session is still being asked for.
    bool dialled() {
        const auto starts = [this] { return pages.calls(QStringLiteral("Start")).size(); };
        const qsizetype before = starts();
        if (!soon([this] { return pages.loads > 0; }))
            return false;
        ready();
        return soon([&] { return starts() > before; });
    }
    bool connect() {
        if (!dial())
            return false;
        connected();
        return call()->callPhase() == store::CallPhase::Active;
    }
    /// How often the backend was told that a call is over.
    bool ended(int times) {
        return soon([&] { return backend.count(end) == times && !call()->isTellingEnd(); });
    }
    QStringList lines() {
        QStringList texts;
        for (const store::CallLine &line : call()->callTranscript()->lines())
            texts.append(line.state.isEmpty() ? line.text
                                              : line.text + QStringLiteral(" / ") + line.state);
        return texts;
    }

    static constexpr const char *sessionBody =
        R"({"signed_url":"wss://voice.example/a","call_id":"c1","max_duration_secs":600.9})";
    const QString session = QStringLiteral("POST api/v2/voice/session");
    const QString end = QStringLiteral("POST api/v2/voice/end");
    ScriptedPages pages;
    ScriptedMicrophones microphones;
};

/// The same, where calls are allowed.
struct CallFixture : CallScript {
    CallFixture() { allowCalls(); }
};

} // namespace kiv::test
