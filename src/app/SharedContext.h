#pragma once

#include <QOpenGLContext>

namespace kiv::app {

/// What the window's pictures and those of a web engine that is loaded later are shared by. To be
/// made before the first window. The application object can make one too
/// (Qt::AA_ShareOpenGLContexts), but then nothing else is done while the driver is loaded.
class SharedContext {
public:
    SharedContext();
    ~SharedContext();
    Q_DISABLE_COPY_MOVE(SharedContext)

private:
    QOpenGLContext m_context;
};

} // namespace kiv::app
