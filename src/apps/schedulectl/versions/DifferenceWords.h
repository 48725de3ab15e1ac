#pragma once

#include "service/ScheduleDifferences.h"

#include <QJsonObject>
#include <QString>

#include <map>

namespace trel::console {

/// A difference as a line: "task 1, plan 4: end 14:00:00 → 15:00:00". Printable. Rows count from 1.
QString differenceText(const trel::mediadispatch::ScheduleDifference& difference,
                       const std::map<int, trel::mediadispatch::ProgramIten>& programs);

/// The same for machines.
QJsonObject differenceJson(const trel::mediadispatch::ScheduleDifference& difference);

} // namespace trel::console
