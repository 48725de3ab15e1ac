#pragma once

#include "AsRunList.h"
#include "trelprogramschedule/asrun/AsRunTotals.h"

#include <QString>

#include <functional>
#include <map>

namespace trel::console {

/// The sums of a screen, by index of the program.
using AsRunProgramTotals = std::map<int, trel::mediadispatch::AsRunTotal>;

/// Writes how often and how long each program was planned and on screen, screen by screen.
void writeTotals(Console& console, const std::map<QString, AsRunProgramTotals>& screens,
                 const QJsonObject& head, AsRunList::Form form);

} // namespace trel::console
