#include "app/Graphics.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

/// Of Qt Gui, which declares it in no header; the application object calls it as well.
void qt_gl_set_global_share_context(QOpenGLContext *context);

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

bool isOpenGLChosen = false;

/// Mesa's switch for drawing OpenGL without a card.
bool isCardRefused() {
    static const QByteArrayList yes{"1", "true", "t", "yes", "y"};
    return yes.contains(qgetenv("LIBGL_ALWAYS_SOFTWARE").toLower());
}

/// A device that draws and that this person may use: by the kernel's drivers, by NVIDIA's, by
/// Windows below this Linux.
bool hasCard(const QDir &devices) {
    constexpr auto usable = QDir::Files | QDir::System | QDir::Readable | QDir::Writable;
    const auto has = [&](const QString &folder, const QString &name) {
        return !QDir(devices.filePath(folder)).entryList({name}, usable).isEmpty();
    };
    return has(u"dri"_s, u"renderD*"_s) || has(u"."_s, u"nvidiactl"_s) || has(u"."_s, u"dxg"_s);
}

} // namespace

bool Graphics::wantsOpenGL(const QDir &devices) {
    const QByteArray backend = qgetenv("QT_QUICK_BACKEND");
    if (!backend.isEmpty())
        return backend == "rhi";
    if (!qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND"))
        return true; // whichever it names: a web engine shares no other
    return hasCard(devices) && !isCardRefused();
}

void Graphics::choose() {
    isOpenGLChosen = wantsOpenGL(QDir(u"/dev"_s));
    QQuickWindow::setGraphicsApi(isOpenGLChosen ? QSGRendererInterface::OpenGL
                                                : QSGRendererInterface::Software);
}

Graphics::Graphics() {
    if (isOpenGLChosen && !m_shared.create()) {
        qWarning("OpenGL does not work here: the window is drawn without it");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    qt_gl_set_global_share_context(&m_shared);
}

Graphics::~Graphics() {
    qt_gl_set_global_share_context(nullptr);
}

} // namespace kiv::app
