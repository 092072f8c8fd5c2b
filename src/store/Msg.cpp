#include "store/Msg.h"

#include "base/BaseUrl.h"
#include "base/IsoTime.h"
#include "canvas/AnswerReading.h"
#include "canvas/SceneAdapter.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

QList<MsgFile> msgFiles(const net::ChatRow &row) {
    QList<MsgFile> files;
    if (!row.metadata || !row.metadata->attachments)
        return files;
    for (const auto &attachment : *row.metadata->attachments) {
        QString url = attachment.url.value_or(QString());
        if (!isWebAddress(QUrl(url)))
            url = attachment.publicUrl.value_or(QString());
        if (!isWebAddress(QUrl(url)))
            continue;
        MsgFile file;
        file.name = attachment.name.value_or(attachment.filename.value_or(url));
        file.url = url;
        files.append(file);
    }
    return files;
}

canvas::ReplySources replySources(const net::ChatRow &row) {
    if (!row.metadata)
        return {};
    canvas::ReplySources sources{.choiceOptions = row.metadata->choiceOptions,
                                 .starters = std::nullopt,
                                 .confirmAsk = row.metadata->confirmAsk,
                                 .errorMessage = row.metadata->errorMessage};
    if (row.metadata->starters) {
        sources.starters.emplace();
        for (const auto &starter : *row.metadata->starters)
            sources.starters->append(
                {starter.label.value_or(QString()), starter.prompt.value_or(QString())});
    }
    return sources;
}

/// What bubble and canvas make of an answer.
void readAnswer(Msg &message, const net::ChatRow &row) {
    auto reading = canvas::readAnswer(message.text, message.view, replySources(row));
    message.chips = std::move(reading.chips);
    message.spec = std::move(reading.spec);
    message.isWhole = reading.isWhole;
    const auto scene =
        message.spec ? canvas::SceneAdapter::vals(*message.spec, std::nullopt) : std::nullopt;
    // What cannot be drawn stays to be read.
    message.shown = scene ? reading.shown : reading.text.trimmed();
    message.shownMeanwhile = canvas::withoutOpenBlock(message.shown);
    if (scene) {
        message.art = scene->art;
        message.title = scene->title;
    }
}

} // namespace

Msg localMsg(Who who, const QString &text) {
    Msg message;
    message.who = who;
    message.text = text;
    message.shown = text;
    message.shownMeanwhile = text;
    return message;
}

QList<MsgFile> msgFiles(const QList<ChatAttachment> &attachments) {
    QList<MsgFile> files;
    for (const ChatAttachment &attachment : attachments) {
        MsgFile file;
        file.name = attachment.name;
        file.url = attachment.url.value_or(QString());
        if (isWebAddress(QUrl(file.url)))
            files.append(file);
    }
    return files;
}

std::optional<Msg> rowToMsg(const net::ChatRow &row) {
    Msg message;
    if (row.role == u"user"_s)
        message.who = Who::You;
    else if (row.role == u"assistant"_s || row.role == u"agent"_s)
        message.who = Who::Agent;
    else
        return std::nullopt;
    message.text = row.content;
    message.shown = row.content;
    message.shownMeanwhile = row.content;
    message.serverID = row.id;
    message.files = msgFiles(row);
    message.at = parseDate(row.createdAt);
    if (row.metadata) {
        message.view = row.metadata->view;
        message.memberLabel = row.metadata->memberLabel.value_or(QString());
    }
    if (message.who == Who::Agent)
        readAnswer(message, row);
    return message;
}

} // namespace kiv::store
