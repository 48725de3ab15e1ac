#pragma once

#include "deck/Playback.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace trel::player {

/// A stream, asked for more than once where nothing comes of it.
///
/// A line that was made while a server was out of order may stay silent for good, also when the
/// server is well again. So a second line is made beside a silent one after a while, and a third
/// and a fourth: the first that has a picture or a sound wins, and the others go. A server that is
/// slow, but lives, is not thrown away by that, as its first line is kept for as long as it lasts.
/// A line on which something has come keeps all others waiting for longer, is not given up for a
/// new one either, and has one beside it at most, so that a connection that is only thin is not
/// shared by many.
class StreamPlayback : public Playback
{
public:
    /// Makes one line, which begins to load at once.
    using Line = std::function<std::unique_ptr<Playback>(const PlaybackNews& news)>;
    /// Whether there is room for one more beside the first.
    using Room = std::function<bool()>;

    /// How long nothing may come before another line is made, and nothing more where something has
    /// come, in milliseconds: with the time that it takes to load, what comes back is on the screen
    /// within two seconds.
    static constexpr int kSilence = 1200;
    static constexpr int kPause = 1500;
    /// How many lines there are at most; the one after the first makes way for a new one. And where
    /// something has come on one of them.
    static constexpr std::size_t kMostLines = 4;
    static constexpr std::size_t kMostShared = 2;

    StreamPlayback(Line line, Room hasRoom, PlaybackNews news, int silence = kSilence,
                   int pause = kPause);
    ~StreamPlayback() override;

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
    struct Try
    {
        int number = 0;
        bool hasStirred = false;
        std::unique_ptr<Playback> playback;
    };

    void tryOnce();
    void tryAgain();
    bool makeWay();
    bool hasAnyStirred() const;
    PlaybackNews newsOf(int number);
    std::vector<Try>::iterator find(int number);
    bool isWinner(int number) const;
    void becomeReady(int number);
    void stir(int number);
    void fail(int number, const screen::DeckFault& fault);

    const Line m_line;
    const Room m_hasRoom;
    const PlaybackNews m_news;
    const int m_pause;
    QTimer m_silence;
    int m_lastNumber = 0;
    std::vector<Try> m_tries; ///< The eldest first; the winner alone, once there is one.
    bool m_isReady = false;
};

} // namespace trel::player
