#include "gl/GlSharing.h"

#include "gl/GlMaker.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace trel::player {

namespace {

/// The name of what draws; empty where nothing does.
QByteArray rendererName()
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    if (!QOpenGLContext::supportsThreadedOpenGL() || !context.create() || !surface.isValid() ||
        !context.makeCurrent(&surface)) {
        return {};
    }
    const GLubyte* name = context.functions()->glGetString(GL_RENDERER);
    return name == nullptr ? QByteArray() : QByteArray(reinterpret_cast<const char*>(name));
}

} // namespace

bool GlSharing::isPossible()
{
    return !rendererName().isEmpty();
}

bool GlSharing::isWorthwhile()
{
    const QByteArray name = rendererName().toLower();
    // A processor that draws for OpenGL is slower than one that draws at once.
    return !name.isEmpty() && !name.contains("llvmpipe") && !name.contains("softpipe") &&
           !name.contains("software") && !name.contains("swrast") && !name.contains("swiftshader");
}

GlSharing::GlSharing()
    : m_trash(std::make_shared<GlTrash>())
    , m_context(std::make_unique<QOpenGLContext>())
{
    // A driver that loses all that it had says so, where it can.
    QSurfaceFormat format = m_context->format();
    format.setOption(QSurfaceFormat::ResetNotification);
    m_context->setFormat(format);
    if (!m_context->create()) {
        m_context.reset();
    }
}

GlSharing::~GlSharing() = default;

std::unique_ptr<PictureMaker> GlSharing::makeMaker() const
{
    return std::make_unique<GlMaker>(*m_context, m_trash);
}

} // namespace trel::player
