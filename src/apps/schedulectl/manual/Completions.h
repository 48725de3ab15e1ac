#pragma once

#include "Command.h"

#include <QString>

#include <vector>

namespace trel::console {

/// What completes the command line of schedulectl in a shell: commands, their options, names of
/// files and the words to choose from.

QString bashCompletion(const std::vector<Command>& commands);
QString zshCompletion(const std::vector<Command>& commands);
QString fishCompletion(const std::vector<Command>& commands);

} // namespace trel::console
