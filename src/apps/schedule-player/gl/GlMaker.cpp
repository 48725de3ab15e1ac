#include "gl/GlMaker.h"

#include <mpv/render_gl.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <utility>

namespace trel::player {

namespace {

constexpr std::size_t kMostCanvases = 3;

void* functionOf(void* context, const char* name)
{
    return reinterpret_cast<void*>(static_cast<QOpenGLContext*>(context)->getProcAddress(name));
}

/// Surfaces come and go in the thread of the windows.
void letGo(QOffscreenSurface* surface)
{
    surface->deleteLater();
}

} // namespace

GlMaker::GlMaker(QOpenGLContext& shared, std::shared_ptr<GlTrash> trash)
    : m_shared(shared)
    , m_trash(std::move(trash))
    , m_surface(new QOffscreenSurface, &letGo)
{
    m_surface->setFormat(shared.format());
    m_surface->create();
}

GlMaker::~GlMaker() = default;

MpvRenderer GlMaker::start(mpv_handle* handle)
{
    m_context = std::make_unique<QOpenGLContext>();
    m_context->setFormat(m_shared.format());
    m_context->setShareContext(&m_shared);
    if (!m_surface->isValid() || !m_context->create() || !m_context->makeCurrent(m_surface.get())) {
        return nullptr;
    }
    char api[] = MPV_RENDER_API_TYPE_OPENGL;
    mpv_opengl_init_params functions{&functionOf, m_context.get()};
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, api},
                                 {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &functions},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context* renderer = nullptr;
    return MpvRenderer(mpv_render_context_create(&renderer, handle, params) < 0 ? nullptr
                                                                                : renderer);
}

DeckPicture GlMaker::draw(mpv_render_context* renderer, const QSize& room, int turned)
{
    // Made current again each time, which is how a context finds out that its driver has lost it.
    if (room.isEmpty() || !m_context->makeCurrent(m_surface.get())) {
        return {};
    }
    Canvas& canvas = blank(room);
    mpv_opengl_fbo target{static_cast<int>(canvas.frame), room.width(), room.height(), 0};
    int isFlipped = 0;
    int waits = 0;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_OPENGL_FBO, &target},
                                 {MPV_RENDER_PARAM_FLIP_Y, &isFlipped},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &waits},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    if (mpv_render_context_render(renderer, params) < 0) {
        return {};
    }
    // The window's context sees the texture as it is then, and not half drawn.
    m_context->functions()->glFinish();
    canvas.picture->setTurned(turned);
    return {QImage(), canvas.picture};
}

void GlMaker::finish()
{
    const bool isCurrent =
        m_context != nullptr && QOpenGLContext::currentContext() == m_context.get();
    if (!isCurrent) {
        // What was lost has taken all of it along.
        m_pool.clear();
    }
    for (Canvas& canvas : m_pool) {
        drop(canvas);
    }
    m_pool.clear();
    if (m_context != nullptr) {
        m_context->doneCurrent();
        m_context.reset();
    }
}

GlMaker::Canvas& GlMaker::blank(const QSize& size)
{
    const auto found = std::find_if(m_pool.begin(), m_pool.end(), [](const Canvas& canvas) {
        return canvas.picture.use_count() == 1;
    });
    if (found != m_pool.end() && found->picture->size() == size) {
        return *found;
    }
    if (found != m_pool.end()) {
        drop(*found);
        *found = makeCanvas(size);
        return *found;
    }
    if (m_pool.size() == kMostCanvases) {
        // All are looked at still: the oldest goes on to be, and is no longer drawn on.
        drop(m_pool.front());
        m_pool.erase(m_pool.begin());
    }
    m_pool.push_back(makeCanvas(size));
    return m_pool.back();
}

GlMaker::Canvas GlMaker::makeCanvas(const QSize& size) const
{
    QOpenGLFunctions& gl = *m_context->functions();
    GLuint texture = 0;
    gl.glGenTextures(1, &texture);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, size.width(), size.height(), 0, GL_RGBA,
                    GL_UNSIGNED_BYTE, nullptr);
    GLuint frame = 0;
    gl.glGenFramebuffers(1, &frame);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, frame);
    gl.glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    return {std::make_shared<GlPicture>(texture, size, m_trash), frame};
}

void GlMaker::drop(Canvas& canvas) const
{
    m_context->functions()->glDeleteFramebuffers(1, &canvas.frame);
    canvas.picture.reset();
}

} // namespace trel::player
