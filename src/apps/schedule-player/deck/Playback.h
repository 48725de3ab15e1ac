#pragma once

#include "deck/DeckPicture.h"
#include "stage/ScreenShape.h"
#include "trelscreen/DeckFault.h"

#include <functional>
#include <optional>

namespace trel::player {

/// What a playback has to tell. Called in the thread of the windows, from the event loop, and never
/// after the playback has gone.
struct PlaybackNews
{
    std::function<void()> ready;
    std::function<void(const screen::DeckFault&)> failed;
    std::function<void()> ended;
    std::function<void()> pictureChanged; ///< There is a newer one; several may have come.
    /// Its pictures cannot be drawn in the way that it was told to. It fails as well.
    std::function<void()> drawingFailed;
    /// Of a stream that is not ready: something of it has come. Told any number of times.
    std::function<void()> stirred;
};

/// One program as it plays: what a deck has loaded. It begins to load when it is made, is never
/// given another program, and takes all that it has along when it goes, so that nothing of one
/// program can show in the next. Calls come from the thread of the windows and take no time worth
/// mentioning.
class Playback
{
public:
    virtual ~Playback() = default;

    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seek(qint64 position) = 0;
    virtual void setSpeed(double speed) = 0;
    virtual void setShape(const ScreenShape& shape) = 0;

    /// In milliseconds; none where it is not known.
    virtual std::optional<qint64> position() const = 0;
    /// How long a picture stands, in milliseconds; none where it is not known.
    virtual std::optional<qint64> pictureLength() const { return std::nullopt; }
    /// The newest picture: as large as the screen, with black around.
    virtual DeckPicture picture() const = 0;
    /// How many pictures came too late to be shown.
    virtual qint64 droppedFrames() const = 0;

protected:
    Playback() = default;
    Q_DISABLE_COPY(Playback)
};

} // namespace trel::player
