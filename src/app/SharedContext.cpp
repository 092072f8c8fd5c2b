#include "app/SharedContext.h"

/// Of Qt Gui, which declares it in no header; the application object calls it as well.
void qt_gl_set_global_share_context(QOpenGLContext *context);

namespace kiv::app {

SharedContext::SharedContext() {
    m_context.create();
    qt_gl_set_global_share_context(&m_context);
}

SharedContext::~SharedContext() {
    qt_gl_set_global_share_context(nullptr);
}

} // namespace kiv::app
