#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

/// What of a version decides whether it stays.
struct VersionAge
{
    qint64 number = 0;
    Instant saved = 0; ///< 0 where it is not known: as old as the one saved next then.
    bool isNamed = false;
};

/// So many versions stay besides the one that is saved now, whatever their age.
constexpr int kRecentVersions = 200;

/// The numbers of those that are not kept any more, ascending. The newest comes first, which is
/// what is saved now. It stays, as do the next 200 and all that have a name. Of the others those
/// stay that were the last of their day, up to 31 days old; of their week, up to a year; and of
/// their thirty days, up to ten years. Days begin at midnight UTC, and weeks and thirty days are
/// counted from 1970-01-01, so that all programs keep the same ones.
std::vector<qint64> versionsToDrop(const std::vector<VersionAge>& newestFirst, Instant now);

} // namespace trel::mediadispatch
