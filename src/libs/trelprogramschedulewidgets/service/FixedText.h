#pragma once

#include "schedulecontract_export.h"

#include <string>
#include <string_view>

namespace trel::mediadispatch {

/// Whether a text has the form of a pattern, in which a "0" stands for any digit and everything
/// else for itself.
SCHEDULECONTRACT_EXPORT bool hasForm(const std::string& text, std::string_view pattern);

/// The number that the digits at a place of a text make. There have to be that many.
SCHEDULECONTRACT_EXPORT int digitsAt(const std::string& text, std::size_t place, std::size_t count);

} // namespace trel::mediadispatch
