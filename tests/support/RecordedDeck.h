#pragma once

#include "trelscreen/Deck.h"

#include <QElapsedTimer>

#include <functional>
#include <limits>
#include <memory>
#include <optional>

namespace trel::mediadispatch {
class ClockAlarm;
}

/// A deck without pictures that tells what is asked of it, each call as a line such as
/// "one: load A at 250". It gets ready, fails and ends when the test says so, or a while after each
/// load. Plays on the clock in force, at the speed that it is given.
class RecordedDeck : public trel::screen::Deck
{
public:
    using Tell = std::function<void(const QString& line)>;
    /// What keeps media from being loaded, at the moment at which that would be ready.
    using Trouble = std::function<trel::screen::DeckTrouble(const QString& media)>;

    RecordedDeck(const QString& name, Tell tell);
    ~RecordedDeck() override;

    quint64 load(const trel::screen::DeckLoad& load) override;
    void clear() override;
    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void setSpeed(double speed) override;
    bool isReady() const override { return m_isReady; }
    bool hasPicture() const override;
    std::optional<qint64> position() const override;
    std::optional<qint64> pictureLength() const override { return m_pictureLength; }

    QString name() const { return m_name; }
    /// The present load; of no media while it is clear.
    const trel::screen::DeckLoad& loaded() const { return m_loaded; }
    /// When, by the clock in force.
    qint64 loadedAt() const { return m_loadedAt; }
    bool isPlaying() const { return m_isPlaying; }
    /// How often its position was asked for.
    int looks() const { return m_looks; }
    double speed() const { return m_speed; }

    /// How long each load takes in milliseconds; nothing to have the test tell.
    void setReadyAfter(std::optional<qint64> milliseconds) { m_readyAfter = milliseconds; }
    void setTrouble(Trouble trouble) { m_trouble = std::move(trouble); }
    /// Where whatever is loaded ends, before the place that was asked for perhaps.
    void setMediaLength(qint64 milliseconds) { m_mediaLength = milliseconds; }
    /// How long a picture of whatever is loaded stands.
    void setPictureLength(std::optional<qint64> milliseconds) { m_pictureLength = milliseconds; }
    void setSeekTakes(qint64 milliseconds) { m_seekTakes = milliseconds; }

    void tellReady();
    void tellFailed(trel::screen::DeckTrouble trouble, const QString& words = {});
    void tellEnded();
    /// Moves the picture without being asked to, as the clock of a device does that is off.
    void drift(qint64 milliseconds) { m_position += static_cast<double>(milliseconds); }
    /// Stands still, though it plays.
    void setStalled(bool isStalled);

private:
    void arrive();
    void tell(const QString& what);
    qint64 now() const;
    double reached() const;
    void settle();

    QString m_name;
    Tell m_tell;
    Trouble m_trouble;
    std::optional<qint64> m_readyAfter;
    qint64 m_mediaLength = std::numeric_limits<qint64>::max();
    qint64 m_seekTakes = 0;
    std::optional<qint64> m_pictureLength;
    std::unique_ptr<trel::mediadispatch::ClockAlarm> m_alarm;
    QElapsedTimer m_timer;

    trel::screen::DeckLoad m_loaded;
    quint64 m_load = 0;
    mutable int m_looks = 0;
    qint64 m_loadedAt = 0;
    bool m_isReady = false;
    bool m_isPlaying = false;
    bool m_isStalled = false;
    bool m_hasEnded = false;
    double m_speed = 1.0;
    double m_position = 0.0; ///< At m_since.
    qint64 m_since = 0;
    qint64 m_soughtUntil = 0;
};
