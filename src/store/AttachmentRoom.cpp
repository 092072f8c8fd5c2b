#include "store/AttachmentRoom.h"

#include "base/Background.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/FileTypes.h"

#include <QPointer>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

QString tooManyFiles() {
    return u"Too many files — the limit is %1"_s.arg(AttachmentModel::most);
}

/// The first reason, and how many files more were left out.
QString refusalNote(const QStringList &refusals) {
    if (refusals.size() < 2)
        return refusals.value(0);
    return AttachmentRoom::tr("%1 Files left out: %2.").arg(refusals.first()).arg(refusals.size());
}

QString uploadNote(const std::exception &error) {
    QString reason = net::errorText(error).trimmed();
    if (!reason.isEmpty() && !reason.endsWith(u'.'))
        reason += u'.';
    return u"%1 The upload failed."_s.arg(reason).trimmed();
}

QList<PickedFile::Read> readAll(const QList<PickedFile> &files) {
    QList<PickedFile::Read> read;
    for (const PickedFile &file : files)
        read.append(file.read());
    return read;
}

} // namespace

AttachmentRoom::AttachmentRoom(AppStore &store) : m_store(store) {}

void AttachmentRoom::pickChatFiles() {
    if (!mayAttach() || m_chatUploading || m_choosing || !m_chooser)
        return;
    if (m_chatFiles.room() <= 0) {
        m_store.chat()->showNote(tooManyFiles());
        return;
    }
    m_choosing = true;
    m_chooser->choose(
        u"Attach files for the agent"_s, fileExts(),
        [room = QPointer(this), chat = m_store.scope()->chatTarget()](const QList<QUrl> &files) {
            if (!room)
                return;
            room->m_choosing = false;
            if (chat == room->m_store.scope()->chatTarget())
                room->uploadChatFiles(files);
        });
}

void AttachmentRoom::uploadChatFiles(const QList<QUrl> &urls) {
    QList<PickedFile> files;
    for (const QUrl &url : urls)
        files.append(PickedFile::at(url));
    upload(files);
}

void AttachmentRoom::upload(const QList<PickedFile> &files) {
    if (files.isEmpty() || !mayAttach())
        return;
    QStringList refusals;
    QList<QUuid> rows;
    bool tooMany = false;
    for (const PickedFile &file : files) {
        if (!file.refusal().isEmpty()) {
            refusals.append(file.refusal());
        } else if (m_chatFiles.room() <= 0) {
            tooMany = true;
        } else {
            ChatAttachment attachment;
            attachment.name = file.name();
            rows.append(attachment.id);
            m_chatFiles.append({std::move(attachment), Upload::Running, 0, file});
        }
    }
    QStringList notes{refusalNote(refusals)};
    if (tooMany)
        notes.append(tooManyFiles());
    m_store.chat()->showNote(notes.join(u' ').trimmed());
    begin(rows);
}

void AttachmentRoom::uploadPicture(PickedFile::Content png) {
    const QString time = m_store.clock().now().toLocalTime().toString(u"HHmmss"_s);
    upload({PickedFile(u"pasted-%1.png"_s.arg(time), std::move(png))});
}

/// Whether files can go to the current chat; otherwise the person learns why not.
bool AttachmentRoom::mayAttach() {
    switch (m_store.scope()->auth()) {
    case AuthPhase::Unknown:
        return false;
    case AuthPhase::Anon:
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
        return false;
    case AuthPhase::SignedIn:
        break;
    }
    if (!m_store.scope()->chatTarget())
        m_store.chat()->showNote(tr("There is nobody here yet to give files to."));
    return m_store.scope()->chatTarget().has_value();
}

void AttachmentRoom::begin(const QList<QUuid> &rows) {
    if (rows.isEmpty())
        return;
    QList<PickedFile> files;
    for (const QUuid &row : rows)
        files.append(m_chatFiles.find(row)->source);
    m_uploads.start([&](Cancel cancel) {
        return send(rows, files, *m_store.scope()->chatTarget(), std::move(cancel));
    });
    look();
}

