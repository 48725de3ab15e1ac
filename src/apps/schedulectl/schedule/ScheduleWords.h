#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <map>
#include <vector>

namespace trel::console {

/// The words that stand for the numbers of a record, for people to read.

/// The days of a `weeks` text, such as "Mon,Wed" or "every day", in their order.
QString daysText(const std::string& weeks);

/// A day of the week by its number, such as "Mon".
QString dayText(int day);

/// How often a plan plays: "until the end" in TimeMode, "3 times" or "less than once" otherwise.
QString playsText(const trel::mediadispatch::PlayPlan& plan);

/// What stays of a plan; every number but that of the black screen leaves the last frame.
QString endActionText(int endAction);

QString kindText(trel::mediadispatch::ProgramKind kind);

/// The entries of a plan with their counts, such as "News ×2, Weather (invalid)".
QString entriesText(const std::vector<trel::mediadispatch::struProgInfo>& entries,
                    const std::map<int, trel::mediadispatch::ProgramIten>& programs);

/// The name of an entry as it is shown, with what has become of its program.
QString entryText(const trel::mediadispatch::struProgInfo& entry,
                  const std::map<int, trel::mediadispatch::ProgramIten>& programs);

/// The two dates of a task's period.
QString periodText(const trel::mediadispatch::PlayTask& task);

} // namespace trel::console
