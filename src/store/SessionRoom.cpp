#include "store/SessionRoom.h"

#include "base/Text.h"
#include "net/APIError.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"

#include <QTimeZone>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype leastPassword = 8;
/// How soon what did not come at the start is asked for again, and how seldom at last.
constexpr Clock::Milliseconds firstPause = 2s;
constexpr Clock::Milliseconds longestPause = 30s;

/// What of the workspace has not been loaded.
struct Missing {
    bool rail = true;
    bool kiv = true;
    bool isRefused = false; ///< to whoever asks now
};

/// Asks for what is missing; the result is what still is.
QCoro::Task<Missing> loadWorkspace(ScopeRoom *scope, Missing missing, Cancel cancel) {
    missing.isRefused = false;
    try {
        if (missing.rail)
            co_await scope->reloadRail(cancel);
        missing.rail = false;
    } catch (const std::exception &error) {
        // The rail of before stays.
        cancel.throwIfRequested();
        missing.isRefused = net::isUnauthorized(error);
    }
    try {
        if (missing.kiv)
            co_await scope->resolveKiv(cancel);
        missing.kiv = false;
    } catch (const std::exception &error) {
        // Without it the global scope has nobody to talk to; everything else works.
        cancel.throwIfRequested();
        missing.isRefused |= net::isUnauthorized(error);
    }
    co_return missing;
}

/// What the person can change so that a refused attempt succeeds.
AuthField fieldOf(const std::exception &error, bool signup) {
    const auto *refusal = dynamic_cast<const net::APIError *>(&error);
    if (!refusal)
        return AuthField::None;
    switch (refusal->kind()) {
    case net::APIError::Kind::Unauthorized:
        return AuthField::Password;
    case net::APIError::Kind::Server:
        // An address that is taken, or is none.
        return refusal->status() < 500 && signup ? AuthField::Email : AuthField::None;
    default:
        return AuthField::None;
    }
}

} // namespace

SessionRoom::SessionRoom(AppStore &store) : m_store(store) {}

void SessionRoom::boot() {
    m_check.restart([this](Cancel cancel) { return checkSession(std::move(cancel)); });
}

QCoro::Task<void> SessionRoom::checkSession(Cancel cancel) {
    for (auto pause = firstPause;; pause = std::min(2 * pause, longestPause)) {
        std::optional<net::MeUser> user;
        bool hasAnswered = true;
        try {
            user = co_await net::KivAPI::currentUser(&m_store.net(), cancel);
        } catch (const std::exception &error) {
            cancel.throwIfRequested();
            hasAnswered = net::isUnauthorized(error);
        }
        if (user && !m_busy) {
            closeAuthSheet();
            enterLive(*user);
            co_return;
        }
        m_store.scope()->setSignedOut();
        if (hasAnswered && !user)
            co_return;
        // There may be a session all the same: who started before the network need not sign in. One
        // that is found while the person signs in is asked for again, in case they do not get in.
        co_await m_store.clock().sleep(pause, cancel);
    }
}

void SessionRoom::enterLive(const net::MeUser &user) {
    m_check.cancel();
    m_entering = true;
    m_store.dictation()->stop();
    m_store.scope()->adopt(user);
    m_live.restart([this](Cancel cancel) { return bootLive(std::move(cancel)); });
}

QCoro::Task<void> SessionRoom::bootLive(Cancel cancel) {
    ScopeRoom *scope = m_store.scope();
    Missing missing = co_await loadWorkspace(scope, {}, cancel);
    scope->restoreScope();
    m_entering = false;
    m_store.door()->enter();
    // The person may have entered a project meanwhile, and asked there.
    const auto target = scope->chatTarget();
    if (!target || target != m_store.chat()->connected())
        m_store.chat()->connectChat();
    co_await scope->refreshUserAvatarIfNeeded(cancel);
    for (auto pause = firstPause; missing.rail || missing.kiv;
         pause = std::min(2 * pause, longestPause)) {
        // The session may have ended after it was asked for, as by a sign-out that came late.
        if (missing.isRefused && co_await isOver(cancel)) {
            expire();
            co_return;
        }
        co_await m_store.clock().sleep(pause, cancel);
        missing = co_await loadWorkspace(scope, missing, cancel);
        // Where the person has gone meanwhile they stay.
        if (scope->chatTarget() && !m_store.chat()->connected()) {
            scope->restoreScope();
            m_store.chat()->connectChat();
        }
    }
}

