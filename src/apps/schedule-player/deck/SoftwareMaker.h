#pragma once

#include "deck/PictureMaker.h"

#include <array>

namespace trel::player {

/// Draws into memory.
class SoftwareMaker : public PictureMaker
{
public:
    MpvRenderer start(mpv_handle* handle) override;
    DeckPicture draw(mpv_render_context* renderer, const QSize& room, int turned) override;
    void finish() override {}

private:
    /// A picture of that size to draw on, which is not looked at elsewhere.
    QImage& blank(const QSize& size);

    std::array<QImage, 3> m_pool; ///< One is drawn on, one is out, one is on its way to the screen.
};

} // namespace trel::player
