#include "deck/SoftwareMaker.h"

#include "stage/ScreenShape.h"

#include <algorithm>

namespace trel::player {

MpvRenderer SoftwareMaker::start(mpv_handle* handle)
{
    mpv_render_context* renderer = nullptr;
    char api[] = MPV_RENDER_API_TYPE_SW;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, api},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    return MpvRenderer(mpv_render_context_create(&renderer, handle, params) < 0 ? nullptr
                                                                                : renderer);
}

DeckPicture SoftwareMaker::draw(mpv_render_context* renderer, const QSize& room, int turned)
{
    QImage& picture = blank(room);
    if (picture.isNull()) {
        return {};
    }
    int size[] = {picture.width(), picture.height()};
    auto stride = static_cast<std::size_t>(picture.bytesPerLine());
    // With every dot opaque, as a Wayland compositor heeds it: what only fills up is left at zero.
    char format[] = "bgra";
    int waits = 0;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                 {MPV_RENDER_PARAM_SW_FORMAT, format},
                                 {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                 {MPV_RENDER_PARAM_SW_POINTER, picture.bits()},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &waits},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    if (mpv_render_context_render(renderer, params) < 0) {
        return {};
    }
    return {turnedClockwise(picture, turned), nullptr};
}

QImage& SoftwareMaker::blank(const QSize& size)
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

} // namespace trel::player
