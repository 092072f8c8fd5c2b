#pragma once

#include "ui/CallWorkspace.h"
#include "ui/Gallery.h"

namespace kiv::ui {

/// What the tests of calls in the window begin with.
class CallWindow : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    void open(const QSize &size = {1440, 900});
    /// The same, in a call.
    void talk(const QSize &size = {1440, 900});
    store::CallRoom &room() { return *m_workspace->store->call(); }
    QString words(const QString &name) {
        return m_gallery->item(name)->property("text").toString();
    }
    /// What a screen reader says of an item.
    QString heard(const QString &name);

    std::unique_ptr<CallWorkspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

} // namespace kiv::ui
