#pragma once

#include <QDir>
#include <QOpenGLContext>

namespace kiv::app {

/// What the window is drawn with: OpenGL where there is a graphics card, else Qt's own painter. The
/// processor could draw OpenGL as well, but the driver for that takes a third of the start and more
/// memory than the program. The display of a virtual machine may look like a card and be none.
class Graphics {
public:
    /// To be called before the application object is made.
    static void choose();
    /// Whether one of `devices` is a card, or the environment says what to draw with.
    static bool wantsOpenGL(const QDir &devices);

    /// What the window's pictures and those of a web engine that is loaded later are shared by. To
    /// be made before the first window; where OpenGL does not work, the painter draws after all.
    /// The application object can make it too (Qt::AA_ShareOpenGLContexts), but then nothing else
    /// is done while the driver is loaded. Without OpenGL it has no driver, but an engine ends the
    /// program where there is no such context at all.
    Graphics();
    ~Graphics();
    Q_DISABLE_COPY_MOVE(Graphics)

private:
    QOpenGLContext m_shared;
};

} // namespace kiv::app
