#pragma once

#include "schedulecontract_export.h"

#include <QTime>

#include <string>

namespace trel::mediadispatch {

/// The time of day that a text in kTimeFormat names; an invalid time when it names none. Reads
/// every text as QTime::fromString does, only faster where the text has the exact format.
SCHEDULECONTRACT_EXPORT QTime timeFromText(const std::string& text);

/// A time of day in kTimeFormat, without its milliseconds; empty for an invalid time.
SCHEDULECONTRACT_EXPORT std::string timeToText(const QTime& time);

} // namespace trel::mediadispatch
