#pragma once

#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <memory>

namespace kiv::ui {

/// Tests at a window over a workspace. Both are made anew for each of them, and no view may
/// complain.
class GalleryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Called before each test, once workspace and window are there.
    virtual void prepare() {}
    /// Signs in and shows the window.
    void open(const QSize &size = {1440, 900});
    /// The questions that the orchestrator was sent, in order.
    QStringList sent() const;

    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

} // namespace kiv::ui
