#pragma once

#include "deck/PictureMaker.h"

#include <memory>
#include <vector>

class QOffscreenSurface;
class QOpenGLContext;

namespace trel::player {

/// Draws into textures of the group of the window's context, in a context of its own.
class GlMaker : public PictureMaker
{
public:
    /// For the thread of the windows. The context to share with outlives all that the playback
    /// does.
    GlMaker(QOpenGLContext& shared, std::shared_ptr<GlTrash> trash);
    ~GlMaker() override;

    MpvRenderer start(mpv_handle* handle) override;
    DeckPicture draw(mpv_render_context* renderer, const QSize& room, int turned) override;
    void finish() override;

private:
    struct Canvas
    {
        SharedGlPicture picture;
        unsigned int frame = 0; ///< The object that draws into its texture.
    };

    Canvas& blank(const QSize& size);
    Canvas makeCanvas(const QSize& size) const;
    void drop(Canvas& canvas) const;

    QOpenGLContext& m_shared;
    std::shared_ptr<GlTrash> m_trash;
    std::shared_ptr<QOffscreenSurface> m_surface; ///< Made and let go by the thread of the windows.
    std::unique_ptr<QOpenGLContext> m_context;
    std::vector<Canvas> m_pool;
};

} // namespace trel::player
