#include "store/AttachmentModel.h"

#include "base/LocalText.h"
#include "store/FileTypes.h"

#include <algorithm>

namespace kiv::store {

QList<ChatAttachment> AttachmentModel::attachments() const {
    QList<ChatAttachment> attached;
    for (const Row &row : m_rows) {
        if (row.upload == Upload::Done)
            attached.append(row.attachment);
    }
    return attached;
}

const AttachmentModel::Row *AttachmentModel::find(const QUuid &id) const {
    const qsizetype row = rowOf(id);
    return row < 0 ? nullptr : &m_rows.at(row);
}

void AttachmentModel::insert(qsizetype at, Row row) {
    beginInsertRows({}, static_cast<int>(at), static_cast<int>(at));
    m_rows.insert(at, std::move(row));
    endInsertRows();
    Q_EMIT countChanged();
    Q_EMIT attachedChanged();
}

void AttachmentModel::remove(const QUuid &id) {
    const int row = static_cast<int>(rowOf(id));
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
    Q_EMIT attachedChanged();
}

void AttachmentModel::clear() {
    if (m_rows.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT attachedChanged();
}

void AttachmentModel::setUpload(const QUuid &id, Upload upload) {
    const qsizetype row = rowOf(id);
    if (row < 0)
        return;
    m_rows[row].upload = upload;
    m_rows[row].progress = 0;
    touch(row, {UploadRole, ProgressRole});
}

void AttachmentModel::setProgress(const QUuid &id, double progress) {
    const qsizetype row = rowOf(id);
    if (row < 0)
        return;
    m_rows[row].progress = progress;
    touch(row, {ProgressRole});
}

void AttachmentModel::setAttached(const QUuid &id, ChatAttachment attachment) {
    const qsizetype row = rowOf(id);
    if (row < 0)
        return;
    attachment.id = id;
    m_rows[row].attachment = std::move(attachment);
    m_rows[row].upload = Upload::Done;
    m_rows[row].progress = 0;
    touch(row, {NameRole, SizeTextRole, KindRole, UploadRole, ProgressRole});
    Q_EMIT attachedChanged();
}

int AttachmentModel::countOf(Upload upload) const {
    return static_cast<int>(std::ranges::count(m_rows, upload, &Row::upload));
}

qsizetype AttachmentModel::rowOf(const QUuid &id) const {
    const auto found =
        std::ranges::find_if(m_rows, [&](const Row &row) { return row.attachment.id == id; });
    return found == m_rows.end() ? -1 : found - m_rows.begin();
}

void AttachmentModel::touch(qsizetype row, const QList<int> &roles) {
    const QModelIndex changed = index(static_cast<int>(row));
    Q_EMIT dataChanged(changed, changed, roles);
}

void AttachmentModel::retranslate() {
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), {SizeTextRole});
}

int AttachmentModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant AttachmentModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    const qint64 size = row.attachment.size.value_or(row.source.size());
    switch (role) {
    case FileIdRole:
        return row.attachment.id.toString(QUuid::WithoutBraces);
    case Qt::DisplayRole:
    case NameRole:
        return row.attachment.name;
    case SizeTextRole:
        return size > 0 ? sizeText(size) : QString();
    case KindRole:
        return QVariant::fromValue(fileKind(row.attachment.name));
    case UploadRole:
        return QVariant::fromValue(row.upload);
    case ProgressRole:
        return row.progress;
    default:
        return {};
    }
}

QHash<int, QByteArray> AttachmentModel::roleNames() const {
    return {{FileIdRole, "fileId"}, {NameRole, "name"},     {SizeTextRole, "sizeText"},
            {KindRole, "kind"},     {UploadRole, "upload"}, {ProgressRole, "progress"}};
}

} // namespace kiv::store
