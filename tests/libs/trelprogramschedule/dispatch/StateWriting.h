#pragma once

#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QString>

/// A state of the screen in a line, such as
///
///     1.2 plays A (entry 0, play 1, run 2) at 3000, 08:00:10 - 08:00:20, span to 09:00:00
///
/// with the task and the plan first, and times as the local clock shows them. The date stands where
/// it is another one than that of the moment, and the offset where it differs.
QString lineOf(const trel::mediadispatch::ScreenState& state,
               const trel::mediadispatch::ScreenTimeline& timeline,
               trel::mediadispatch::Instant moment);

/// The instant of a text such as "2024.03.04 08:00:00.500" or, for a time that comes twice,
/// "2024.10.27 02:30:00 +1": the first instant at which the local clock shows it with this offset
/// in hours.
trel::mediadispatch::Instant momentFromText(const QString& text, const QTimeZone& zone);

/// As in momentFromText, always with date, milliseconds and offset.
QString momentText(trel::mediadispatch::Instant moment, const QTimeZone& zone);
