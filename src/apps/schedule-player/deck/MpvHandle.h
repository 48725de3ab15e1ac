#pragma once

#include <mpv/client.h>
#include <mpv/render.h>
#include <mpv/stream_cb.h>

#include <memory>

namespace trel::player {

struct DestroyMpv
{
    void operator()(mpv_handle* handle) const { mpv_terminate_destroy(handle); }
};

struct FreeMpvRenderer
{
    void operator()(mpv_render_context* context) const { mpv_render_context_free(context); }
};

/// Waits for its end where it is destroyed, which takes as long as the file system lets it.
using MpvHandle = std::unique_ptr<mpv_handle, DestroyMpv>;
/// Has to go before its handle.
using MpvRenderer = std::unique_ptr<mpv_render_context, FreeMpvRenderer>;

} // namespace trel::player
