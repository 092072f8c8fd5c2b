#pragma once

#include "store/FileChooser.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>

#include <memory>

namespace kiv::ui {

/// Chooses files in the platform's own dialog, which is made when it is first needed.
class DialogChooser : public QObject, public store::FileChooser {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The window that the dialog belongs to.
    void setWindow(QQuickWindow *window) { m_window = window; }

    void choose(const QString &title, const QStringList &extensions, Chosen chosen) override;

private Q_SLOTS:
    void accept();
    void reject();

private:
    bool make();
    void finish(const QList<QUrl> &files);

    QPointer<QQuickWindow> m_window;
    QPointer<QObject> m_dialog; ///< the window's child
    Chosen m_chosen;
};

} // namespace kiv::ui
