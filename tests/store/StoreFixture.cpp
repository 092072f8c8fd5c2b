#include "StoreFixture.h"

#include <QCoroTask>
#include <QJsonDocument>
#include <QTimer>

namespace kiv::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto streamEnd = "/stream"_L1;
/// Before it stands, and when it does.
constexpr int pagesOfALine = 2;

} // namespace

QByteArray rowJson(qint64 id, const QString &role, const QString &text) {
    return QJsonDocument(QJsonObject{{u"id"_s, id},
                                     {u"role"_s, role},
                                     {u"content"_s, text},
                                     {u"created_at"_s, u"2026-03-02T09:42:00.5Z"_s}})
        .toJson(QJsonDocument::Compact);
}

bool soon(const std::function<bool()> &condition) {
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(5s);
    QEventLoop loop;
    while (!condition()) {
        if (!patience.isActive())
            return false;
        loop.processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

StoreFixture::StoreFixture() {
    backend.answer(u"GET api/v2/auth/me"_s,
                   R"({"id":"u1","email":"ada@example.org","name":"Ada Byron"})");
    backend.answer(u"POST api/v2/auth/logout"_s, "{}");
    backend.answer(u"GET api/v2/projects"_s,
                   R"({"projects":[{"slug":"ferry","label":"Night Ferry"},{"slug":"lantern"}]})");
    backend.answer(u"GET api/v2/projects/ferry/members"_s, R"([
        {"member_kind":"team","agent":{"id":"all"}},
        {"member_kind":"agent","agent":{"id":"scout","name":"Scout","role":"Research"}},
        {"member_kind":"agent","agent":{"id":"old","name":"Old","status":"archived"}},
        {"member_kind":"agent","agent":{"id":"scout","name":"Scout again"}},
        {"member_kind":"agent","agent":{"id":"loom"}},
        {"member_kind":"person"}])");
    backend.answer(u"GET api/v2/projects/lantern/members"_s, "[]");
    backend.answer(u"GET api/v2/custom-agents"_s, R"({"agents":[
        {"id":"scout","name":"Scout"},{"id":"ledger","name":"Ledger","role":"Finance"},
        {"id":"gone","name":"Gone","status":"hidden"}]})");
    backend.answer(u"GET api/v2/orchestrator"_s, R"({"agent_id":"kiv"})");
    backend.answer(u"GET api/v2/user/profile"_s, "{}");
    backend.answer(u"POST api/v2/rum"_s, "{}");
    for (const QString &chat :
         {kivChat, ferryChat, u"api/v2/projects/lantern/chat"_s,
          u"api/v2/custom-agents/scout/chat"_s, u"api/v2/custom-agents/loom/chat"_s,
          u"api/v2/custom-agents/ledger/chat"_s}) {
        history(chat, "[]");
        backend.answer(u"POST "_s + chat, "{}");
        backend.answer(u"POST "_s + chat + u"/stop"_s, "{}");
    }
    backend.answer(u"GET api/v2/projects/ferry/events"_s,
                   R"({"events":[{"id":1,"title":"Built"}]})");
    backend.answer(u"GET api/v2/projects/lantern/events"_s, "{}");
    restart();
}

void StoreFixture::restart(store::AppStore::Mode mode, const QString &draftsFile) {
    store.reset();
    client.reset();
    settings = std::make_unique<QSettings>(folder.filePath(u"kiv.conf"_s), QSettings::IniFormat);
    client = std::make_unique<net::APIClient>(clock, connectivity, folder.filePath(u"cookies"_s));
    client->setBaseUrl(backend.url());
    store = std::make_unique<store::AppStore>(
        clock, *client, *settings, draftsFile.isEmpty() ? folder.filePath(u"drafts"_s) : draftsFile,
        mode);
}

