#pragma once

#include "deck/Playback.h"
#include "trelscreen/Deck.h"

#include <QObject>

#include <memory>

namespace trel::player {

class GlSharing;
class MpvWork;
class PlaybackThreads;

/// A film, a sound or a stream, played by libmpv in threads of its own. Each has a handle of its
/// own: one that was used before draws its former picture again when its next file does not load.
class MpvPlayback : public Playback
{
public:
    /// Draws in memory where nothing is shared.
    MpvPlayback(const screen::DeckLoad& load, bool isMute, const ScreenShape& shape,
                PlaybackNews news, PlaybackThreads& threads, GlSharing* sharing);
    ~MpvPlayback() override;

    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void setSpeed(double speed) override;
    void setShape(const ScreenShape& shape) override;

    std::optional<qint64> position() const override;
    std::optional<qint64> pictureLength() const override;
    DeckPicture picture() const override;
    qint64 droppedFrames() const override;

private:
    QObject m_receiver; ///< What has been sent to it goes with it.
    std::shared_ptr<MpvWork> m_work;
};

} // namespace trel::player
