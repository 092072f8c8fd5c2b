#include "net/KivAPI.h"

namespace kiv::net::KivAPI {

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<ChatPage> history(APIClient *client, ChatTarget target, int limit, Cancel cancel) {
    const APIClient::Query query{{u"limit"_s, QString::number(limit)}};
    return client->get<ChatPage>(target.chatPath(), query, std::move(cancel));
}

QCoro::Task<ChatSendResult> sendChat(APIClient *client, ChatTarget target, QJsonObject body,
                                     QJsonArray attachments, Cancel cancel) {
    if (!attachments.isEmpty())
        body.insert(u"attachments"_s, attachments);
    const QByteArray reply = co_await client->postRaw(target.chatPath(), body, cancel);
    co_return decodeBody<ChatSendResult>(reply);
}

} // namespace

QCoro::Task<ChatPage> projectChatHistory(APIClient *client, QString slug, int limit,
                                         Cancel cancel) {
    return history(client, ChatTarget::project(std::move(slug)), limit, std::move(cancel));
}

QCoro::Task<ChatPage> agentChatHistory(APIClient *client, QString agentID, int limit,
                                       Cancel cancel) {
    return history(client, ChatTarget::agent(std::move(agentID)), limit, std::move(cancel));
}

QCoro::Task<ChatSendResult> sendProjectChat(APIClient *client, QString slug, QString text,
                                            QJsonArray attachments, Cancel cancel) {
    return sendChat(client, ChatTarget::project(std::move(slug)), {{u"text"_s, text}},
                    std::move(attachments), std::move(cancel));
}

QCoro::Task<ChatSendResult> sendAgentChat(APIClient *client, QString agentID, QString text,
                                          QString clientRequestID, QJsonArray attachments,
                                          Cancel cancel) {
    const QJsonObject body{
        {u"text"_s, text}, {u"mode"_s, u"live"_s}, {u"client_request_id"_s, clientRequestID}};
    return sendChat(client, ChatTarget::agent(std::move(agentID)), body, std::move(attachments),
                    std::move(cancel));
}

QCoro::Task<void> stopAgentChat(APIClient *client, QString agentID, Cancel cancel) {
    const QString path = ChatTarget::agent(std::move(agentID)).stopPath();
    co_await client->postRaw(path, QJsonObject(), cancel);
}

QCoro::Task<UploadResult> uploadChatFiles(APIClient *client, ChatTarget target,
                                          QList<MultipartFile> files, UploadProgress progress,
                                          Cancel cancel) {
    const QByteArray reply = co_await client->postMultipart(target.filesPath(), std::move(files),
                                                            std::move(progress), cancel);
    co_return decodeBody<UploadResult>(reply);
}

} // namespace kiv::net::KivAPI
