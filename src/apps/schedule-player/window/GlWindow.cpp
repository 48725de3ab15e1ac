#include "window/GlWindow.h"

#include "gl/GlSharing.h"

#include <QMatrix4x4>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLTexture>

namespace trel::player {

GlWindow::GlWindow(GlSharing& sharing)
    : PlayerWindow(QSurface::OpenGLSurface)
    , m_sharing(sharing)
{}

GlWindow::~GlWindow()
{
    m_picture.reset();
    if (m_context != nullptr && m_context->makeCurrent(this)) {
        m_uploaded.reset();
        m_blitter.destroy();
        m_sharing.trash().empty();
        m_context->doneCurrent();
    }
}

void GlWindow::frame(const QImage& picture, mediadispatch::Instant /*moment*/)
{
    m_image = picture;
    m_picture.reset();
    m_uploaded.reset();
    paint();
}

void GlWindow::texture(const SharedGlPicture& picture, mediadispatch::Instant /*moment*/)
{
    m_picture = picture;
    paint();
}

bool GlWindow::makeCurrent()
{
    if (m_context == nullptr) {
        m_context = std::make_unique<QOpenGLContext>();
        m_context->setFormat(m_sharing.context()->format());
        m_context->setShareContext(m_sharing.context());
        m_context->create();
    }
    return m_context->isValid() && m_context->makeCurrent(this) &&
           (m_blitter.isCreated() || m_blitter.create());
}

void GlWindow::paint()
{
    if (!isExposed() || size().isEmpty()) {
        return;
    }
    if (!makeCurrent()) {
        emit drawingFailed();
        return;
    }
    draw();
    m_context->swapBuffers(this);
}

void GlWindow::draw()
{
    QOpenGLFunctions& gl = *m_context->functions();
    const QSize room = dots();
    gl.glViewport(0, 0, room.width(), room.height());
    gl.glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    gl.glClear(GL_COLOR_BUFFER_BIT);
    if (m_picture != nullptr) {
        blit(m_picture->texture(), m_picture->turned(), QOpenGLTextureBlitter::OriginTopLeft);
    } else if (!m_image.isNull()) {
        if (m_uploaded == nullptr) {
            m_uploaded =
                std::make_unique<QOpenGLTexture>(m_image, QOpenGLTexture::DontGenerateMipMaps);
        }
        blit(m_uploaded->textureId(), 0, QOpenGLTextureBlitter::OriginTopLeft);
    }
    m_sharing.trash().empty();
}

void GlWindow::blit(unsigned int texture, int turned, QOpenGLTextureBlitter::Origin origin)
{
    QMatrix4x4 place;
    place.rotate(-float(turned), 0.0F, 0.0F, 1.0F);
    m_blitter.bind();
    m_blitter.blit(texture, place, origin);
    m_blitter.release();
}

QImage GlWindow::shown()
{
    if (m_context == nullptr || !makeCurrent()) {
        return {};
    }
    draw();
    QImage image(dots(), QImage::Format_RGBA8888);
    m_context->functions()->glReadPixels(0, 0, image.width(), image.height(), GL_RGBA,
                                         GL_UNSIGNED_BYTE, image.bits());
    return image.mirrored().convertToFormat(QImage::Format_RGB32);
}

} // namespace trel::player
