#pragma once

#include "stage/FrameSink.h"
#include "support/NumberedClip.h"

#include <QElapsedTimer>

#include <optional>
#include <vector>

/// One picture that a stage has handed out.
struct RecordedFrame
{
    enum class Content {
        Black,
        Clip,  ///< A clip's picture that can be read.
        Other, ///< Anything else, a mixture of two clips as well.
    };

    Content content = Content::Other;
    media::ClipMark mark; ///< Of Content::Clip alone.
    qint64 elapsed = 0;   ///< Nanoseconds since the record was made.
    trel::mediadispatch::Instant moment = 0;
};

/// Takes down what a stage hands out, with the marks of clips read.
class FrameRecord : public trel::player::FrameSink
{
public:
    FrameRecord() { m_timer.start(); }

    void frame(const QImage& picture, trel::mediadispatch::Instant moment) override;

    /// Where the clip's picture lies on the screen; all of it by default.
    void setPart(const QRectF& part) { m_part = part; }
    /// By how much the screen is turned, so that marks are read upright.
    void setTurned(int degrees) { m_turned = degrees; }

    const std::vector<RecordedFrame>& frames() const { return m_frames; }
    const RecordedFrame& last() const { return m_frames.back(); }
    const QImage& lastPicture() const { return m_lastPicture; }
    qint64 elapsed() const { return m_timer.nsecsElapsed(); }
    void clear() { m_frames.clear(); }
    /// Keeps what came from that moment on, and the one before.
    void forgetBefore(trel::mediadispatch::Instant moment);

private:
    QElapsedTimer m_timer;
    QRectF m_part;
    int m_turned = 0;
    std::vector<RecordedFrame> m_frames;
    QImage m_lastPicture;
};
