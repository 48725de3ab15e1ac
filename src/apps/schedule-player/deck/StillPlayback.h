#pragma once

#include "deck/Playback.h"

#include <QObject>
#include <QString>

#include <memory>

namespace trel::player {

class PlaybackThreads;

/// An image, which stands. It is read by the program that reads media, as large as the screen at
/// most, and once more where the screen changes its shape.
class StillPlayback : public Playback
{
public:
    StillPlayback(const QString& path, const ScreenShape& shape, PlaybackNews news,
                  PlaybackThreads& threads);
    ~StillPlayback() override;

    void play() override {}
    void pause() override {}
    void seek(qint64 /*position*/) override {}
    void setSpeed(double /*speed*/) override {}
    void setShape(const ScreenShape& shape) override;

    std::optional<qint64> position() const override { return {}; }
    DeckPicture picture() const override { return {m_picture, nullptr}; }
    qint64 droppedFrames() const override { return 0; }

private:
    struct Reading;

    void read();
    void take(const QImage& picture);
    void giveUp();

    const QString m_path;
    ScreenShape m_shape;
    PlaybackNews m_news;
    PlaybackThreads& m_threads;
    QImage m_picture;
    std::unique_ptr<QObject> m_receiver; ///< Of the reading under way.
    std::shared_ptr<Reading> m_reading;
};

} // namespace trel::player
