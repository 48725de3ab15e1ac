#pragma once

#include <QImage>

#include <array>
#include <mutex>

namespace trel::player {

/// Where the thread that draws a program leaves the newest picture, and that of the windows finds
/// it.
class PictureSlot
{
public:
    /// A picture of that size to draw on, which nobody else looks at. For the thread that draws.
    QImage& blank(const QSize& size);
    /// Puts a picture out. True when the former one has been taken, so that it is worth a word.
    bool put(const QImage& picture);
    /// The newest picture; null where there is none yet.
    QImage take();

private:
    std::array<QImage, 3> m_pool; ///< One is drawn on, one is out, one is on its way to the screen.
    std::mutex m_mutex;
    QImage m_picture;
    bool m_isTaken = true;
};

} // namespace trel::player