bool StoreFixture::signIn() {
    const QHash<QString, int> asked = backend.counts();
    store->boot();
    return soon([&] {
        const auto target = store->scope()->chatTarget();
        if (!target || store->chat()->msgs()->count() == 0)
            return false;
        const QString chat = target->streamPath().chopped(streamEnd.size());
        return isLoaded(chat, asked.value(u"GET "_s + chat) + pagesOfALine);
    });
}

/// The line of the chat stands, and that many pages have been asked for and are here.
bool StoreFixture::isLoaded(const QString &chat, int pages) const {
    return backend.isStreaming(chat + streamEnd) && backend.count(u"GET "_s + chat) >= pages &&
           !store->chat()->historyLoading();
}

bool StoreFixture::bootSignedOut() {
    backend.answer(u"GET api/v2/auth/me"_s, R"({"error":"Not signed in"})", 401);
    store->boot();
    return soon([this] { return store->scope()->auth() == store::AuthPhase::Anon; });
}

bool StoreFixture::streaming(const QString &chat, int connections) {
    return soon([&] {
        return backend.count(u"GET "_s + chat + streamEnd) == connections &&
               isLoaded(chat, pagesOfALine * connections);
    });
}

bool StoreFixture::reconnect(const QString &chat) {
    const QString path = chat + streamEnd;
    int connections = 0;
    int pages = 0;
    auto droppedAt = clock.elapsed();
    const auto drop = [&] {
        pages = backend.count(u"GET "_s + chat);
        connections = backend.count(u"GET "_s + path);
        droppedAt = clock.elapsed();
        backend.dropStream(path);
    };
    drop();
    return QTest::qWaitFor([&] {
               // Asked again without a pause: the network layer had not seen the answer before the
               // end.
               if (backend.isStreaming(path) && clock.elapsed() - droppedAt < 1s)
                   drop();
               const bool isBack = backend.count(u"GET "_s + path) > connections;
               if (!isBack)
                   clock.advance(50ms);
               return isBack;
           }) &&
           soon([&] { return isLoaded(chat, pages + pagesOfALine); });
}

bool StoreFixture::loseLine(const QString &chat, const QString &next) {
    const QString route = next.isEmpty() ? u"GET "_s + chat + streamEnd : next;
    const QString page = u"GET "_s + chat;
    const QHash<QString, int> before = backend.counts();
    backend.dropStream(chat + streamEnd);
    // The network layer may ask for the stream once by itself: the program asks for a page too.
    return QTest::qWaitFor([&] {
        const bool isAsked =
            backend.count(page) > before.value(page) && backend.count(route) > before.value(route);
        if (!isAsked)
            clock.advance(50ms);
        return isAsked;
    });
}

void StoreFixture::settled() {
    for (int trip = 0; trip < 3; ++trip)
        QCoro::waitFor(client->fetch(client->request("GET", u"nowhere"_s), {}));
}

void StoreFixture::row(qint64 id, const QString &text, const QString &role) {
    backend.sendRow(store->scope()->chatTarget()->streamPath(), rowJson(id, role, text));
}

bool StoreFixture::ask(const QString &question) {
    if (!signIn())
        return false;
    backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, question) + "}");
    store->chat()->send(question);
    return soon([this] { return msgs().rowOfServerID(7) >= 0; });
}

bool StoreFixture::draw(qint64 id, const QString &answer) {
    row(id, answer);
    const bool isDrawn =
        soon([this] { return store->canvas()->phase() == store::Phase::Building; });
    clock.advance(2s);
    return isDrawn;
}

QStringList StoreFixture::usage() const {
    QStringList names;
    for (const auto &request : backend.requests(u"POST api/v2/rum"_s))
        names.append(request.body.value(u"name"_s).toString());
    return names;
}

void StoreFixture::history(const QString &chat, const QByteArray &rows) {
    backend.answer(u"GET "_s + chat, R"({"messages":)" + rows + "}");
}

QStringList StoreFixture::textsOf(const store::MessageModel &model) {
    QStringList texts;
    for (const store::Msg &message : model.messages())
        texts.append(message.text);
    return texts;
}

} // namespace kiv::test