QCoro::Task<void> AttachmentRoom::send(QList<QUuid> rows, QList<PickedFile> files,
                                       net::ChatTarget target, Cancel cancel) {
    auto reading = [files] { return readAll(files); };
    const QList<PickedFile::Read> read = co_await inBackground(std::move(reading), cancel);
    QList<net::MultipartFile> parts;
    QStringList refusals;
    for (qsizetype i = read.size(); i-- > 0;) {
        if (read.at(i).refusal.isEmpty()) {
            parts.prepend(read.at(i).part);
        } else {
            refusals.prepend(read.at(i).refusal);
            m_chatFiles.remove(rows.takeAt(i));
        }
    }
    if (!refusals.isEmpty())
        m_store.chat()->showNote(refusalNote(refusals));
    if (!parts.isEmpty()) {
        const net::UploadProgress progress = [this, rows, parts](qint64 sent, qint64 total) {
            showProgress(rows, parts, static_cast<double>(sent) / static_cast<double>(total));
        };
        try {
            const net::KivAPI::UploadResult result = co_await net::KivAPI::uploadChatFiles(
                &m_store.net(), target, parts, progress, cancel);
            finish(rows, result.files.value_or(QList<net::KivAPI::UploadedFile>()));
        } catch (const std::exception &error) {
            cancel.throwIfRequested();
            fail(rows, error);
        }
    }
    look();
}

/// One request carries the files one after another: each fills in its turn.
void AttachmentRoom::showProgress(const QList<QUuid> &rows, const QList<net::MultipartFile> &parts,
                                  double share) {
    qsizetype total = 0;
    for (const net::MultipartFile &part : parts)
        total += part.data.size();
    double left = share * static_cast<double>(total);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const double size = std::max(static_cast<double>(parts.at(i).data.size()), 1.0);
        m_chatFiles.setProgress(rows.at(i), std::clamp(left / size, 0.0, 1.0));
        left -= size;
    }
}

/// The server names the files in the order in which they were sent. One that the person dropped
/// meanwhile stays dropped.
void AttachmentRoom::finish(const QList<QUuid> &rows,
                            const QList<net::KivAPI::UploadedFile> &results) {
    QStringList refusals;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const AttachmentModel::Row *row = m_chatFiles.find(rows.at(i));
        if (!row)
            continue;
        const QString name = row->attachment.name;
        const net::KivAPI::UploadedFile result =
            i < results.size() ? results.at(i) : net::KivAPI::UploadedFile{.ok = false};
        if (result.ok.value_or(true)) {
            m_chatFiles.setAttached(rows.at(i), attachmentOf(result, name));
        } else {
            refusals.append(result.error.value_or(tr("“%1” was not taken.").arg(name)));
            m_chatFiles.remove(rows.at(i));
        }
    }
    if (!refusals.isEmpty())
        m_store.chat()->showNote(refusalNote(refusals));
}

void AttachmentRoom::fail(const QList<QUuid> &rows, const std::exception &error) {
    for (const QUuid &row : rows)
        m_chatFiles.setUpload(row, Upload::Failed);
    m_store.chat()->showNote(uploadNote(error));
}

void AttachmentRoom::look() {
    m_chatUploading = m_chatFiles.isUploading();
}

void AttachmentRoom::removeChatFile(const QString &id) {
    m_chatFiles.remove(QUuid::fromString(id));
    m_store.chat()->showNote({});
    if (!m_chatFiles.isUploading())
        m_uploads.cancel();
    look();
}

void AttachmentRoom::retryUpload(const QString &id) {
    const QUuid row = QUuid::fromString(id);
    const AttachmentModel::Row *found = m_chatFiles.find(row);
    if (!found || found->upload != Upload::Failed || !mayAttach())
        return;
    if (m_chatFiles.room() <= 0) {
        m_store.chat()->showNote(tooManyFiles());
        return;
    }
    m_store.chat()->showNote({});
    m_chatFiles.setUpload(row, Upload::Running);
    begin({row});
}

void AttachmentRoom::clear() {
    m_uploads.cancel();
    m_chatFiles.clear();
    look();
}

QList<ChatAttachment> AttachmentRoom::take() {
    QList<ChatAttachment> attachments = m_chatFiles.attachments();
    withdraw(attachments);
    return attachments;
}

void AttachmentRoom::putBack(const QList<ChatAttachment> &attachments) {
    qsizetype at = 0;
    for (const ChatAttachment &attachment : attachments) {
        if (m_chatFiles.room() > 0 && !m_chatFiles.find(attachment.id))
            m_chatFiles.insert(at++, {.attachment = attachment});
    }
}

void AttachmentRoom::withdraw(const QList<ChatAttachment> &attachments) {
    for (const ChatAttachment &attachment : attachments)
        m_chatFiles.remove(attachment.id);
}

} // namespace kiv::store
