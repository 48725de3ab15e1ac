#pragma once

#include "gl/GlPicture.h"

#include <memory>

class QOpenGLContext;

namespace trel::player {

class PictureMaker;

/// What the threads that draw by OpenGL share with the window: its group of textures. Thread of the
/// windows.
class GlSharing
{
public:
    /// Whether OpenGL can draw here, by hardware and in other threads than that of the windows.
    static bool isWorthwhile();
    /// Whether it can draw here at all.
    static bool isPossible();

    GlSharing();
    ~GlSharing();
    GlSharing(const GlSharing&) = delete;
    GlSharing& operator=(const GlSharing&) = delete;

    /// The context that the window's own shares with; null where there is none.
    QOpenGLContext* context() const { return m_context.get(); }
    /// Textures that wait for a context.
    GlTrash& trash() const { return *m_trash; }

    std::unique_ptr<PictureMaker> makeMaker() const;

private:
    std::shared_ptr<GlTrash> m_trash;
    std::unique_ptr<QOpenGLContext>
        m_context; ///< Is never made current, so that it is free to share.
};

} // namespace trel::player
