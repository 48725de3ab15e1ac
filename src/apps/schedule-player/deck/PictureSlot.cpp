#include "deck/PictureSlot.h"

#include <algorithm>
#include <utility>

namespace trel::player {

QImage& PictureSlot::blank(const QSize& size)
{
    const auto isFree = [&size](const QImage& image) {
        return image.size() == size && image.isDetached();
    };
    auto* found = std::find_if(m_pool.begin(), m_pool.end(), isFree);
    if (found == m_pool.end()) {
        // Of another size, or still looked at: the others keep what they have.
        found = std::find_if(m_pool.begin(), m_pool.end(),
                             [&size](const QImage& image) { return image.size() != size; });
        found = found == m_pool.end() ? m_pool.begin() : found;
        *found = QImage(size, QImage::Format_RGB32);
    }
    return *found;
}

bool PictureSlot::put(const QImage& picture)
{
    const std::lock_guard lock(m_mutex);
    m_picture = picture;
    return std::exchange(m_isTaken, false);
}

QImage PictureSlot::take()
{
    const std::lock_guard lock(m_mutex);
    m_isTaken = true;
    return m_picture;
}

} // namespace trel::player
