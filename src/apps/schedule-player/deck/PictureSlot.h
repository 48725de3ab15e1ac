#pragma once

#include "deck/DeckPicture.h"

#include <mutex>

namespace trel::player {

/// Where the thread that draws a program leaves the newest picture, and that of the windows finds
/// it.
class PictureSlot
{
public:
    /// Puts a picture out. True when the former one has been taken, so that it is worth a word.
    bool put(const DeckPicture& picture);
    /// The newest picture; null where there is none yet.
    DeckPicture take();

private:
    std::mutex m_mutex;
    DeckPicture m_picture;
    bool m_isTaken = true;
};

} // namespace trel::player
