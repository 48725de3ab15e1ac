#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::desktop {

/// What the catalogue says of a program, in the language in use.
namespace programwords {

/// The kind in a word.
QString kind(trel::mediadispatch::ProgramKind kind);

/// The length as hours, minutes and seconds; hours may pass 24. Empty where it has none.
QString length(const trel::mediadispatch::ProgramIten& program);
QString length(double durationMs);

/// The name as it is.
QString name(const trel::mediadispatch::ProgramIten& program);

/// The path or the address as people may see it.
QString address(const trel::mediadispatch::ProgramIten& program);

/// The folder of the file; the address of what is no file. The same in every language.
QString folder(const trel::mediadispatch::ProgramIten& program);

} // namespace programwords

} // namespace trel::desktop
