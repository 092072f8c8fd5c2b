#include "ui/canvas/CanvasExport.h"

#include "canvas/TableText.h"
#include "ui/files/FileName.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QQuickWindow>

namespace kiv::ui {

using namespace Qt::StringLiterals;

CanvasExport::CanvasExport(QObject *parent) : QObject(parent) {
    connect(&m_saver, &FileSaver::failed, this, &CanvasExport::fail);
    connect(&m_saver, &FileSaver::saved, this, &CanvasExport::saved);
}

void CanvasExport::savePicture() {
    grab([this](const QImage &picture) {
        QBuffer content;
        picture.save(&content, "PNG");
        ask({tr("Save the picture"), u"png"_s, tr("Pictures (*.png)")}, content.data());
    });
}

void CanvasExport::saveTable() {
    forgetFailure();
    if (m_canvas)
        ask({tr("Save the table"), u"csv"_s, tr("Tables (*.csv)")},
            canvas::csvText(canvas::answerTables(m_canvas->artSpec())).toUtf8());
}

void CanvasExport::copyPicture() {
    grab([this](const QImage &picture) {
        QGuiApplication::clipboard()->setImage(picture);
        Q_EMIT copied(tr("Picture copied"));
    });
}

void CanvasExport::copyTable() {
    forgetFailure();
    QGuiApplication::clipboard()->setText(tableText());
    Q_EMIT copied(tr("Table copied"));
}

void CanvasExport::copy() {
    grab([this](const QImage &picture) {
        auto *both = new QMimeData;
        both->setImageData(picture);
        both->setText(tableText());
        QGuiApplication::clipboard()->setMimeData(both);
        Q_EMIT copied(tr("Copied as a picture and a table"));
    });
}

QString CanvasExport::tableText() const {
    return m_canvas ? canvas::tsvText(canvas::answerTables(m_canvas->artSpec())) : QString();
}

void CanvasExport::grab(UsePicture use) {
    forgetFailure();
    if (!m_sheet)
        return;
    m_sheet->setProperty("pictured", true);
    m_grab = m_sheet->grabToImage((m_sheet->size() * scale).toSize());
    if (!m_grab) {
        m_sheet->setProperty("pictured", false);
        fail(tr("The picture could not be drawn"));
        return;
    }
    // Queued: the result must not go away while it still reports.
    connect(
        m_grab.data(), &QQuickItemGrabResult::ready, this,
        [this, use = std::move(use)] {
            const QImage picture = std::exchange(m_grab, {})->image();
            if (m_sheet)
                m_sheet->setProperty("pictured", false);
            if (picture.isNull())
                fail(tr("The picture could not be drawn"));
            else
                use(picture);
        },
        Qt::QueuedConnection);
}

void CanvasExport::ask(const FileSaver::Format &format, const QByteArray &content) {
    const QString title = m_canvas->canvasTitle();
    const QString name = fileNameOf(title).isEmpty() ? m_canvas->artInfo().word : title;
    m_saver.ask(m_sheet ? m_sheet->window() : nullptr, format, name, content);
}

void CanvasExport::fail(const QString &reason) {
    m_failure = reason;
    Q_EMIT failureChanged();
}

void CanvasExport::forgetFailure() {
    if (!m_failure.isEmpty())
        fail(QString());
}

} // namespace kiv::ui
