#pragma once

#include "Command.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"

#include <optional>

namespace trel::console {

class Console;

/// What the open database knows of the files of its programs. None where it cannot be read; the
/// user is told why and, where the results are to be JSON, a machine as well.
std::optional<trel::mediadispatch::ProgramContents> knownContents(const Invocation& invocation,
                                                                  Console& console);

} // namespace trel::console
