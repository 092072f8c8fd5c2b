#include "ui/files/FileSaver.h"

#include "ui/files/FileName.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSaveFile>
#include <QStandardPaths>
#include <QtConcurrentRun>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

/// Nothing, or why it failed.
QString written(const QString &file, const QByteArray &content) {
    QSaveFile target(file);
    const bool isSaved = target.open(QIODevice::WriteOnly) &&
                         target.write(content) == content.size() && target.flush() &&
                         target.commit();
    return isSaved ? QString() : target.errorString();
}

} // namespace

FileSaver::FileSaver(QObject *parent)
    : QObject(parent),
      m_dialogSource(u"qrc:/qt/qml/Kiv/Files/SaveDialog.qml"_s),
      m_folder(QUrl::fromLocalFile(
          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))) {}

void FileSaver::ask(QWindow *window, const Format &format, const QString &name,
                    const QByteArray &content) {
    const QString file = m_folder.toLocalFile() + u'/' + fileNameOf(name) + u'.' + format.suffix;
    QQmlComponent component(qmlEngine(parent()), m_dialogSource);
    delete m_dialog;
    m_dialog =
        component.createWithInitialProperties({{u"parentWindow"_s, QVariant::fromValue(window)},
                                               {u"title"_s, format.title},
                                               {u"nameFilters"_s, QStringList{format.filter}},
                                               {u"defaultSuffix"_s, format.suffix},
                                               {u"currentFolder"_s, m_folder}});
    if (!m_dialog) {
        Q_EMIT failed(
            tr("The file dialog does not open: %1").arg(component.errorString().trimmed()));
        return;
    }
    m_dialog->setParent(this);
    // A file that is not there yet can only be named once the dialog is one for saving.
    m_dialog->setProperty("selectedFile", QUrl::fromLocalFile(file));
    m_content = content;
    connect(m_dialog, SIGNAL(chosen(QUrl)), this, SLOT(save(QUrl)));
    QMetaObject::invokeMethod(m_dialog, "open");
}

void FileSaver::save(const QUrl &file) {
    m_folder = file.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
    QtConcurrent::run(written, file.toLocalFile(), std::exchange(m_content, QByteArray()))
        .then(this, [this, name = file.fileName(), folder = m_folder](const QString &failure) {
            if (failure.isEmpty())
                Q_EMIT saved(tr("Saved %1").arg(name), folder);
            else
                Q_EMIT failed(tr("%1 could not be saved: %2").arg(name, failure));
        });
}

} // namespace kiv::ui
