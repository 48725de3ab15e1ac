#pragma once

#include "schedulecontract_export.h"

#include <QDate>

#include <string>

namespace trel::mediadispatch {

/// The date that a text in kDateFormat names; an invalid date when it names none.
SCHEDULECONTRACT_EXPORT QDate dateFromText(const std::string& text);

/// A date in kDateFormat; empty for an invalid date.
SCHEDULECONTRACT_EXPORT std::string dateToText(const QDate& date);

} // namespace trel::mediadispatch
