#pragma once

#include "gl/GlPicture.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QImage>

namespace trel::player {

/// Where the pictures of a stage end up: a window, or what takes them down for a test.
class FrameSink
{
public:
    virtual ~FrameSink() = default;

    /// The screen shows this from now on: as large as the screen, without transparency. In the
    /// thread of the windows.
    virtual void frame(const QImage& picture, mediadispatch::Instant moment) = 0;

    /// The same, of a screen that is drawn by OpenGL. Comes for films alone, and to sinks of such a
    /// screen.
    virtual void texture(const SharedGlPicture& /*picture*/, mediadispatch::Instant /*moment*/) {}

protected:
    FrameSink() = default;
    FrameSink(const FrameSink&) = default;
    FrameSink& operator=(const FrameSink&) = default;
};

} // namespace trel::player
