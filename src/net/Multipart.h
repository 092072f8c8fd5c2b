#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace kiv::net {

/// One file of an upload.
struct MultipartFile {
    QString name;
    QString mime;
    QByteArray data;
};

/// A "multipart/form-data" body; every part is the field "file".
QByteArray multipartBody(const QList<MultipartFile> &files, const QByteArray &boundary);

/// A boundary that no other request uses.
QByteArray newMultipartBoundary();

} // namespace kiv::net
