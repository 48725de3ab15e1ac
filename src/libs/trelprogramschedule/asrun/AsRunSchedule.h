#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/effect/EffectStart.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>

#include <map>
#include <optional>

namespace trel::mediadispatch {

/// What a player followed, with all that its timeline is made of, so that the past can be worked
/// out again when the store has moved on.
struct AsRunSchedule
{
    std::optional<EffectStart> start; ///< None while nothing is in effect.
    std::map<int, PlayTask> tasks;
    ScreenInsertions insertions;
    std::map<int, ProgramIten> catalogue;
    QByteArray zone; ///< Its name in the system's list, such as "Europe/Berlin".
};

/// The same as bytes; equal schedules give equal bytes. Programs that nothing plays, the addresses
/// of media, and what the operator saw before an insertion are left out: no timeline needs them,
/// and an address may hold a password.
TRELPROGRAMSCHEDULE_EXPORT QByteArray asRunContents(const AsRunSchedule& schedule);

/// The way back; none for bytes that asRunContents has not made.
TRELPROGRAMSCHEDULE_EXPORT std::optional<AsRunSchedule> asRunSchedule(const QByteArray& contents);

/// What records name the contents by; 32 bytes.
TRELPROGRAMSCHEDULE_EXPORT QByteArray asRunScheduleHash(const QByteArray& contents);

} // namespace trel::mediadispatch
