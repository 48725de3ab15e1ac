#pragma once

#include <chrono>
#include <optional>

namespace trel::player {

/// Where a program has got to, between the pictures as well: a picture tells its place when it
/// comes, and goes on being shown for some time.
class PlayedPosition
{
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// The picture, or the sound, of this place has come. Milliseconds from the beginning.
    void reached(double position, Moment moment);
    /// No longer known, as while it is sought.
    void forget() { m_position.reset(); }
    void run(Moment moment);
    void stand(Moment moment);
    void setSpeed(double speed, Moment moment);
    /// The program has been read up to this place, and so goes on to it.
    void readUntil(double position) { m_readUntil = position; }

    /// Goes on while there is something to go on with: for a quarter of a second beyond what was
    /// reached last, and as far as the program has been read. Stands from then on.
    std::optional<double> at(Moment moment) const;

private:
    void keep(Moment moment);

    std::optional<double> m_position;
    Moment m_since;
    double m_speed = 1.0;
    double m_readUntil = 0.0;
    bool m_runs = false;
};

} // namespace trel::player
