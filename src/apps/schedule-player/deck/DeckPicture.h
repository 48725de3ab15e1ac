#pragma once

#include "gl/GlPicture.h"

#include <QImage>

namespace trel::player {

/// What a deck shows: an image as large as the screen and turned as it hangs, or a picture of
/// OpenGL; neither where it has none.
struct DeckPicture
{
    QImage image;
    SharedGlPicture texture;

    bool isNull() const { return image.isNull() && texture == nullptr; }
};

} // namespace trel::player
