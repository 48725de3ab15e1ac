#pragma once

#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"

#include <QtGlobal>

#include <map>
#include <string>

namespace trel::mediadispatch {

/// Which state of the store somebody has read. Every change of the schedule counts the first
/// number up by one, every change of the catalogue the second, every change of what is in effect
/// the third, and every name that a version gets the fourth. A schedule that brings programs with
/// it changes the first two at once, and nothing else changes more than one.
struct StoreRevision
{
    qint64 schedule = 0;
    qint64 catalogue = 0;
    qint64 effect = 0;
    qint64 names = 0;
};

/// What a store holds.
struct StoreContents
{
    StoreRevision revision;
    TaskMap tasks;
    ProgramMap programs;
    std::map<int, std::string> removedNames; ///< Of programs that were taken out, by index.
};

} // namespace trel::mediadispatch
