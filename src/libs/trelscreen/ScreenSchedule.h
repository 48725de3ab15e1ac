#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/effect/EffectStart.h"

#include <QMetaType>
#include <QTimeZone>

#include <map>
#include <memory>
#include <optional>

namespace trel::screen {

/// What a screen is to show, as it was in effect when it was read: a record that does not change
/// any more, which threads share.
struct ScreenSchedule
{
    /// Of the tasks in effect and the catalogue below, in the zone of the screen; one without tasks
    /// while nothing is in effect. Never null.
    std::shared_ptr<const mediadispatch::ScreenTimeline> timeline;
    mediadispatch::ScreenInsertions insertions;
    /// Never null.
    std::shared_ptr<const std::map<int, mediadispatch::ProgramIten>> catalogue;
    /// None while nothing is in effect.
    std::optional<mediadispatch::EffectStart> start;

    /// What the timeline was made of besides; never null where the schedule comes from a store.
    std::shared_ptr<const std::map<int, mediadispatch::PlayTask>> tasks;
    QTimeZone zone;
};

} // namespace trel::screen

Q_DECLARE_METATYPE(trel::screen::ScreenSchedule)
