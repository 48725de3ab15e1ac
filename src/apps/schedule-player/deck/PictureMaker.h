#pragma once

#include "deck/DeckPicture.h"
#include "deck/MpvHandle.h"

#include <QSize>

namespace trel::player {

/// Draws the pictures of one playback, in the thread of that playback alone, from start() to its
/// end.
class PictureMaker
{
public:
    virtual ~PictureMaker() = default;

    /// Null where it cannot draw.
    virtual MpvRenderer start(mpv_handle* handle) = 0;
    /// The present picture in a room of that size, still to be turned clockwise; null where it
    /// cannot be drawn.
    virtual DeckPicture draw(mpv_render_context* renderer, const QSize& room, int turned) = 0;
    /// Gives back what it holds. The renderer has gone by then.
    virtual void finish() = 0;

protected:
    PictureMaker() = default;
    PictureMaker(const PictureMaker&) = default;
    PictureMaker& operator=(const PictureMaker&) = default;
};

} // namespace trel::player
