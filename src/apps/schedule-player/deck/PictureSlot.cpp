#include "deck/PictureSlot.h"

#include <utility>

namespace trel::player {

bool PictureSlot::put(const DeckPicture& picture)
{
    const std::lock_guard lock(m_mutex);
    m_picture = picture;
    return std::exchange(m_isTaken, false);
}

DeckPicture PictureSlot::take()
{
    const std::lock_guard lock(m_mutex);
    m_isTaken = true;
    return m_picture;
}

} // namespace trel::player
