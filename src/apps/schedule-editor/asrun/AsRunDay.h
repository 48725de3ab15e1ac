#pragma once

#include "follow/NewestWork.h"
#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule/store/StoreResult.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <vector>

namespace trel::desktop {

/// A time in which neither what was planned nor what was on the screen changed.
struct AsRunLine
{
    mediadispatch::Instant from = 0;
    mediadispatch::Instant to = 0;

    bool isPlanKnown = false;
    mediadispatch::ScreenPicture planned = mediadispatch::ScreenPicture::Black;
    QString plannedProgram;
    int plannedIndex = -1; ///< Of that program.

    bool isRecorded = false;
    mediadispatch::AsRunRecord record; ///< Where it is recorded.
    /// A record tells why the screen was not as planned, or it was.
    bool isExplained = true;

    bool isLate() const;
    /// The screen was as planned, from the beginning on to the end.
    bool isAsPlanned() const;
};

/// More than anybody reads of a day; plays of less than a second may follow each other all day.
constexpr std::size_t kMostAsRunLines = 100'000;

/// What was planned for a screen on a day, and what was on it.
struct AsRunDay
{
    QDate date;
    QTimeZone zone;
    mediadispatch::StoreResult result; ///< What keeps the records from being read.
    bool isRecorded = false;           ///< A player has recorded something for the store.
    QStringList screens;               ///< All that are recorded, sorted.
    QString screen;                    ///< The one that this is about.
    std::vector<AsRunLine> lines;
    mediadispatch::Instant until = 0; ///< The end of its last record; 0 where it has none.
    bool isCut = false;               ///< The day has more than the most lines.
    bool isWhole = true;              ///< The records are those that players wrote, all of them.
    qint64 unexplained = 0; ///< How often no record tells why the screen was not as planned.
};

/// What is to be read.
struct AsRunQuestion
{
    QString store;
    QString screen; ///< The first one where this is not recorded.
    QDate date;     ///< By the clocks of the zone.
    QTimeZone zone;
};

/// Opens the database beside the store, for reading. Waits for the disk, and so is nothing for the
/// thread of the windows.
AsRunDay readAsRunDay(const AsRunQuestion& question, const follow::Cancellation& cancellation);

} // namespace trel::desktop
