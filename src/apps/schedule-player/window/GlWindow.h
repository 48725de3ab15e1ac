#pragma once

#include "window/PlayerWindow.h"

#include <QImage>
#include <QOpenGLTextureBlitter>

#include <memory>

class QOpenGLContext;
class QOpenGLTexture;

namespace trel::player {

class GlSharing;

/// Shows pictures by OpenGL: those of films as their threads have drawn them.
class GlWindow : public PlayerWindow
{
    Q_OBJECT

public:
    /// What is shared outlives it.
    explicit GlWindow(GlSharing& sharing);
    ~GlWindow() override;

    void frame(const QImage& picture, mediadispatch::Instant moment) override;
    void texture(const SharedGlPicture& picture, mediadispatch::Instant moment) override;

    /// What it shows, as it is read back from OpenGL; null where it has shown nothing yet.
    QImage shown();

signals:
    /// OpenGL does not draw into it, or not any more. May come with every picture.
    void drawingFailed();

protected:
    void paint() override;

private:
    bool makeCurrent();
    void draw();
    void blit(unsigned int texture, int turned, QOpenGLTextureBlitter::Origin origin);

    GlSharing& m_sharing;
    std::unique_ptr<QOpenGLContext> m_context;
    QOpenGLTextureBlitter m_blitter;
    std::unique_ptr<QOpenGLTexture> m_uploaded; ///< Of the image.
    QImage m_image;
    SharedGlPicture m_picture; ///< Shown instead of the image where there is one.
};

} // namespace trel::player
