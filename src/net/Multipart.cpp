#include "net/Multipart.h"

#include <QUuid>

namespace kiv::net {

namespace {

/// A file may be called anything; as a browser does, what would end the header early is escaped.
QByteArray headerForm(const QString &fileName) {
    return fileName.toUtf8().replace('"', "%22").replace('\r', "%0D").replace('\n', "%0A");
}

} // namespace

QByteArray multipartBody(const QList<MultipartFile> &files, const QByteArray &boundary) {
    QByteArray body;
    qsizetype size = 0;
    for (const MultipartFile &file : files)
        size += file.data.size() + 512; // its frame; a guess that spares copies
    body.reserve(size);
    for (const MultipartFile &file : files) {
        body += "--" + boundary + "\r\n";
        body += "Content-Disposition: form-data; name=\"file\"; filename=\"" +
                headerForm(file.name) + "\"\r\n";
        body += "Content-Type: " + file.mime.toUtf8() + "\r\n\r\n";
        body += file.data;
        body += "\r\n";
    }
    return body + "--" + boundary + "--\r\n";
}

QByteArray newMultipartBoundary() {
    return "qv-zandor-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces).toUpper();
}

} // namespace kiv::net
