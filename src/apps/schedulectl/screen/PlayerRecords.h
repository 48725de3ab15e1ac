#pragma once

#include "Command.h"

namespace trel::console {

/// Whether a command works on a schedule on a server, where it cannot do anything: what players
/// write stands in folders beside a file. The user is told so, with what it is that they do there,
/// and where the results are to be JSON, a machine as well.
bool refusesServer(const Invocation& invocation, Console& console, const QString& deed);

} // namespace trel::console
