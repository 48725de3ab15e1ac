#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// The names of a plan's programs as the catalogue has them now, joined with commas, each with the
/// word that tells when it has gone bad or no longer exists.
QString programNames(const std::vector<struProgInfo>& programs);

} // namespace trel::mediadispatch
