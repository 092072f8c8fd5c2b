#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

namespace kiv::net {

/// One stored chat message, from a page of history or from the live stream.
struct ChatRow {
    struct ChatRowMetadata {
        struct RawAttachment {
            std::optional<QString> name;
            std::optional<QString> filename;
            std::optional<QString> url;
            std::optional<QString> publicUrl;

            friend bool operator==(const RawAttachment &, const RawAttachment &) = default;
        };

        struct StarterRaw {
            std::optional<QString> label;
            std::optional<QString> prompt;

            friend bool operator==(const StarterRaw &, const StarterRaw &) = default;
        };

        std::optional<QString> memberLabel;
        std::optional<QList<RawAttachment>> attachments;
        std::optional<JVal> view;
        std::optional<QList<QString>> choiceOptions;
        std::optional<QList<StarterRaw>> starters;
        std::optional<bool> confirmAsk;
        std::optional<QString> errorMessage;

        friend bool operator==(const ChatRowMetadata &, const ChatRowMetadata &) = default;
    };

    std::optional<qint64> id;
    QString role;
    QString content;
    std::optional<ChatRowMetadata> metadata;
    std::optional<QString> createdAt; ///< timestamp text, as it came

    friend bool operator==(const ChatRow &, const ChatRow &) = default;
};

/// A page of chat history.
struct ChatPage {
    QList<ChatRow> messages;

    friend bool operator==(const ChatPage &, const ChatPage &) = default;
};

struct ChatSendResult {
    std::optional<ChatRow> message; ///< the stored message, when the backend echoes it

    friend bool operator==(const ChatSendResult &, const ChatSendResult &) = default;
};

namespace KivAPI {

struct UploadedFile {
    std::optional<bool> ok;
    std::optional<QString> name;
    std::optional<qint64> size; ///< bytes
    std::optional<QString> mime;
    std::optional<QString> text;
    std::optional<QString> url;
    std::optional<QString> key;
    std::optional<QString> kind;
    std::optional<QString> error; ///< why this one file failed

    friend bool operator==(const UploadedFile &, const UploadedFile &) = default;
};

struct UploadResult {
    std::optional<QList<UploadedFile>> files;

    friend bool operator==(const UploadResult &, const UploadResult &) = default;
};

} // namespace KivAPI

// clang-format off
template <>
inline constexpr auto tableOf<ChatRow::ChatRowMetadata::RawAttachment> = recordTable("ChatRow.ChatRowMetadata.RawAttachment",
    Field{&ChatRow::ChatRowMetadata::RawAttachment::name, "name"},
    Field{&ChatRow::ChatRowMetadata::RawAttachment::filename, "filename"},
    Field{&ChatRow::ChatRowMetadata::RawAttachment::url, "url"},
    Field{&ChatRow::ChatRowMetadata::RawAttachment::publicUrl, "public_url"});

template <>
inline constexpr auto tableOf<ChatRow::ChatRowMetadata::StarterRaw> = recordTable("ChatRow.ChatRowMetadata.StarterRaw",
    Field{&ChatRow::ChatRowMetadata::StarterRaw::label, "label"},
    Field{&ChatRow::ChatRowMetadata::StarterRaw::prompt, "prompt"});

template <>
inline constexpr auto tableOf<ChatRow::ChatRowMetadata> = recordTable("ChatRow.ChatRowMetadata",
    Field{&ChatRow::ChatRowMetadata::memberLabel, "member_label"},
    Field{&ChatRow::ChatRowMetadata::attachments, "attachments"},
    Field{&ChatRow::ChatRowMetadata::view, "view"},
    Field{&ChatRow::ChatRowMetadata::choiceOptions, "choice_options"},
    Field{&ChatRow::ChatRowMetadata::starters, "starters"},
    Field{&ChatRow::ChatRowMetadata::confirmAsk, "confirm_ask"},
    Field{&ChatRow::ChatRowMetadata::errorMessage, "error"});

template <>
inline constexpr auto tableOf<ChatRow> = recordTable("ChatRow",
    Field{&ChatRow::id, "id"},
    Field{&ChatRow::role, "role"},
    Field{&ChatRow::content, "content"},
    Field{&ChatRow::metadata, "metadata"},
    Field{&ChatRow::createdAt, "created_at"});

template <>
inline constexpr auto tableOf<ChatPage> = recordTable("ChatPage",
    Field{&ChatPage::messages, "messages"});

template <>
inline constexpr auto tableOf<ChatSendResult> = recordTable("ChatSendResult",
    Field{&ChatSendResult::message, "message"});

template <>
inline constexpr auto tableOf<KivAPI::UploadedFile> = recordTable("KivAPI.UploadedFile",
    Field{&KivAPI::UploadedFile::ok, "ok"},
    Field{&KivAPI::UploadedFile::name, "name"},
    Field{&KivAPI::UploadedFile::size, "size"},
    Field{&KivAPI::UploadedFile::mime, "mime"},
    Field{&KivAPI::UploadedFile::text, "text"},
    Field{&KivAPI::UploadedFile::url, "url"},
    Field{&KivAPI::UploadedFile::key, "key"},
    Field{&KivAPI::UploadedFile::kind, "kind"},
    Field{&KivAPI::UploadedFile::error, "error"});

template <>
inline constexpr auto tableOf<KivAPI::UploadResult> = recordTable("KivAPI.UploadResult",
    Field{&KivAPI::UploadResult::files, "files"});
// clang-format on

} // namespace kiv::net
