#pragma once

#include "base/Work.h"
#include "net/ChatTarget.h"
#include "net/HttpSession.h"
#include "store/AttachmentModel.h"
#include "store/FileChooser.h"

#include <QProperty>

namespace kiv::store {

class AppStore;

/// The files of the next message: picking, uploading, dropping them again.
class AttachmentRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::AttachmentModel *chatFiles READ chatFiles CONSTANT)
    Q_PROPERTY(bool chatUploading READ chatUploading NOTIFY chatUploadingChanged)
public:
    explicit AttachmentRoom(AppStore &store);

    AttachmentModel *chatFiles() { return &m_chatFiles; }
    bool chatUploading() const { return m_chatUploading; }

    /// The chooser outlives the room; without one nothing can be picked.
    void setChooser(FileChooser *chooser) { m_chooser = chooser; }

    /// Lets the person choose files, which are then uploaded.
    Q_INVOKABLE void pickChatFiles();
    /// Uploads the files at these addresses for the next message.
    Q_INVOKABLE void uploadChatFiles(const QList<QUrl> &urls);
    Q_INVOKABLE void removeChatFile(const QString &id);
    /// Sends a file whose upload failed once more.
    Q_INVOKABLE void retryUpload(const QString &id);
    /// As uploadChatFiles(), for files that need not be on the disk.
    void upload(const QList<PickedFile> &files);
    /// Uploads a picture that was pasted, as a file of our naming.
    void uploadPicture(PickedFile::Content png);

    /// Drops the files and whatever is on its way.
    void clear();
    /// Hands over what the message that is being sent carries.
    QList<ChatAttachment> take();
    /// Attaches files of a message that could not be sent again.
    void putBack(const QList<ChatAttachment> &attachments);
    /// Lets go of files that go out with an older message.
    void withdraw(const QList<ChatAttachment> &attachments);

Q_SIGNALS:
    void chatUploadingChanged();

private:
    bool mayAttach();
    void begin(const QList<QUuid> &rows);
    QCoro::Task<void> send(QList<QUuid> rows, QList<PickedFile> files, net::ChatTarget target,
                           Cancel cancel);
    void showProgress(const QList<QUuid> &rows, const QList<net::MultipartFile> &parts,
                      double share);
    void finish(const QList<QUuid> &rows, const QList<net::KivAPI::UploadedFile> &results);
    void fail(const QList<QUuid> &rows, const std::exception &error);
    void look();

    AppStore &m_store;
    FileChooser *m_chooser = nullptr;
    bool m_choosing = false;
    AttachmentModel m_chatFiles;
    Q_OBJECT_BINDABLE_PROPERTY(AttachmentRoom, bool, m_chatUploading,
                               &AttachmentRoom::chatUploadingChanged)
    Work m_uploads;
};

} // namespace kiv::store
