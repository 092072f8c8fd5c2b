#pragma once

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QWindow>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Puts what leaves the program into a file that the person names. The file is there whole or not
/// at all. A slow disk holds nobody up.
class FileSaver : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QUrl dialog MEMBER m_dialogSource)
    /// Where the dialog begins: the folder of the file before.
    Q_PROPERTY(QUrl folder MEMBER m_folder)
public:
    struct Format {
        QString title; ///< of the dialog
        QString suffix;
        QString filter;
    };

    explicit FileSaver(QObject *parent = nullptr);

    /// Asks where `content` is to go, and saves it there. What of the name a file system refuses
    /// is left out. A dialog that is still open gives way.
    void ask(QWindow *window, const Format &format, const QString &name, const QByteArray &content);

Q_SIGNALS:
    /// Comes with words that tell it.
    void saved(const QString &words, const QUrl &folder);
    void failed(const QString &reason);

private Q_SLOTS:
    void save(const QUrl &file);

private:
    QUrl m_dialogSource;
    QUrl m_folder;
    QPointer<QObject> m_dialog; ///< a child
    QByteArray m_content;
};

} // namespace kiv::ui
