#pragma once

#include "store/AttachmentRoom.h"

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// The system's clipboard.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE static void setText(const QString &text);
    /// Puts Markdown there together with what it shows, for programs that take rich text.
    Q_INVOKABLE static void setMarkdown(const QString &text, const QString &shown);
    /// Whether it holds files, or a picture that is not also text.
    Q_INVOKABLE static bool holdsFiles();
    /// Attaches what holdsFiles() speaks of.
    Q_INVOKABLE static void attachTo(kiv::store::AttachmentRoom *attachments);
};

} // namespace kiv::ui
