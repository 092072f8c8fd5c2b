#pragma once

#include "base/Work.h"
#include "store/ChatLink.h"

#include <QObject>

#include <optional>

namespace kiv::store {

class AppStore;

/// The way in from outside the window: opens the chat that a link or a notice names, as soon as
/// somebody is signed in who has it.
class ChatDoor : public QObject {
    Q_OBJECT
public:
    explicit ChatDoor(AppStore &store);

    /// The chat that the window shows.
    ChatLink current() const;
    /// Goes to the chat. Signed out, the sign-in sheet comes first.
    void open(const ChatLink &link);
    /// Somebody has come in and all that there is to talk to is known.
    void enter();

private:
    bool goTo(const ChatLink &link);
    bool pick(const ChatLink &link);
    void askForSignIn();
    QCoro::Task<void> lookAgain(ChatLink link, Cancel cancel);

    AppStore &m_store;
    std::optional<ChatLink> m_wanted;
    Work m_look;
};

} // namespace kiv::store