QCoro::Task<bool> SessionRoom::isOver(Cancel cancel) {
    try {
        co_await net::KivAPI::currentUser(&m_store.net(), cancel);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        co_return net::isUnauthorized(error);
    }
    co_return false;
}

void SessionRoom::submitAuth(const QString &email, const QString &password, bool signup) {
    const QString address = email.trimmed();
    if (address.isEmpty() || characterCount(password) < leastPassword) {
        reportError(address.isEmpty() ? AuthField::Email : AuthField::Password,
                    u"Enter a valid email and a password of at least 8 characters."_s);
        return;
    }
    m_auth.restart([this, address, password, signup](Cancel cancel) {
        return authenticate(address, password, signup, std::move(cancel));
    });
}

QCoro::Task<void> SessionRoom::authenticate(QString email, QString password, bool signup,
                                            Cancel cancel) {
    m_busy = true;
    m_authError = QString();
    net::APIClient *client = &m_store.net();
    try {
        const QString zone = QString::fromLatin1(QTimeZone::systemTimeZoneId());
        net::AuthResult result;
        if (signup)
            result = co_await net::KivAPI::signup(client, email, password, zone, cancel);
        else
            result = co_await net::KivAPI::login(client, email, password, cancel);
        enterLive(result.user);
        m_authSheet = AuthSheetMode::Closed;
    } catch (const std::exception &error) {
        const QString text = net::errorText(error);
        m_busy = false;
        cancel.throwIfRequested();
        reportError(fieldOf(error, signup), text.isEmpty() ? u"Sign in failed."_s : text);
    }
    m_busy = false;
}

void SessionRoom::reportError(AuthField field, const QString &text) {
    m_errorField = field;
    m_authError = text;
    Q_EMIT authFailed();
}

void SessionRoom::trySample() {
    if (m_sampleOffered)
        submitAuth(m_sample.email, m_sample.password, false);
}

void SessionRoom::offerSample(const SampleAccount &account) {
    m_sample = account;
    m_sampleOffered = !account.email.isEmpty();
}

void SessionRoom::openAuthSheet(AuthSheetMode mode) {
    m_store.layout()->closePopovers();
    m_authError = QString();
    m_authSheet = mode;
}

void SessionRoom::closeAuthSheet() {
    m_auth.cancel();
    m_authError = QString();
    m_authSheet = AuthSheetMode::Closed;
}

void SessionRoom::reportUnavailable(const QString &why) {
    m_store.scope()->setSignedOut();
    m_store.connection()->setFailure(why);
}

void SessionRoom::logout() {
    m_auth.restart([this](Cancel cancel) { return signOut(std::move(cancel)); });
}

QCoro::Task<void> SessionRoom::signOut(Cancel cancel) {
    co_await m_store.call()->endCall(cancel);
    try {
        co_await net::KivAPI::logout(&m_store.net(), cancel);
    } catch (const std::exception &) {
        // Signing out here does not depend on the server.
        cancel.throwIfRequested();
    }
    m_store.net().cookies().clear();
    m_store.chat()->forgetTyped();
    resetToAnon();
}

void SessionRoom::expire() {
    if (m_auth.running())
        return; // the person signs out: what is refused meanwhile is refused for that
    m_store.chat()->end();
    resetToAnon();
    openAuthSheet(AuthSheetMode::Login);
}

void SessionRoom::resetToAnon() {
    m_store.call()->leaveCall();
    m_live.cancel();
    m_entering = false;
    m_store.create()->close();
    m_store.chat()->disconnectChat();
    m_store.scope()->clear();
    m_store.call()->clear();
    m_store.events()->clear();
    m_store.account()->clear();
    m_store.canvas()->forgetAll();
    m_store.chat()->newChat();
}

} // namespace kiv::store
