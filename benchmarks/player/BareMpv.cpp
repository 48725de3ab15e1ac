#include "BareMpv.h"

#include "deck/MpvHandle.h"

#include <QImage>

#include <clocale>
#include <condition_variable>
#include <mutex>
#include <stdexcept>

using namespace trel::player;

namespace bench {

namespace {

/// Waits for the library to have another picture.
class Wake
{
public:
    void ring()
    {
        const std::lock_guard lock(m_mutex);
        m_isRung = true;
        m_changed.notify_all();
    }
    /// False when none came by then.
    bool wait(std::chrono::steady_clock::time_point until)
    {
        std::unique_lock lock(m_mutex);
        const bool isRung = m_changed.wait_until(lock, until, [this] { return m_isRung; });
        m_isRung = false;
        return isRung;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isRung = false;
};

void check(int result)
{
    if (result < 0) {
        throw std::runtime_error(mpv_error_string(result));
    }
}

MpvHandle start()
{
    std::setlocale(LC_NUMERIC, "C");
    MpvHandle handle(mpv_create());
    if (handle == nullptr) {
        throw std::runtime_error("The library does not start.");
    }
    // As the player asks for it, as far as it makes a difference to the cost.
    const char* const options[][2] = {{"vo", "libmpv"},        {"config", "no"},
                                      {"terminal", "no"},      {"hwdec", "auto-copy-safe"},
                                      {"ao", "null"},          {"video-timing-offset", "0"},
                                      {"load-scripts", "no"},  {"osd-level", "0"},
                                      {"audio-display", "no"}, {"cache", "no"}};
    for (const auto& [name, value] : options) {
        check(mpv_set_option_string(handle.get(), name, value));
    }
    check(mpv_initialize(handle.get()));
    return handle;
}

MpvRenderer rendererOf(mpv_handle* handle)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the library takes it so
    char* const api = const_cast<char*>(MPV_RENDER_API_TYPE_SW);
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_API_TYPE, api},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context* context = nullptr;
    check(mpv_render_context_create(&context, handle, parameters));
    return MpvRenderer(context);
}

void draw(mpv_render_context* context, QImage& picture)
{
    int size[] = {picture.width(), picture.height()};
    std::size_t stride = static_cast<std::size_t>(picture.bytesPerLine());
    char format[] = "bgr0";
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                     {MPV_RENDER_PARAM_SW_FORMAT, format},
                                     {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                     {MPV_RENDER_PARAM_SW_POINTER, picture.bits()},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    check(mpv_render_context_render(context, parameters));
}

} // namespace

void playWithLibrary(const QString& film, const QSize& size, std::chrono::milliseconds length)
{
    const MpvHandle handle = start();
    const MpvRenderer renderer = rendererOf(handle.get());
    Wake wake;
    mpv_render_context_set_update_callback(
        renderer.get(), [](void* self) { static_cast<Wake*>(self)->ring(); }, &wake);
    const QByteArray path = film.toUtf8();
    const char* command[] = {"loadfile", path.constData(), nullptr};
    check(mpv_command(handle.get(), command));
    QImage picture(size, QImage::Format_RGB32);
    const auto end = std::chrono::steady_clock::now() + length;
    int pictures = 0;
    while (wake.wait(end)) {
        if ((mpv_render_context_update(renderer.get()) & MPV_RENDER_UPDATE_FRAME) != 0) {
            draw(renderer.get(), picture);
            ++pictures;
        }
    }
    mpv_render_context_set_update_callback(renderer.get(), nullptr, nullptr);
    if (pictures < 2) {
        throw std::runtime_error("The library has not played.");
    }
}

} // namespace bench
