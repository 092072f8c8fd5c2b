#pragma once

#include "ScriptedBackend.h"

#include "store/AppStore.h"
#include "support/ManualClock.h"
#include "support/TestConnectivity.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

/// As QTRY_COMPARE and QTRY_VERIFY, but looking after every event instead of every 50 ms.
#define SOON_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        kiv::test::soon([&] { return (actual) == (expected); });                                   \
        QCOMPARE(actual, expected);                                                                \
    } while (false)
#define SOON_VERIFY(condition) QVERIFY(kiv::test::soon([&] { return bool(condition); }))

namespace kiv::test {

/// Runs the event loop until the condition holds; false when it does not within five seconds.
bool soon(const std::function<bool()> &condition);

/// A store over a scripted backend, a clock that stands still and settings of its own. The backend
/// knows ada@example.org, two projects ("ferry" with the agents scout and loom, "lantern" with
/// none), a standalone agent "ledger" and the orchestrator "kiv".
class StoreFixture {
public:
    StoreFixture();

    /// A store as a fresh start of the program makes it.
    void restart(store::AppStore::Mode mode = store::AppStore::Mode::Normal,
                 const QString &draftsFile = {});
    /// Boots into the signed-in state; true when the chat of the scope is connected.
    bool signIn();
    /// Makes the session check find nobody and boots.
    bool bootSignedOut();

    /// Waits until a chat is streamed for the n-th time and its history is here.
    bool streaming(const QString &chat, int connections);
    /// Drops the stream of a chat and lets time pass until it is back.
    bool reconnect(const QString &chat);
    /// Drops the stream of a chat and lets time pass until it is asked for again, or `next`.
    bool loseLine(const QString &chat, const QString &next = {});

    /// Lets whatever is under way come to its end: some round trips behind it.
    void settled();

    /// The stream of the current chat sends this row: an answer, or what `role` says.
    void row(qint64 id, const QString &text, const QString &role = QStringLiteral("assistant"));
    /// Signs in and asks the orchestrator; the question is stored as row 7.
    bool ask(const QString &question);
    /// The answer has come as row `id` and was drawn, entrance and all.
    bool draw(qint64 id, const QString &answer);
    /// The names of what was reported to have been used, the earliest first.
    QStringList usage() const;
    /// Answers a history request of the chat at `chat` with these rows.
    void history(const QString &chat, const QByteArray &rows);

    store::MessageModel &msgs() { return *store->chat()->msgs(); }
    QStringList texts() { return textsOf(msgs()); }
    store::Delivery deliveryOf(int row) {
        return msgs().index(row).data(store::MessageModel::DeliveryRole).value<store::Delivery>();
    }
    static QStringList textsOf(const store::MessageModel &model);

    ScriptedBackend backend;
    ManualClock clock;
    QTemporaryDir folder;
    TestConnectivity connectivity;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<net::APIClient> client;
    std::unique_ptr<store::AppStore> store;

private:
    bool isLoaded(const QString &chat, int pages) const;
};

/// A chat row as JSON.
QByteArray rowJson(qint64 id, const QString &role, const QString &text);

inline const QString kivChat = QStringLiteral("api/v2/custom-agents/kiv/chat");
inline const QString kivPost = QStringLiteral("POST ") + kivChat;
inline const QString ferryChat = QStringLiteral("api/v2/projects/ferry/chat");

/// What an empty conversation with the orchestrator begins with.
inline const QString kivGreeting =
    QStringLiteral("KIV here. I see all projects and every agent under them.");

/// A closed block that is drawn as a report.
inline const QString reportBlock =
    QStringLiteral("```view\n{\"kind\":\"kpi\",\"title\":\"Week 47\",\"items\":["
                   "{\"label\":\"Tasks\",\"value\":137,\"delta\":\"-12\"},"
                   "{\"label\":\"Spend\",\"display\":\"96%\"}]}\n```");

} // namespace kiv::test
