// The call that creates, and where it leads.

#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CreateRoom.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

bool isListed(const ScopeRoom &scope, CreateKind kind, const QString &id) {
    return kind == CreateKind::Project ? scope.hasProject(id) : scope.homeOf(id).has_value();
}

} // namespace

void CreateRoom::submit() {
    m_asking = false;
    m_failure = QString();
    m_phase = CreatePhase::Sending;
    m_work.restart([this](Cancel cancel) { return create(std::move(cancel)); });
}

QCoro::Task<void> CreateRoom::create(Cancel cancel) {
    try {
        if (m_kind.value() == CreateKind::Project)
            co_await createProject(cancel);
        else
            co_await createAgent(cancel);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_failure = net::errorText(error);
        m_phase = CreatePhase::Editing;
        co_return;
    }
    m_asking = false;
    m_phase = CreatePhase::Created;
    co_await reloadRail(cancel);
}

QCoro::Task<void> CreateRoom::createProject(Cancel cancel) {
    const net::ProjectSummary made = co_await net::KivAPI::createProject(
        &m_store.net(), name().trimmed(), text().trimmed(), cancel);
    m_createdId = made.slug;
}

QCoro::Task<void> CreateRoom::createAgent(Cancel cancel) {
    const net::AgentCreateResult made =
        co_await net::KivAPI::createAgent(&m_store.net(), name().trimmed(), text().trimmed(),
                                          draft().description(m_catalogue), m_parent, cancel);
    m_createdId = made.agentID().value_or(QString());
    const QList<QString> warnings = made.projectWarnings.value_or(QList<QString>());
    if (!warnings.isEmpty())
        m_notice = u"%1 created. Could not add: %2"_s.arg(name().trimmed(), warnings.join(u", "_s));
}

QCoro::Task<void> CreateRoom::reloadRail(Cancel cancel) {
    m_failure = QString();
    try {
        co_await m_store.scope()->reloadRail(cancel);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        // It may be there and the members of another project not.
        if (!isListed(*m_store.scope(), m_kind, m_createdId)) {
            m_failure = tr("%1 is created, but the list could not be loaded: %2")
                            .arg(name().trimmed(), net::errorText(error));
            co_return;
        }
    }
    m_listed = true;
    if (m_notice.value().isEmpty())
        enterCreated();
}

void CreateRoom::openCreated() {
    m_notice = QString(); // it has been read
    if (m_listed)
        enterCreated();
    else
        m_work.restart([this](Cancel cancel) { return reloadRail(std::move(cancel)); });
}

void CreateRoom::enterCreated() {
    const QString id = m_createdId;
    const CreateKind kind = m_kind;
    close();
    if (id.isEmpty())
        return;
    ScopeRoom *scope = m_store.scope();
    if (kind == CreateKind::Project)
        return scope->enterProject(id);
    if (!scope->enterAgent(id))
        scope->pickStandaloneAgent(id);
}

} // namespace kiv::store
