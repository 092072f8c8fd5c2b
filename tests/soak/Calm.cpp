#include "soak/Calm.h"

#include "soak/Places.h"
#include "soak/Stage.h"
#include "soak/Waiting.h"

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using store::Msg;

namespace {

/// Of the program's own time. A request may be silent for a minute; a lost line is tried again
/// after half a minute at most.
constexpr std::chrono::seconds restBound = 130s;
constexpr std::chrono::seconds agreeBound = 100s;
constexpr std::chrono::seconds enterBound = 100s;
constexpr qsizetype pageSize = 80;

/// What the program is still at; empty when it rests.
QString unrest(store::AppStore &store) {
    if (store.scope()->auth() == store::AuthPhase::Unknown)
        return u"who is signed in is not known"_s;
    if (store.session()->busy() || store.session()->isEntering())
        return u"a sign-in is under way"_s;
    if (store.chat()->historyLoading())
        return u"the history is being loaded"_s;
    for (const Msg &message : store.chat()->msgs()->messages()) {
        if (message.isUnsent() && !message.failed)
            return u"\"%1\" is pending"_s.arg(message.text.right(60));
    }
    if (store.attachments()->chatUploading())
        return u"a file is being uploaded"_s;
    if (store.account()->saveState() == store::SaveState::Saving)
        return u"the profile is being saved"_s;
    if (store.events()->eventsLoading())
        return u"the events are being loaded"_s;
    if (store.find()->isSearching())
        return u"a search is under way"_s;
    return {};
}

const User &userOf(const Stage &stage, const QString &email) {
    const auto user = std::ranges::find(stage.users, email, &User::email);
    if (user == stage.users.end())
        qFatal("Somebody unknown is signed in");
    return *user;
}

/// The stored rows of the screen and those of the server end alike; empty when they do. Until the
/// conversation is entered anew a message stays where it was typed, though the server may have got
/// another one first.
QString difference(const QList<Msg> &messages, const QList<Stored> &stored) {
    QList<Msg> shown;
    std::ranges::copy_if(messages, std::back_inserter(shown),
                         [](const Msg &message) { return message.serverID.has_value(); });
    std::ranges::sort(shown, {}, &Msg::serverID);
    if (shown.size() < std::min(pageSize, stored.size()))
        return u"%1 rows are shown of %2"_s.arg(shown.size()).arg(stored.size());
    for (qsizetype back = 1; back <= std::min(shown.size(), stored.size()); ++back) {
        const Msg &here = shown.at(shown.size() - back);
        const Stored &there = stored.at(stored.size() - back);
        if (here.serverID != there.id)
            return u"row %1 is shown where %2 is stored"_s.arg(*here.serverID).arg(there.id);
        if (here.text != there.text)
            return u"row %1 is shown with %2 characters of %3"_s.arg(there.id)
                .arg(here.text.size())
                .arg(there.text.size());
    }
    return {};
}

/// The last rows of both sides, with what the program is at: what to look at when they differ.
QString lastRows(store::ChatRoom &room, const QList<Stored> &stored) {
    constexpr qsizetype told = 6;
    QStringList here;
    for (const Msg &message :
         room.msgs()->messages().last(std::min<qsizetype>(told, room.msgs()->count()))) {
        const QString row = message.serverID ? QString::number(*message.serverID) : u"-"_s;
        here.append(row + u' ' + message.text.left(20).simplified());
    }
    QStringList there;
    for (const Stored &row : stored.last(std::min(told, stored.size())))
        there.append(QString::number(row.id) + u' ' + row.text.left(20).simplified());
    return u"\n  shown:  %1\n  stored: %2\n  waiting %3, connection %4"_s.arg(here.join(u" | "_s))
        .arg(there.join(u" | "_s))
        .arg(room.liveWaiting())
        .arg(room.chatGen());
}

/// What was sent to this chat is on the server as often as it may be; what is not there is on the
/// screen as not sent, or in the draft.
QString accountFor(Stage &stage, const Chat &chat, const QList<Stored> &stored) {
    std::map<int, QList<Stored>> ours;
    for (const Stored &row : stored) {
        if (row.isOurs)
            ours[Ledger::numberIn(row.text)].append(row);
    }
    const qint64 oldest = stored.isEmpty() ? 0 : stored.constFirst().id;
    const store::MessageModel *messages = stage.store().chat()->msgs();
    const QString draft = stage.store().chat()->draft();
    for (auto &[number, sent] : stage.ledger.sent) {
        if (sent.chat != chat)
            continue;
        const QString name = Ledger::tag(number);
        const QList<Stored> &rows = ours[number];
        if (rows.size() > sent.most)
            return u"%1 was sent %2 times and is stored %3 times"_s.arg(name).arg(sent.most).arg(
                rows.size());
        for (const qint64 row : sent.rows) {
            if (row >= oldest && std::ranges::find(rows, row, &Stored::id) == rows.end())
                return u"%1 was shown as sent and is not stored"_s.arg(name);
        }
        for (const Stored &row : rows) {
            if (row.files > sent.files)
                return u"%1 is stored with %2 files of %3"_s.arg(name).arg(row.files).arg(
                    sent.files);
        }
        const bool isUnsent = messages->find([&, wanted = number](const Msg &message) {
            return message.isUnsent() && Ledger::numberIn(message.text) == wanted;
        }) >= 0;
        if (isUnsent && rows.size() >= sent.most && !sent.isMistimed)
            return u"%1 is stored and shown as not sent"_s.arg(name);
        const bool isTyped = Ledger::carries(draft, number);
        // Of a long conversation only the newest rows are asked for.
        sent.isStored = sent.isStored || !rows.isEmpty() || !sent.rows.empty();
        if (!sent.isStored && !isUnsent && !isTyped && !sent.isGone)
            return u"%1 is lost; the draft is \"%2\""_s.arg(name, draft.right(200));
    }
    return {};
}

/// A field that counts as stored is what the server has.
QString accountForProfile(store::AccountRoom &account, const QJsonObject &profile) {
    if (account.profileLoad() != store::LoadState::Ready || profile.isEmpty())
        return {};
    for (const QString &key : {u"full_name"_s, u"company_name"_s, u"industry"_s}) {
        const store::AccountField *field = account.field(key);
        const bool isKept =
            field->state() == store::SaveState::Stored || field->state() == store::SaveState::Saved;
        if (isKept && field->text() != profile.value(key).toString())
            return u"%1 shows \"%2\" and is stored as \"%3\""_s.arg(key, field->text(),
                                                                    profile.value(key).toString());
    }
    return {};
}

} // namespace

