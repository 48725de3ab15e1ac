#pragma once

#include "ScheduleFile.h"

#include <functional>
#include <string>

/// What stands behind the schedule service of this host.
struct Station
{
    static Station& instance();

    ScheduleFile file;            ///< The stored set.
    ScheduleFile::Tasks working;  ///< What the operator is editing.
    ScheduleFile::Tasks inEffect; ///< Empty until the schedule is started.
    bool isStarted = false;
    std::string selectedProgram;

    /// Called with the reason when a save was refused. The working set still has everything.
    std::function<void(const QString& reason)> refused;
};
