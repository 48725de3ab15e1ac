#pragma once

#include "service/ScheduleRecords.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <map>
#include <vector>

namespace trel::console {

/// The length of a program for people; a dash when it has none of its own.
QString programLength(const trel::mediadispatch::ProgramIten& program);

/// The file or the address of a program as it may go to a terminal, where no one is to read a
/// password.
QString programPath(const trel::mediadispatch::ProgramIten& program);

/// A program as the JSON output has it.
QJsonObject programJson(const trel::mediadispatch::ProgramIten& program);

/// The programs of these indexes, in their order.
QJsonArray programsJson(const std::vector<int>& indexes,
                        const std::map<int, trel::mediadispatch::ProgramIten>& programs);

} // namespace trel::console
