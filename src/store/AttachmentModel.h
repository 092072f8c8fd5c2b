#pragma once

#include "store/ChatAttachment.h"
#include "store/Enums.h"
#include "store/PickedFile.h"

#include <QAbstractListModel>

namespace kiv::store {

/// The files of the next message in the order they were picked: those that are attached, and those
/// on their way or stuck there.
class AttachmentModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int attached READ attached NOTIFY attachedChanged)
public:
    /// How many files a message carries.
    static constexpr int most = 5;

    enum Role {
        FileIdRole = Qt::UserRole + 1, ///< as `fileId`, text
        NameRole,
        SizeTextRole, ///< "180 KB"; empty while nobody knows
        KindRole,     ///< FileKind
        UploadRole,   ///< Upload
        ProgressRole, ///< how much of a running upload has left, 0 to 1
    };

    struct Row {
        ChatAttachment attachment;
        Upload upload = Upload::Done;
        double progress = 0;
        PickedFile source = {}; ///< what was picked, for another try
    };

    using QAbstractListModel::QAbstractListModel;

    int count() const { return static_cast<int>(m_rows.size()); }
    /// The files that are uploaded: what a message would carry now.
    QList<ChatAttachment> attachments() const;
    int attached() const { return countOf(Upload::Done); }
    /// How many more files there is a place for.
    int room() const { return most - countOf(Upload::Done) - countOf(Upload::Running); }
    bool isUploading() const { return countOf(Upload::Running) > 0; }
    /// Null when there is no such row.
    const Row *find(const QUuid &id) const;

    void insert(qsizetype at, Row row);
    void append(Row row) { insert(m_rows.size(), std::move(row)); }
    void remove(const QUuid &id);
    void clear();
    void setUpload(const QUuid &id, Upload upload);
    void setProgress(const QUuid &id, double progress);
    /// The file is uploaded. The row keeps its identity.
    void setAttached(const QUuid &id, ChatAttachment attachment);

    /// The language has changed, and with it how sizes are written.
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void attachedChanged();

private:
    int countOf(Upload upload) const;
    qsizetype rowOf(const QUuid &id) const;
    void touch(qsizetype row, const QList<int> &roles);

    QList<Row> m_rows;
};

} // namespace kiv::store
