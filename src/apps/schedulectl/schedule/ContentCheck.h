#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace trel::console {

/// Called before each file with its place, from 0, the number of files and the path.
using ContentProgress = std::function<void(int done, int total, const QString& path)>;

/// The programs whose files are there and hold something else than when they were put into the
/// catalogue, by index. A file is read only where its size is the same and its time of change is
/// another one.
std::vector<int> changedContents(const std::map<int, trel::mediadispatch::ProgramIten>& programs,
                                 const trel::mediadispatch::ProgramContents& contents,
                                 const ContentProgress& progress);

/// A list of such programs for people, with what to do; empty for none.
QString changedContentsText(const std::vector<int>& indexes,
                            const std::map<int, trel::mediadispatch::ProgramIten>& programs);

} // namespace trel::console
