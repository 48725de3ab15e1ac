#include "FrameRecord.h"

#include <algorithm>
#include <iterator>

#include "stage/ScreenShape.h"

namespace {

bool isBlack(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > 0) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

void FrameRecord::frame(const QImage& picture, trel::mediadispatch::Instant moment)
{
    RecordedFrame taken;
    taken.elapsed = elapsed();
    taken.moment = moment;
    m_lastPicture = picture;
    const QImage upright = trel::player::turnedClockwise(picture, (360 - m_turned) % 360);
    if (const auto mark = media::readClipMark(upright, m_part)) {
        taken.content = RecordedFrame::Content::Clip;
        taken.mark = *mark;
    } else if (isBlack(picture)) {
        taken.content = RecordedFrame::Content::Black;
    }
    m_frames.push_back(taken);
}

void FrameRecord::forgetBefore(trel::mediadispatch::Instant moment)
{
    const auto first =
        std::find_if(m_frames.begin(), m_frames.end(),
                     [moment](const RecordedFrame& frame) { return frame.moment >= moment; });
    if (first != m_frames.begin()) {
        m_frames.erase(m_frames.begin(), std::prev(first));
    }
}
