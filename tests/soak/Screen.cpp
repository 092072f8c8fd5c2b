#include "soak/Screen.h"

#include "soak/Stage.h"

#include <algorithm>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using store::Msg;

namespace {

/// What is wrong; empty when nothing is.
using Check = QString (*)(Stage &);

const QList<Msg> &shown(Stage &stage) {
    return stage.store().chat()->msgs()->messages();
}

/// What the ledger has of the row of this message, which stands in this conversation now.
Row &rowOf(Stage &stage, const Msg &message, const Chat *chat) {
    Row &row = stage.ledger.rows[*message.serverID];
    if (!row.chat)
        row.chat = chat;
    return row;
}

QString nothingTwice(Stage &stage) {
    QSet<qint64> rows;
    std::map<int, int> times;
    for (const Msg &message : shown(stage)) {
        if (message.serverID && rows.contains(*message.serverID))
            return u"row %1 is shown twice"_s.arg(*message.serverID);
        if (message.serverID)
            rows.insert(*message.serverID);
        if (message.who == store::Who::You)
            ++times[Ledger::numberIn(message.text)];
    }
    for (const auto &[number, count] : times) {
        const auto sent = stage.ledger.sent.find(number);
        if (sent != stage.ledger.sent.end() &&
            count > sent->second.most + (sent->second.isMistimed ? 1 : 0))
            return u"message #k%1 is shown %2 times and was sent %3 times"_s.arg(number)
                .arg(count)
                .arg(sent->second.most);
    }
    return {};
}

/// Rows and messages of ours belong to the conversation that they stand in, and nothing stands
/// where there is no conversation.
QString nothingOfAnotherChat(Stage &stage) {
    const auto current = stage.chat();
    const Chat *chat = current ? &stage.ledger.known(*current) : nullptr;
    for (const Msg &message : shown(stage)) {
        if (!chat) {
            if (message.serverID || message.isUnsent())
                return u"\"%1\" is shown to nobody"_s.arg(message.text.left(60));
            continue;
        }
        stage.ledger.messages.insert(message.id, chat);
        if (message.serverID && rowOf(stage, message, chat).chat != chat)
            return u"row %1 of another chat is shown"_s.arg(*message.serverID);
        const auto sent = message.who == store::Who::You
                              ? stage.ledger.sent.find(Ledger::numberIn(message.text))
                              : stage.ledger.sent.end();
        if (sent != stage.ledger.sent.end() && sent->second.chat != *chat)
            return u"message #k%1 of another chat is shown"_s.arg(sent->first);
        if (sent != stage.ledger.sent.end() && message.serverID &&
            std::ranges::find(sent->second.rows, *message.serverID) == sent->second.rows.end())
            sent->second.rows.push_back(*message.serverID);
    }
    return {};
}

QString answersGrow(Stage &stage) {
    for (const Msg &message : shown(stage)) {
        if (!message.serverID)
            continue;
        qsizetype &length = stage.ledger.rows[*message.serverID].length;
        if (message.text.size() < length)
            return u"row %1 has shrunk from %2 to %3 characters"_s.arg(*message.serverID)
                .arg(length)
                .arg(message.text.size());
        length = message.text.size();
    }
    return {};
}

/// The draft is what was typed last in this chat. What an expired session or the end of the program
/// kept from being sent may have come in front of it, when the chat is entered.
QString draftIsKept(Stage &stage) {
    const auto chat = stage.chat();
    const bool isEntered = chat != std::exchange(stage.entered, chat);
    if (!chat)
        return {};
    const QString draft = stage.store().chat()->draft();
    QString &left = stage.ledger.drafts[*chat];
    const bool isKept = isEntered ? draft.contains(left) : draft == left;
    if (!isKept)
        return u"the draft \"%1\" has become \"%2\""_s.arg(left.left(200), draft.left(200));
    left = draft;
    return {};
}

/// What is on the canvas comes from the conversation beside it.
QString canvasBelongs(Stage &stage) {
    const QUuid source = QUuid::fromString(stage.store().canvas()->sourceMessageId());
    const bool isScene = stage.store().canvas()->state() == store::CanvasState::Scene;
    const auto chat = stage.chat();
    const Chat *shownIn = stage.ledger.messages.value(source);
    if (!isScene || !chat || !shownIn || *shownIn == *chat)
        return {};
    return u"the canvas shows a scene of another chat"_s;
}

constexpr std::pair<const char *, Check> checks[] = {
    {"nothing is shown twice", nothingTwice},
    {"nothing of another chat is shown", nothingOfAnotherChat},
    {"an answer only grows", answersGrow},
    {"a draft is kept", draftIsKept},
    {"the canvas belongs to the chat", canvasBelongs},
};

} // namespace

Screen::Screen(Stage &stage) : m_stage(stage) {
    store::AppStore &store = stage.store();
    const store::MessageModel *messages = store.chat()->msgs();
    const auto scheduled = [this] { schedule(); };
    connect(messages, &QAbstractItemModel::rowsInserted, this, scheduled);
    connect(messages, &QAbstractItemModel::rowsRemoved, this, scheduled);
    connect(messages, &QAbstractItemModel::dataChanged, this, scheduled);
    connect(store.chat(), &store::ChatRoom::draftChanged, this, scheduled);
    connect(store.canvas(), &store::CanvasRoom::stateChanged, this, scheduled);
    connect(store.scope(), &store::ScopeRoom::authChanged, this, [this] {
        // Only then it shows why.
        Stage &on = m_stage;
        QMetaObject::invokeMethod(
            this,
            [&on] {
                on.takeLeave();
                const bool isOut = on.store().scope()->auth() == store::AuthPhase::Anon;
                on.note(isOut ? u"  signed out"_s : u"  signed in"_s);
            },
            Qt::QueuedConnection);
    });
}

void Screen::schedule() {
    if (!std::exchange(m_isScheduled, true))
        QMetaObject::invokeMethod(this, &Screen::look, Qt::QueuedConnection);
}

void Screen::look() {
    const MainThread::OwnDoing looking(m_stage.thread);
    m_isScheduled = false;
    for (const auto &[name, check] : checks) {
        const QString fault = check(m_stage);
        if (!fault.isEmpty())
            m_stage.fail(QString::fromLatin1(name) + u": "_s + fault);
    }
}

} // namespace kiv::soak
