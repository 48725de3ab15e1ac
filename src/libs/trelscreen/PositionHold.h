#pragma once

#include <QtGlobal>

#include <deque>
#include <limits>
#include <optional>

namespace trel::screen {

/// Keeps a play at the position that the timeline has, where sound and picture go by the clock of a
/// device: by a breath of speed when it is off by more than a frame, until it is within a quarter
/// of one; by a seek when it is off by more than half a second. Where seeks do not help, they come
/// with growing pauses.
///
/// Positions are milliseconds. The position of a deck stands still between two pictures, so that it
/// may read late, never early: of the last readings that which is least behind counts.
class PositionHold
{
public:
    /// Of a play whose pictures stand for that long, in milliseconds, where that is known.
    explicit PositionHold(std::optional<qint64> frame = std::nullopt);

    /// The length of a frame where it is not known, and the shortest that counts.
    static constexpr qint64 kTolerance = 40;
    /// The longest that counts.
    static constexpr qint64 kMostTolerance = 250;
    static constexpr qint64 kGoodEnough = kTolerance / 4;
    static constexpr qint64 kTooFar = 500;
    static constexpr double kBreath = 0.02;

    struct Step
    {
        /// The speed to play at from now on; nothing where it stays as it is.
        std::optional<double> speed;
        /// Where to go to; nothing to stay.
        std::optional<qint64> seek;
        /// How far the play is ahead of the timeline; below 0 behind.
        qint64 ahead = 0;
    };

    /// What is to be done with a play that is at a position, or does not know it, as while it
    /// seeks. `moment` are milliseconds that never leap.
    Step step(qint64 wanted, std::optional<qint64> position, qint64 moment);

    double speed() const { return m_speed; }

private:
    void read(double ahead, qint64 moment);
    Step seek(qint64 wanted, qint64 ahead, qint64 moment);

    const double m_tolerance;
    double m_speed = 1.0;
    std::deque<double> m_readings;
    std::optional<qint64> m_readAt;
    bool m_isSeeking = false;
    /// How long a seek takes: it goes that far beyond what is wanted when it is asked for.
    qint64 m_seekLead = 100;
    int m_seeks = 0; ///< Since it was last where it should be.
    qint64 m_nextSeekAt = std::numeric_limits<qint64>::min();
};

} // namespace trel::screen
