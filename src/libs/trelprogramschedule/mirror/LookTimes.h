#pragma once

#include <chrono>
#include <functional>

namespace trel::mediadispatch {

/// When one who is told of changes of a store on a server looks at it: at once when told, and
/// besides at moments that are spread at random, so that hundreds who have all lost the server, or
/// got their power back, in the same moment do not come at once.
///
/// Does nothing by itself: StoreNotices tells it what happens and asks.
class LookTimes
{
public:
    /// Since any moment, always the same one; it never goes back.
    using Time = std::chrono::milliseconds;
    /// Gives numbers from 0 up to 1, which itself is not among them.
    using Random = std::function<double()>;

    /// The first look is at most so long after the beginning.
    static constexpr Time kFirst{1000};
    /// The look after a connection has gone is at most so long after that was found.
    static constexpr Time kSpread{2000};
    /// The bounds of the pause after a look that was refused: each pause is between a half and one
    /// and a half times of what doubles from the one up to the other.
    static constexpr Time kLeastPause{500};
    static constexpr Time kMostPause{2000};
    /// About so long after a look comes the next one, when nothing is told: between a half and one
    /// and a half times of it.
    static constexpr Time kDoubt{30000};

    explicit LookTimes(Random random);

    /// To be called first.
    void begin(Time now);
    /// Somebody told of a change. While the connection is gone nobody does.
    void hear(Time now);
    /// The connection was found to be gone.
    void lose(Time now);
    /// A look has ended, and whether the store could be read.
    void look(Time now, bool isDone);

    /// When the next look is due.
    Time due() const { return m_due; }

private:
    /// Between a half and one and a half times of a pause.
    Time around(Time pause);

    Random m_random;
    Time m_due{0};
    Time m_pause{kLeastPause}; ///< After the next refusal.
};

} // namespace trel::mediadispatch
