#pragma once

#include "net/APIClient.h"
#include "net/AccountRecords.h"
#include "net/AgentRecords.h"
#include "net/ChatRecords.h"
#include "net/ChatTarget.h"
#include "net/ProjectRecords.h"
#include "net/SessionRecords.h"
#include "net/VoiceRecords.h"

#include <QJsonArray>

/// The backend's endpoints as typed calls. The client outlives each call, or cancels it.
namespace kiv::net::KivAPI {

// Session
QCoro::Task<MeUser> currentUser(APIClient *client, Cancel cancel);
QCoro::Task<AuthResult> login(APIClient *client, QString email, QString password, Cancel cancel);
QCoro::Task<AuthResult> signup(APIClient *client, QString email, QString password, QString timeZone,
                               Cancel cancel);
QCoro::Task<void> logout(APIClient *client, Cancel cancel);

// Projects and agents
QCoro::Task<ProjectsList> projects(APIClient *client, Cancel cancel);
QCoro::Task<QList<ProjectMember>> projectRoster(APIClient *client, QString slug, Cancel cancel);
QCoro::Task<QList<ProjectEvent>> projectEvents(APIClient *client, QString slug, int limit,
                                               Cancel cancel);
QCoro::Task<ProjectSummary> createProject(APIClient *client, QString label, QString brief,
                                          Cancel cancel);
QCoro::Task<AgentsList> agents(APIClient *client, Cancel cancel);
QCoro::Task<OrchestratorInfo> orchestrator(APIClient *client, Cancel cancel);
/// `projectSlug` is empty for an agent that belongs to no project.
QCoro::Task<AgentCreateResult> createAgent(APIClient *client, QString name, QString role,
                                           QString description, QString projectSlug, Cancel cancel);

// Chat. Attachments go out as they are.
QCoro::Task<ChatPage> projectChatHistory(APIClient *client, QString slug, int limit, Cancel cancel);
QCoro::Task<ChatPage> agentChatHistory(APIClient *client, QString agentID, int limit,
                                       Cancel cancel);
QCoro::Task<ChatSendResult> sendProjectChat(APIClient *client, QString slug, QString text,
                                            QJsonArray attachments, Cancel cancel);
QCoro::Task<ChatSendResult> sendAgentChat(APIClient *client, QString agentID, QString text,
                                          QString clientRequestID, QJsonArray attachments,
                                          Cancel cancel);
QCoro::Task<void> stopAgentChat(APIClient *client, QString agentID, Cancel cancel);
QCoro::Task<UploadResult> uploadChatFiles(APIClient *client, ChatTarget target,
                                          QList<MultipartFile> files, UploadProgress progress,
                                          Cancel cancel);

// Account
QCoro::Task<UserProfile> profile(APIClient *client, Cancel cancel);
/// `changes` maps the profile's wire keys to their new values.
QCoro::Task<UserProfile> patchProfile(APIClient *client, QJsonObject changes, Cancel cancel);
QCoro::Task<PlanInfo> plan(APIClient *client, Cancel cancel);
QCoro::Task<WalletInfo> wallet(APIClient *client, Cancel cancel);
/// Throws PasswordError, or a Server error of status 400, before it asks the backend.
/// `current` is empty for an account that has no password yet.
QCoro::Task<void> changePassword(APIClient *client, QString current, QString changed,
                                 QString confirmed, Cancel cancel);
/// The new picture's address; nothing when the reply names none.
QCoro::Task<std::optional<QString>> uploadAvatar(APIClient *client, MultipartFile picture,
                                                 Cancel cancel);

// Voice
QCoro::Task<VoiceCapability> voiceCapability(APIClient *client, Cancel cancel);
QCoro::Task<VoiceSession> voiceSession(APIClient *client, QString agentID, Cancel cancel);
QCoro::Task<QList<VoiceCallEntry>> voiceCalls(APIClient *client, QString agentID, int limit,
                                              Cancel cancel);
QCoro::Task<VoiceCallDetail> voiceCall(APIClient *client, QString callID, Cancel cancel);
QCoro::Task<void> voiceEnd(APIClient *client, QString callID, Cancel cancel);

/// Reports a usage event; whether it arrives does not matter.
void rum(APIClient *client, QString name, QJsonObject context);

} // namespace kiv::net::KivAPI
