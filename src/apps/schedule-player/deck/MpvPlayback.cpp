#include "deck/MpvPlayback.h"

#include "deck/MpvWork.h"
#include "deck/PlaybackThreads.h"
#include "deck/SoftwareMaker.h"
#include "gl/GlSharing.h"

#include <utility>

namespace trel::player {

namespace {

std::unique_ptr<PictureMaker> makerFor(GlSharing* sharing)
{
    if (sharing == nullptr) {
        return std::make_unique<SoftwareMaker>();
    }
    return sharing->makeMaker();
}

} // namespace

MpvPlayback::MpvPlayback(const screen::DeckLoad& load, bool isMute, const ScreenShape& shape,
                         PlaybackNews news, PlaybackThreads& threads, GlSharing* sharing)
    : m_work(std::make_shared<MpvWork>(load, isMute, shape, m_receiver, std::move(news),
                                       makerFor(sharing), sharing == nullptr))
{
    threads.start([work = m_work] { work->run(); });
}

MpvPlayback::~MpvPlayback()
{
    m_work->stop();
}

void MpvPlayback::play()
{
    m_work->play();
}

void MpvPlayback::pause()
{
    m_work->pause();
}

void MpvPlayback::seek(qint64 position)
{
    m_work->seek(position);
}

void MpvPlayback::setSpeed(double speed)
{
    m_work->setSpeed(speed);
}

void MpvPlayback::setShape(const ScreenShape& shape)
{
    m_work->setShape(shape);
}

std::optional<qint64> MpvPlayback::position() const
{
    return m_work->position();
}

std::optional<qint64> MpvPlayback::pictureLength() const
{
    return m_work->pictureLength();
}

DeckPicture MpvPlayback::picture() const
{
    return m_work->picture();
}

qint64 MpvPlayback::droppedFrames() const
{
    return m_work->droppedFrames();
}

} // namespace trel::player
