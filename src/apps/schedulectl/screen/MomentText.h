#pragma once

#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QDate>
#include <QString>

#include <optional>

namespace trel::console {

/// What a text of the command line says about a point in time.
struct MomentReading
{
    /// None when the text names no moment.
    std::optional<trel::mediadispatch::Instant> instant;
    QString error;  ///< Why it names none, and where in the text, as a sentence.
    QString remark; ///< What was taken, as a sentence, where local time leaves a choice or none.
};

/// What a date without a time of day stands for.
enum class DateAlone {
    Refused,
    StartOfDay,
};

/// Reads a moment: a date and a time of day ("2024-03-31 02:30:00", also with "T"), or the time of
/// day alone for a moment of today, or the date alone. Seconds may be left out or have up to three
/// decimals. An offset from UTC or "Z" may follow a time; without one the time is local.
///
/// A local time that is left out is taken as the first moment after the gap, and one that comes
/// twice as the first of the two. Anything else in the text is an error.
MomentReading readMoment(const QString& text, const trel::mediadispatch::MomentFormat& local,
                         const QDate& today, DateAlone dateAlone);

} // namespace trel::console
