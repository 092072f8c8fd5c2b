#pragma once

#include "store/CanvasRoom.h"
#include "ui/files/FileSaver.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QtQmlIntegration>

#include <functional>

namespace kiv::ui {

/// Takes what the canvas shows out of the program: its sheet as a picture, the figures of its
/// answer as a table, each into a file that the person names or onto the clipboard.
class CanvasExport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::CanvasRoom *canvas READ canvas WRITE setCanvas REQUIRED)
    Q_PROPERTY(QQuickItem *sheet READ sheet WRITE setSheet REQUIRED)
    Q_PROPERTY(kiv::ui::FileSaver *saver READ saver CONSTANT)
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)
public:
    /// Pixels of a picture to one of the sheet.
    static constexpr int scale = 2;

    explicit CanvasExport(QObject *parent = nullptr);

    store::CanvasRoom *canvas() const { return m_canvas; }
    void setCanvas(store::CanvasRoom *canvas) { m_canvas = canvas; }
    QQuickItem *sheet() const { return m_sheet; }
    void setSheet(QQuickItem *sheet) { m_sheet = sheet; }
    FileSaver *saver() { return &m_saver; }
    /// Why the last export did not come about; empty when it did.
    QString failure() const { return m_failure; }

    Q_INVOKABLE void savePicture();
    Q_INVOKABLE void saveTable();
    Q_INVOKABLE void copyPicture();
    Q_INVOKABLE void copyTable();
    /// Picture and table at once: a program that takes both chooses.
    Q_INVOKABLE void copy();
    Q_INVOKABLE void forgetFailure();

Q_SIGNALS:
    /// Both come with words that tell it.
    void copied(const QString &words);
    void saved(const QString &words, const QUrl &folder);
    void failureChanged();

private:
    using UsePicture = std::function<void(const QImage &picture)>;

    void grab(UsePicture use);
    /// Asks where `content` is to go, and saves it there.
    void ask(const FileSaver::Format &format, const QByteArray &content);
    QString tableText() const;
    void fail(const QString &reason);

    QPointer<store::CanvasRoom> m_canvas;
    QPointer<QQuickItem> m_sheet;
    FileSaver m_saver{this};
    QString m_failure;
    QSharedPointer<QQuickItemGrabResult> m_grab;
};

} // namespace kiv::ui
