#include "ui/canvas/CanvasExport.h"

#include "canvas/TableText.h"
#include "ui/canvas/FileName.h"

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSaveFile>
#include <QStandardPaths>

namespace kiv::ui {

using namespace Qt::StringLiterals;

CanvasExport::CanvasExport(QObject *parent)
    : QObject(parent),
      m_dialogSource(u"qrc:/qt/qml/Kiv/Canvas/SaveDialog.qml"_s),
      m_folder(QUrl::fromLocalFile(
          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))) {}

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

void CanvasExport::ask(const Format &format, const QByteArray &content) {
    QString name = fileNameOf(m_canvas->canvasTitle());
    if (name.isEmpty())
        name = m_canvas->artInfo().word;
    const QString file = m_folder.toLocalFile() + u'/' + name + u'.' + format.suffix;
    QWindow *window = m_sheet ? m_sheet->window() : nullptr;
    QQmlComponent component(qmlEngine(this), m_dialogSource);
    delete m_dialog;
    m_dialog =
        component.createWithInitialProperties({{u"parentWindow"_s, QVariant::fromValue(window)},
                                               {u"title"_s, format.title},
                                               {u"nameFilters"_s, QStringList{format.filter}},
                                               {u"defaultSuffix"_s, format.suffix},
                                               {u"currentFolder"_s, m_folder}});
    if (!m_dialog) {
        fail(tr("The file dialog does not open: %1").arg(component.errorString().trimmed()));
        return;
    }
    m_dialog->setParent(this);
    // A file that is not there yet can only be named once the dialog is one for saving.
    m_dialog->setProperty("selectedFile", QUrl::fromLocalFile(file));
    m_content = content;
    connect(m_dialog, SIGNAL(chosen(QUrl)), this, SLOT(save(QUrl)));
    QMetaObject::invokeMethod(m_dialog, "open");
}

void CanvasExport::save(const QUrl &file) {
    m_folder = file.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
    QSaveFile target(file.toLocalFile());
    const bool isSaved = target.open(QIODevice::WriteOnly) &&
                         target.write(m_content) == m_content.size() && target.commit();
    m_content.clear();
    if (isSaved)
        Q_EMIT saved(tr("Saved %1").arg(file.fileName()), m_folder);
    else
        fail(tr("%1 could not be saved: %2").arg(file.fileName(), target.errorString()));
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
