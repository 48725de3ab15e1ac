#pragma once

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

protected:
    FrameSink() = default;
    FrameSink(const FrameSink&) = default;
    FrameSink& operator=(const FrameSink&) = default;
};

} // namespace trel::player
