#include "ui/chat/Clipboard.h"

#include "text/HtmlText.h"
#include "text/MDParser.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <optional>

namespace kiv::ui {

namespace {

QList<QUrl> localFiles(const QMimeData &held) {
    QList<QUrl> files = held.urls();
    files.removeIf([](const QUrl &url) { return !url.isLocalFile(); });
    return files;
}

std::optional<QByteArray> pngOf(const QImage &picture) {
    QBuffer png;
    const bool isWritten = png.open(QIODevice::WriteOnly) && picture.save(&png, "PNG");
    return isWritten ? std::optional(png.data()) : std::nullopt;
}

} // namespace

void Clipboard::setText(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
}

void Clipboard::setMarkdown(const QString &text, const QString &shown) {
    auto *both = new QMimeData;
    both->setText(text);
    const QString html = text::htmlOf(text::MDParser::parse(shown));
    if (!html.isEmpty())
        both->setHtml(html);
    QGuiApplication::clipboard()->setMimeData(both);
}

bool Clipboard::holdsFiles() {
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    return held && (!localFiles(*held).isEmpty() || (held->hasImage() && !held->hasText()));
}

void Clipboard::attachTo(store::AttachmentRoom *attachments) {
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    if (!held)
        return;
    const QList<QUrl> files = localFiles(*held);
    if (!files.isEmpty()) {
        attachments->uploadChatFiles(files);
        return;
    }
    const auto picture = held->imageData().value<QImage>();
    if (!picture.isNull())
        attachments->uploadPicture([picture] { return pngOf(picture); });
}

} // namespace kiv::ui
