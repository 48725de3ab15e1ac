#include "gl/GlPicture.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <utility>

namespace trel::player {

void GlTrash::throwAway(unsigned int texture)
{
    const std::lock_guard lock(m_mutex);
    m_textures.push_back(texture);
}

void GlTrash::empty()
{
    const std::lock_guard lock(m_mutex);
    if (!m_textures.empty()) {
        QOpenGLContext::currentContext()->functions()->glDeleteTextures(
            static_cast<GLsizei>(m_textures.size()), m_textures.data());
        m_textures.clear();
    }
}

GlPicture::GlPicture(unsigned int texture, const QSize& size, std::shared_ptr<GlTrash> trash)
    : m_texture(texture)
    , m_size(size)
    , m_trash(std::move(trash))
{}

GlPicture::~GlPicture()
{
    m_trash->throwAway(m_texture);
}

} // namespace trel::player
