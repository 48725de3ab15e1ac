#pragma once

#include "ScreenFixture.h"
#include "trelscreen/AsRunRecorder.h"

#include <QStringList>

#include <vector>

/// A screen of recorded decks whose pictures are recorded. Its recorder is given each schedule, and
/// looks at the screen when the test says so.
class AsRunFixture
{
public:
    explicit AsRunFixture(const char* timeOfDay, std::optional<qint64> readyAfter = 1)
        : AsRunFixture(ScreenFixture::moment(timeOfDay), 0, readyAfter)
    {}
    /// With the clock that never leaps at a moment.
    AsRunFixture(const QDateTime& now, qint64 steady, std::optional<qint64> readyAfter = 1);

    /// What has been recorded since the last call, a line for each record; see lineOf.
    QStringList take();
    /// As the player does every few seconds.
    void look();
    /// The machine sleeps, and so do all clocks but the one of the day.
    void sleep(qint64 milliseconds);

    /// "08:00:00 +10000 A complete": when it began by the local clock, how long it lasted by the
    /// clock that never leaps, what the schedule had, what stood in for it where something did, and
    /// how it ended; then ", 5 late" and the reason in brackets, where there are any.
    static QString lineOf(const trel::mediadispatch::AsRunRecord& record);

    /// The clock that never leaps.
    qint64 steady() const;

    ScreenFixture screen;
    qint64 slept = 0; ///< By which it is ahead of the one that the screen runs on.
    /// All that was recorded.
    std::vector<trel::screen::AsRunEntry> entries;
    trel::screen::AsRunRecorder recorder;

private:
    std::size_t m_taken = 0;
};