bool Calm::hasFailed() const {
    return !m_stage.failure.isEmpty();
}

/// Waits for a moment of real time, then lets the program's time run faster, though not so fast
/// that a busy computer misses it.
template <typename Holds>
bool Calm::within(std::chrono::seconds bound, Holds holds) {
    if (waitUntil(2s, holds))
        return true;
    const auto begin = m_stage.clock.elapsed();
    while (!holds()) {
        if (m_stage.clock.elapsed() - begin > bound || hasFailed())
            return false;
        m_stage.clock.sleep(1s);
        letRun(200ms);
    }
    return true;
}

bool Calm::restore() {
    m_stage.isFrozen = false;
    if (m_stage.server.hasCrashed())
        m_stage.fail(u"the server has crashed"_s);
    if (!m_stage.server.heal()) {
        m_stage.fail(u"the server does not come back"_s);
        return false;
    }
    m_stage.isCableIn = true;
    m_stage.cable.setOnline(true);
    return true;
}

bool Calm::comeToRest() {
    QString what;
    const auto isAtRest = [&] {
        what = m_stage.leaving.isEmpty() ? unrest(m_stage.store()) : u"signing out"_s;
        return what.isEmpty();
    };
    if (!within(restBound, isAtRest)) {
        m_stage.fail(u"nothing comes to rest: "_s + what);
        return false;
    }
    store::AppStore &store = m_stage.store();
    if (store.scope()->auth() == store::AuthPhase::Anon) {
        const User &user = m_stage.random.of(m_stage.users);
        store.session()->openAuthSheet(store::AuthSheetMode::Login);
        store.session()->submitAuth(user.email, user.password, false);
    }
    const bool isIn = within(enterBound, [&] {
        return m_stage.chat() && unrest(store).isEmpty() && !store.scope()->projects().isEmpty();
    });
    if (!isIn)
        m_stage.fail(u"nobody to talk to: %1, %2 projects"_s
                         .arg(m_stage.chat() ? m_stage.chat()->path : u"no chat"_s)
                         .arg(store.scope()->projects().size()));
    return isIn;
}

void Calm::checkOpenChat() {
    const Chat chat = *m_stage.chat();
    const User &user = userOf(m_stage, chat.user);
    QList<Stored> stored;
    QString apart;
    // The server is asked again when the screen does not agree: answers grow meanwhile.
    const bool isAgreed = within(agreeBound, [&] {
        if (m_stage.chat() != chat)
            return true;
        const auto rows = m_witness.rows(user.email, user.password, chat.path);
        if (!rows) {
            apart = u"the server does not tell"_s;
            return false;
        }
        stored = *rows;
        apart = difference(m_stage.store().chat()->msgs()->messages(), stored);
        return apart.isEmpty();
    });
    if (m_stage.chat() != chat)
        return;
    if (!isAgreed) {
        m_stage.fail(u"the screen does not come to agree with the server: "_s + apart +
                     lastRows(*m_stage.store().chat(), stored));
        return;
    }
    QString fault = accountFor(m_stage, chat, stored);
    if (fault.isEmpty())
        fault = accountForProfile(*m_stage.store().account(),
                                  m_witness.profile(user.email, user.password));
    if (!fault.isEmpty())
        m_stage.fail(fault);
}

void Calm::check(Extent extent) {
    if (!restore() || !comeToRest())
        return;
    m_stage.store().account()->loadProfile();
    if (m_stage.isCleared) {
        // What was taken off the screen comes back when the conversation is entered.
        store::ScopeRoom *scope = m_stage.store().scope();
        scope->enterProject(scope->projects().constFirst().id);
        scope->pickGlobal();
        m_stage.isCleared = false;
        if (!comeToRest())
            return;
    }
    checkOpenChat();
    if (extent == Extent::Open)
        return;
    store::ScopeRoom *scope = m_stage.store().scope();
    for (const Place &place : places(*scope)) {
        enter(*scope, place);
        if (!comeToRest())
            return;
        checkOpenChat();
    }
}

} // namespace kiv::soak
