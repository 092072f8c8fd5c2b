#include "store/ChatDoor.h"

#include "store/AppStore.h"

namespace kiv::store {

ChatDoor::ChatDoor(AppStore &store) : m_store(store) {
    connect(store.scope(), &ScopeRoom::authChanged, this, [this] {
        m_look.cancel();
        askForSignIn();
    });
    // Who goes somewhere by themselves meanwhile has changed their mind.
    for (const auto changed : {&ScopeRoom::projectChanged, &ScopeRoom::agentChanged})
        connect(store.scope(), changed, this, [this] { m_look.cancel(); });
}

void ChatDoor::open(const ChatLink &link) {
    m_wanted = link;
    if (m_store.scope()->auth() == AuthPhase::SignedIn && !m_store.session()->isEntering())
        enter();
    else
        askForSignIn();
}

void ChatDoor::askForSignIn() {
    if (m_wanted && m_store.scope()->auth() == AuthPhase::Anon)
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
}

void ChatDoor::enter() {
    const auto link = std::exchange(m_wanted, std::nullopt);
    if (link && !goTo(*link))
        m_look.restart([this, link](Cancel cancel) { return lookAgain(*link, std::move(cancel)); });
}

bool ChatDoor::goTo(const ChatLink &link) {
    // Going where one is would begin the chat anew, and clear its canvas.
    if (current() != link && !pick(link))
        return false;
    m_store.call()->leaveCallScreen();
    m_store.account()->leave();
    m_store.layout()->focusAsk();
    return true;
}

ChatLink ChatDoor::current() const {
    const ScopeRoom *scope = m_store.scope();
    if (!scope->agent().isEmpty())
        return {ScopeKind::Agent, scope->agent()};
    if (!scope->project().isEmpty())
        return {ScopeKind::Project, scope->project()};
    return {};
}

bool ChatDoor::pick(const ChatLink &link) {
    ScopeRoom *scope = m_store.scope();
    switch (link.kind) {
    case ScopeKind::Kiv:
        scope->pickGlobal();
        return true;
    case ScopeKind::Project:
        if (!scope->hasProject(link.id))
            return false;
        scope->enterProject(link.id);
        return true;
    case ScopeKind::Agent:
        return scope->enterAgent(link.id);
    }
    return false;
}

/// The chat may be newer than the rail.
QCoro::Task<void> ChatDoor::lookAgain(ChatLink link, Cancel cancel) {
    try {
        co_await m_store.scope()->reloadRail(cancel);
    } catch (const std::exception &) {
        // It is then not among those of before.
        cancel.throwIfRequested();
    }
    if (!goTo(link))
        m_store.chat()->showNote(tr("The chat of this link is not in your workspace."));
}

} // namespace kiv::store
