#pragma once

#include "deck/DeckPicture.h"
#include "deck/MpvHandle.h"
#include "deck/PlaybackThreads.h"
#include "stage/ScreenShape.h"
#include "trelscreen/Deck.h"

#include <chrono>
#include <memory>

namespace trel::player {

class GlSharing;
class Playback;
struct PlaybackNews;

/// A deck that really plays: films, sound and streams by libmpv, images by the program that reads
/// media. Each load has a player of its own, made and taken down in threads of its own.
///
/// The application has to be there by then, and LC_NUMERIC is set to that of "C" for the whole
/// process, as libmpv asks for. Takes up to a third of a second to go.
class PlayerDeck : public screen::Deck
{
    Q_OBJECT

public:
    /// Draws films by OpenGL where something is shared, which outlives it, and in memory otherwise.
    explicit PlayerDeck(bool isMute, GlSharing* sharing = nullptr, QObject* parent = nullptr);
    ~PlayerDeck() override;

    quint64 load(const screen::DeckLoad& load) override;
    void clear() override;

    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void setSpeed(double speed) override;

    bool isReady() const override { return m_isReady; }
    bool hasPicture() const override;
    std::optional<qint64> position() const override;
    std::optional<qint64> pictureLength() const override;

    /// Forgets what it had, and waits until its threads have ended, but no longer than that. Tells
    /// whether they have; those that hang are left to the end of the process. It loads nothing any
    /// more.
    bool leave(std::chrono::steady_clock::time_point until);

    /// Draws in memory from now on. Where it has a film by OpenGL, that fails.
    void drawInMemory();

    /// What its pictures are made for, from now on. Has to be said before the first load.
    void setShape(const ScreenShape& shape);
    /// The newest picture, as large as the screen; null where it has none.
    DeckPicture picture() const;
    /// How many pictures came too late to be shown, of all that it has played.
    qint64 droppedFrames() const;

signals:
    /// There is a newer picture. Several may have come.
    void pictureChanged();
    /// What it was to draw cannot be drawn in the way that it was told to. The load fails as well.
    void drawingFailed();
    /// It is about to load that, or nothing. From within load() and clear().
    void loadBegins(const QString& media);

private:
    std::unique_ptr<Playback> playbackOf(const screen::DeckLoad& load, const PlaybackNews& news);
    void becomeReady();
    void forget();

    const bool m_isMute;
    GlSharing* m_sharing; ///< None where films are drawn in memory.
    ScreenShape m_shape;
    quint64 m_number = 0;
    bool m_isReady = false;
    bool m_stands = false;
    bool m_isByOpenGl = false; ///< The present load.
    qint64 m_droppedBefore = 0;
    MpvHandle m_quiet; ///< Goes after all threads.
    PlaybackThreads m_threads;
    std::unique_ptr<Playback> m_playback;
};

} // namespace trel::player
